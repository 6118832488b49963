#include "editor/state/inlet_grid.h"

#include "editor/state/workspace.h"

namespace gullymark::editor {

InletGrid frmgrid;

std::string grid_cell(int row, std::size_t column) {
    return MDIInlet.Adodc1.cell(row, column);
}

std::string current_grid_number() {
    return grid_cell(frmgrid.row, 0);
}

void remember_grid_row(int row) {
    MDIInlet.CurrentGridRow = row;
    frmgrid.row = row;
}

}  // namespace gullymark::editor
