#include "shell/inlet_grid_view.h"

#include <QHeaderView>

#include "editor/inlet_grid.h"
#include "editor/workspace.h"
#include "shell/rows_model.h"
#include "shell/turn.h"

namespace gullymark::shell {

using editor::frmgrid;

InletGridView::InletGridView(QWidget* parent)
    : QTableView(parent),
      rows_(new RowsModel(
          this, {.headings = {editor::grid_headings.begin(), editor::grid_headings.end()},
                 .count = [] { return frmgrid.loaded ? editor::MDIInlet.Adodc1.record_count() : 0; },
                 .cell = editor::grid_cell})) {
    setObjectName("flexgrid");
    setAccessibleName("Inlets of the project");
    set_up_rows(*this, *rows_);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    add_view([this] { show_state(); });
}

void InletGridView::show_state() {
    setEnabled(frmgrid.enabled);
    const int count = frmgrid.loaded ? editor::MDIInlet.Adodc1.record_count() : 0;
    if (shown_loads_ != frmgrid.loads || rows_->rowCount({}) != count) {
        shown_loads_ = frmgrid.loads;
        rows_->renew();
    }
    mark_row(*this, frmgrid.row);
}

void InletGridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (current.isValid() && current.row() + 1 != frmgrid.row) {
        handle([&] { editor::pick_grid_row(current.row() + 1); });
    }
}

}  // namespace gullymark::shell
