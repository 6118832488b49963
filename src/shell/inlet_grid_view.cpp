#include "shell/inlet_grid_view.h"

#include <QHeaderView>

#include "editor/inlet_grid.h"
#include "editor/workspace.h"
#include "shell/turn.h"

namespace gullymark::shell {

using editor::frmgrid;

/// The rows below the heading, straight from the workspace's data source.
class InletGridView::Rows : public QAbstractTableModel {
  public:
    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() || !frmgrid.loaded ? 0 : editor::MDIInlet.Adodc1.record_count();
    }

    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(editor::grid_headings.size());
    }

    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole) {
            return {};
        }
        return QString::fromStdString(
            editor::grid_cell(index.row() + 1, static_cast<std::size_t>(index.column())));
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (role != Qt::DisplayRole || orientation != Qt::Horizontal) {
            return QAbstractTableModel::headerData(section, orientation, role);
        }
        const auto heading = editor::grid_headings.at(static_cast<std::size_t>(section));
        return QString::fromUtf8(heading.data(), static_cast<qsizetype>(heading.size()));
    }

    void read_anew() {
        beginResetModel();
        endResetModel();
    }
};

InletGridView::InletGridView(QWidget* parent) : QTableView(parent), rows_(new Rows(this)) {
    setObjectName("flexgrid");
    setModel(rows_);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setHighlightSections(false);
    add_view([this] { show_state(); });
}

void InletGridView::show_state() {
    setEnabled(frmgrid.enabled);
    if (shown_loads_ != frmgrid.loads) {
        shown_loads_ = frmgrid.loads;
        rows_->read_anew();
    }
    if (currentIndex().row() + 1 != frmgrid.row) {
        const QModelIndex row = rows_->index(frmgrid.row - 1, 0);
        setCurrentIndex(row);
        scrollTo(row);
    }
}

void InletGridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (current.isValid() && current.row() + 1 != frmgrid.row) {
        handle([&] { editor::pick_grid_row(current.row() + 1); });
    }
}

}  // namespace gullymark::shell
