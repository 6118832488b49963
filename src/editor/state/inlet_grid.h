#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

/// What stands in the narrow grid `frmgrid` beside the design form, through which the user chooses the inlet that the form
/// shows. Its rows are those of the workspace's Adodc1; row 0 is the heading.
namespace gullymark::editor {

struct InletGrid {
    bool loaded = false;
    bool enabled = true;
    int row = 0;    // the current row of flexgrid, marked whole; 0: none
    int loads = 0;  // rises with every load: what was shown is old
};

extern InletGrid frmgrid;

inline constexpr std::array<std::string_view, 3> grid_headings{"INLET_ID", "STATION", "OFFSET"};

/// A text of the grid, as its last query read it; empty outside of its rows and columns.
std::string grid_cell(int row, std::size_t column);

/// The inlet number of the current row; empty without one.
std::string current_grid_number();

/// Remembers a row, and the grid stands on it.
void remember_grid_row(int row);

}  // namespace gullymark::editor
