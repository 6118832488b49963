#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "review/project.h"

/// How the inlets of a project hand their bypass on.
namespace gullymark::review {

/// Inlets that feed each other, in the order of the file; most often one that does not.
struct Link {
    std::vector<std::size_t> inlets;
    bool in_loop = false;
};

/// Looks inlets up by their numbers. It holds on to the project, which must outlast it.
class Links {
  public:
    using Index = std::size_t;

    explicit Links(const Project& project);

    /// The inlets of a number, in the order of the file.
    [[nodiscard]] const std::vector<Index>& with_number(const std::string& number) const;
    /// The inlets that name this number as their previous inlet, once for each side that counts.
    [[nodiscard]] const std::vector<Index>& takers_of(const std::string& number) const;

    /// The first inlet of that number, from which the next one takes its carryover; nothing for none.
    [[nodiscard]] std::optional<Index> source(const std::string& number) const;

    /// All inlets, each behind its previous ones and otherwise in the order of the file; those of a loop are together.
    [[nodiscard]] std::vector<Link> in_order() const;

  private:
    using Indices = std::unordered_map<std::string, std::vector<Index>>;

    const Project& project_;
    Indices by_number_;
    Indices takers_;
};

}  // namespace gullymark::review
