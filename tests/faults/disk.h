#pragma once

#include <map>
#include <random>
#include <string>
#include <vector>

#include "faults/system_calls.h"

/// A disk on which power fails: it keeps what was synchronised, and of the rest what chance wants.
namespace gullymark::faults {

/// What a call changed on the disk.
struct Change {
    CallKind kind = CallKind::write;
    int file = 0;              // the folder is file 0
    std::string name;          // in the folder
    std::string new_name;      // of a file that gets another name
    std::uint64_t offset = 0;  // of a write
    std::uint64_t size = 0;    // of a file that is cut
    std::string bytes;         // of a write
};

class Disk {
  public:
    /// Holds what lies in the folder, all of it synchronised.
    explicit Disk(std::string folder);

    /// Takes note of a call that passes.
    void note(const SystemCall& call);

    /// How many changes have been noted, and of which kind one is.
    [[nodiscard]] std::size_t changes() const { return changes_.size(); }
    [[nodiscard]] CallKind kind_of(std::size_t change) const { return changes_.at(change).kind; }

    /// The folder holds what is found there when power fails after so many changes. Each write since its file was
    /// synchronised is kept, dropped, or torn sector by sector; of the names given and taken since the folder was
    /// synchronised the first ones are kept, as many as chance wants.
    void fail_power(std::size_t after, std::mt19937& random) const;

    /// The folder holds what is found there when the process is killed after so many changes, in the middle of the next.
    void kill_writer(std::size_t after) const;

  private:
    using Names = std::map<std::string, int>;
    using Bytes = std::map<int, std::string>;
    struct Image {
        Names names;
        Bytes bytes;
    };

    int file_named(const std::string& name);
    static void change_names(Names& names, const Change& change);
    void put_back(const Image& image) const;

    std::string folder_;
    Image before_;
    Names names_;  // after all changes
    int files_ = 0;
    std::vector<Change> changes_;
};

}  // namespace gullymark::faults
