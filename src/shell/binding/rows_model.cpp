#include "shell/binding/rows_model.h"

#include <utility>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>

#include "shell/binding/qt_text.h"

namespace gullymark::shell {
namespace {

QString row_as_text(const QTableView& table) {
    QStringList cells;
    const int row = table.currentIndex().row();
    for (int column = 0; row >= 0 && column < table.model()->columnCount(); ++column) {
        cells << table.model()->index(row, column).data().toString();
    }
    return cells.join(u'\t');
}

}  // namespace

RowsModel::RowsModel(QObject* owner, RowsSource source)
    : QAbstractTableModel(owner), source_(std::move(source)) {}

void RowsModel::renew() {
    beginResetModel();
    count_ = source_.count();
    endResetModel();
}

int RowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count_;
}

int RowsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(source_.headings.size());
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return {};
    }
    return to_qt(source_.cell(index.row() + 1, static_cast<std::size_t>(index.column())));
}

QVariant RowsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    const auto heading = source_.headings.at(static_cast<std::size_t>(section));
    return to_qt(heading);
}

void set_up_rows(QTableView& table, RowsModel& model) {
    table.setModel(&model);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setAlternatingRowColors(true);
    table.setTabKeyNavigation(false);
    table.setWordWrap(false);
    table.verticalHeader()->hide();
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 8);
    table.horizontalHeader()->setHighlightSections(false);
    auto* copy = new QAction(&table);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(copy, &QAction::triggered, &table,
                     [&table] { QGuiApplication::clipboard()->setText(row_as_text(table)); });
    table.addAction(copy);
}

void mark_row(QTableView& table, int row) {
    if (table.currentIndex().row() == row - 1) {
        return;
    }
    const QModelIndex index = table.model()->index(row - 1, 0);
    const bool in_sight = table.viewport()->rect().contains(table.visualRect(index).center());
    table.setCurrentIndex(index);
    if (index.isValid() && !in_sight) {
        table.scrollTo(index, QAbstractItemView::PositionAtTop);
    }
}

}  // namespace gullymark::shell
