#pragma once

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

/// Tables of solved inlets: tab-separated, one heading line, one inlet a row. `UNITS` and the input columns under their
/// names; expectations under a leading `=`: `=solved` (yes or no), `=messages` (texts of the boxes, joined by `|`), and
/// result or repaired input columns.
namespace gullymark::cases {

struct Table {
    std::vector<std::string> columns;
    std::vector<std::vector<std::string>> rows;
};

/// Throws std::runtime_error for a file that cannot be read or a row whose width differs from the heading's.
Table read_table(const std::string& path);

/// One cell that came out differently.
struct Difference {
    std::string column;
    std::string expected;
    std::string computed;
};

struct Comparison {
    std::size_t cells = 0;
    std::vector<Difference> differences;
};

/// Puts the row's inputs into a fresh open inlet and sets the unit system.
void load_row(const Table& table, const std::vector<std::string>& row);

/// Loads a row and solves it as the command SOLVE does. What the boxes said is in `=messages`,
/// whether the solver ran in `=solved`, every other column by its name.
std::map<std::string, std::string> solve_row(const Table& table, const std::vector<std::string>& row);

/// Solves a row and compares every cell that the table expects.
Comparison compare_row(const Table& table, const std::vector<std::string>& row);

/// The cell of a row under `column`, empty when the table has no such column.
std::string cell(const Table& table, const std::vector<std::string>& row, const std::string& column);

}  // namespace gullymark::cases
