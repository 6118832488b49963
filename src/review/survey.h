#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "engine/inlet_record.h"
#include "review/finding.h"
#include "review/project.h"
#include "review/rules.h"

/// What every rule looks at and tells to. The units of the project are in force meanwhile.
namespace gullymark::review {

/// One of the two sides from which an inlet takes flow, by its columns.
struct Side {
    std::string_view behind;  // " of the left side", behind what is told of it
    engine::Column override_text;
    engine::Column area;
    engine::Column coefficient;
    engine::Column intensity;
    engine::Column discharge;
    engine::Column preinlet;
    engine::Column carryover;
};

/// The sides that count: both in a sump, else the left one, which then has no name.
std::span<const Side> sides_of(const engine::InletRecord& record);

/// The number of a text, nothing where it is none.
std::optional<double> number_of(std::string_view text);
/// The same of a column, 0 where there is none.
double number_or_zero(const engine::InletRecord& record, engine::Column column);

/// The text of a column with its unit, "blank" for an empty one.
std::string told(const engine::InletRecord& record, engine::Column column);
/// A flow that no column holds, with its unit.
std::string told_flow(double flow);

/// The decimals that a number of the project's units may be stored with.
std::vector<std::string> stored_formats();
/// True where the text is that number, rounded in one of the formats.
bool is_stored_as(std::string_view text, double number, const std::vector<std::string>& formats);

class Survey {
  public:
    using Index = std::size_t;
    static constexpr Index whole_project = static_cast<Index>(-1);

    Survey(const Project& project, const Limits& limits);

    [[nodiscard]] const Project& project() const { return project_; }
    [[nodiscard]] const Limits& limits() const { return limits_; }
    [[nodiscard]] const engine::InletRecord& inlet(Index index) const { return project_.inlets[index]; }
    [[nodiscard]] std::size_t count() const { return project_.inlets.size(); }

    /// The inlets of a number, in the order of the file.
    [[nodiscard]] const std::vector<Index>& with_number(const std::string& number) const;
    /// The inlets that name this number as their previous inlet, once for each side.
    [[nodiscard]] const std::vector<Index>& takers_of(const std::string& number) const;

    /// Takes a finding on an inlet, or on the whole project.
    void report(const Rule& rule, Index index, std::string text, std::string advice);

    /// All that was told, worst first, then in the order of the file.
    std::vector<Finding> take_findings();

  private:
    struct Told {
        Index index;
        Finding finding;
    };
    using Indices = std::unordered_map<std::string, std::vector<Index>>;

    const Project& project_;
    const Limits& limits_;
    Indices by_number_;
    Indices takers_;
    std::vector<Told> told_;
};

}  // namespace gullymark::review
