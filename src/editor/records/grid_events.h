#pragma once

#include <string>

/// The grid beside the form from its load to its end, and what the user does in it.
namespace gullymark::editor {

/// Loads the grid, if it is not loaded: reads its rows and goes to the remembered one, or the first. A failure is kept
/// in the rows' `failure`; the grid shows what it had.
void load_inlet_grid();

/// Forgets the grid's state, but for the count of its loads.
void unload_inlet_grid();

/// Shows `CurrentGridRow` as the selected row; 0 becomes 1.
void SelectGridRow();

/// The user went to a row, by mouse or key. In "VIEW" the form follows.
void pick_grid_row(int row);

// The parts of `pick_grid_row`.

/// The current row is remembered.
void flexgrid_EnterCell();

/// In "VIEW" the form shows the inlet of the current row, on its details page. Without rows nothing happens, and on
/// the heading neither.
void flexgrid_Click();

/// True where no inlet is in the grid, after telling so by `message`, or why the inlets could not be read.
bool grid_is_empty(const std::string& message);

}  // namespace gullymark::editor
