#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

struct sqlite3;

/// The project files of a road, made, changed and looked at past the program.
namespace gullymark::roads {

class RoadFile {
  public:
    explicit RoadFile(std::string folder) : folder_(std::move(folder)) {}

    [[nodiscard]] std::string path(const std::string& name) const { return folder_ + "/" + name; }
    /// From now on the road works on this file.
    void work_on(const std::string& path) { path_ = path; }

    /// A project with the row of details that all roads share, and no inlet.
    void make(const std::string& name, const std::string& units);
    /// A copy of one of the files under tests/files.
    void copy(const std::string& name);
    /// A row of INLET: its number, then columns and values in turn; the other columns are null.
    void put_inlet(const std::vector<std::string>& number_columns_values) const;

    /// What a statement gives: columns joined by "|", rows by a line break, nulls as "NULL".
    [[nodiscard]] std::string run(const std::string& statement) const;
    /// The values of these columns of an inlet.
    [[nodiscard]] std::string saved(const std::string& number, const std::string& columns) const;

    /// Another program writes and has not ended yet; others can read, or not even that.
    void hold(bool for_reading_too = false);
    void let_go() { holder_.reset(); }

  private:
    std::string folder_;
    std::string path_;
    std::shared_ptr<sqlite3> holder_;
};

}  // namespace gullymark::roads
