#pragma once

#include <array>
#include <string>
#include <string_view>

/// The narrow grid `frmgrid` beside the design form, through which the user chooses the inlet that the form shows.
/// Its rows are those of the workspace's Adodc1; row 0 is the heading.
namespace gullymark::editor {

struct InletGrid {
    bool loaded = false;
    bool enabled = true;
    int row = 0;    // the current row of flexgrid, marked whole; 0: none
    int loads = 0;  // rises with every load: what was shown is old
};

extern InletGrid frmgrid;

inline constexpr std::array<std::string_view, 3> grid_headings{"INLET_ID", "STATION", "OFFSET"};

void load_inlet_grid();
void unload_inlet_grid();

/// Shows `CurrentGridRow` as the selected row; 0 becomes 1.
void SelectGridRow();

/// The user went to a row, by mouse or key. In "VIEW" the form follows.
void pick_grid_row(int row);

// The parts of `pick_grid_row`.
void flexgrid_EnterCell();
void flexgrid_Click();

/// A text of the grid, as its last query read it.
std::string grid_cell(int row, std::size_t column);

/// The inlet number of the current row; empty without one.
std::string current_grid_number();

/// True where no inlet is in the grid, after telling so by `message`, or why the inlets could not be read.
bool grid_is_empty(const std::string& message);

/// Remembers a row, and the grid stands on it.
void remember_grid_row(int row);

}  // namespace gullymark::editor
