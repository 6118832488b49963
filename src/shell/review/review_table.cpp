#include "shell/review/review_table.h"

#include <algorithm>
#include <set>
#include <utility>

#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

namespace gullymark::shell {
namespace {

/// A cell of a line of text: no tab, no line break.
QString as_cell(const QVariant& value) {
    return value.toString().simplified();
}

}  // namespace

ReviewTable::ReviewTable(QWidget* parent) : QTableView(parent) {
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setCornerButtonEnabled(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    connect(this, &QTableView::doubleClicked, this, [this] {
        if (entered) {
            entered();
        }
    });
    fit_rows();
}

void ReviewTable::set_lines(int lines) {
    lines_ = lines;
    setWordWrap(lines > 1);
    fit_rows();
}

void ReviewTable::fit_rows() {
    constexpr int gap = 8;
    verticalHeader()->setDefaultSectionSize(lines_ * fontMetrics().lineSpacing() + gap);
}

void ReviewTable::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        fit_rows();
    }
}

void ReviewTable::mark(int row) {
    const bool was_quiet = std::exchange(quiet_, true);
    if (row < 0 || row >= model()->rowCount()) {
        selectionModel()->clear();
    } else if (currentIndex().row() != row || !selectionModel()->isRowSelected(row)) {
        setCurrentIndex(model()->index(row, 0));
    }
    quiet_ = was_quiet;
}

void ReviewTable::fit_columns() {
    constexpr int most_letters = 26;
    const int widest = most_letters * fontMetrics().averageCharWidth();
    horizontalHeader()->setResizeContentsPrecision(100);
    resizeColumnsToContents();
    for (int column = 0; column < model()->columnCount(); ++column) {
        setColumnWidth(column, std::min(columnWidth(column) + fontMetrics().averageCharWidth(), widest));
    }
}

void ReviewTable::keep_place(const std::function<int()>& change) {
    const bool was_quiet = std::exchange(quiet_, true);
    const int before = currentIndex().row();
    const int top = before < 0 ? 0 : rowViewportPosition(before);
    const bool in_sight = before >= 0 && top + rowHeight(before) > 0 && top < viewport()->height();
    const int scrolled = verticalScrollBar()->value();
    const int sideways = horizontalScrollBar()->value();
    const int now = change();
    mark(now);
    executeDelayedItemsLayout();
    if (now >= 0 && in_sight) {
        verticalScrollBar()->setValue(verticalScrollBar()->value() + rowViewportPosition(now) - top);
    } else {
        verticalScrollBar()->setValue(scrolled);
    }
    horizontalScrollBar()->setValue(sideways);
    quiet_ = was_quiet;
}

QString ReviewTable::marked_as_text() const {
    std::set<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows()) {
        rows.insert(index.row());
    }
    if (rows.empty()) {
        return {};
    }
    const auto line = [&](auto&& cell) {
        QStringList cells;
        for (int column = 0; column < model()->columnCount(); ++column) {
            cells << as_cell(cell(column));
        }
        return cells.join('\t') + '\n';
    };
    QString text = line([&](int column) {
        const QVariant whole = model()->headerData(column, Qt::Horizontal, Qt::AccessibleTextRole);
        return whole.isValid() ? whole : model()->headerData(column, Qt::Horizontal);
    });
    for (const int row : rows) {
        text += line([&](int column) { return model()->index(row, column).data(); });
    }
    return text;
}

void ReviewTable::currentChanged(const QModelIndex& now, const QModelIndex& before) {
    QTableView::currentChanged(now, before);
    if (!quiet_ && picked && now.isValid()) {
        picked(now.row());
    }
}

void ReviewTable::focusInEvent(QFocusEvent* event) {
    const bool was_quiet = std::exchange(quiet_, true);
    QTableView::focusInEvent(event);
    // The toolkit makes the first row current without marking it; the first arrow key would pass it by.
    if (!selectionModel()->hasSelection()) {
        selectionModel()->clearCurrentIndex();
    }
    quiet_ = was_quiet;
}

void ReviewTable::keyPressEvent(QKeyEvent* event) {
    const bool is_enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (is_enter && event->modifiers() == Qt::NoModifier && entered) {
        entered();
        return;
    }
    QTableView::keyPressEvent(event);
}

}  // namespace gullymark::shell
