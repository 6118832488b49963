#include "shell/windows/inlet_grid_view.h"

#include <algorithm>
#include <array>

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyle>

#include "editor/records/grid_events.h"
#include "editor/state/inlet_grid.h"
#include "editor/state/workspace.h"
#include "shell/binding/rows_model.h"
#include "shell/binding/turn.h"

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

QSize InletGridView::minimumSizeHint() const {
    const int widest_station =
        fontMetrics().horizontalAdvance("0000+00") + 2 * style()->pixelMetric(QStyle::PM_HeaderMargin);
    int width = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    for (int column = 0; column < rows_->columnCount({}); ++column) {
        width += std::max(widest_station, horizontalHeader()->sectionSizeHint(column));
    }
    return {width, QTableView::minimumSizeHint().height()};
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

void InletGridView::pick_again(int row_before) {
    const int row = currentIndex().row();
    if (row >= 0 && row == row_before) {
        handle([row] { editor::pick_grid_row(row + 1); });
    }
}

void InletGridView::mousePressEvent(QMouseEvent* event) {
    const int row = currentIndex().row();
    QTableView::mousePressEvent(event);
    if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid()) {
        pick_again(row);
    }
}

/// Keys of commands and pages pass: they must not turn the page back.
void InletGridView::keyPressEvent(QKeyEvent* event) {
    static constexpr std::array own_keys{Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left,   Qt::Key_Right,
                                         Qt::Key_Home,  Qt::Key_End,    Qt::Key_PageUp, Qt::Key_PageDown,
                                         Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter};
    const int row = currentIndex().row();
    QTableView::keyPressEvent(event);
    if ((event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier &&
        std::ranges::find(own_keys, event->key()) != own_keys.end()) {
        pick_again(row);
    }
}

}  // namespace gullymark::shell
