#include "shell/windows/standards_window.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

#include "catalogue/pick.h"
#include "catalogue/standards.h"
#include "shell/binding/qt_text.h"
#include "shell/binding/turn.h"

namespace gullymark::shell {
namespace {

/// The heading over its unit; a long one takes two lines.
QString heading_text(const catalogue::TableColumn& column) {
    constexpr qsizetype longest_line = 14;
    QString text = to_qt(column.heading);
    if (text.size() > longest_line) {
        text[text.lastIndexOf(' ')] = '\n';
    }
    return text + '\n' + to_qt(column.unit);
}

/// Names stand left, numbers right, so that their decimals stand under each other.
Qt::Alignment side_of(int column) {
    return column == 0 ? Qt::AlignLeft : Qt::AlignRight;
}

QLabel* heading_label(const catalogue::Table& table) {
    QString text = to_qt(table.heading[0]);
    if (!table.heading[1].empty()) {
        text += '\n' + to_qt(table.heading[1]);
    }
    auto* label = new QLabel(text);
    label->setObjectName(QStringLiteral("heading"));
    label->setAlignment(Qt::AlignCenter);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

}  // namespace

StandardsList::StandardsList(const catalogue::Table& table, QWidget* parent)
    : QTableWidget(static_cast<int>(table.rows.size()), static_cast<int>(table.columns.size()), parent),
      table_(table) {
    setObjectName(QStringLiteral("gratetypelist"));
    setAccessibleName(to_qt(table.title));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    show_headings();
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    for (int row = 0; row < rowCount(); ++row) {
        show_row(row);
    }
    color_separators();
    resizeColumnsToContents();
    const int gap = 3 * fontMetrics().averageCharWidth();
    for (int column = 0; column < columnCount(); ++column) {
        setColumnWidth(column, columnWidth(column) + gap);
    }
    columns_width_ = horizontalHeader()->length();
    horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
}

void StandardsList::show_headings() {
    for (int column = 0; column < columnCount(); ++column) {
        auto* item = new QTableWidgetItem(heading_text(table_.columns[static_cast<std::size_t>(column)]));
        item->setTextAlignment(side_of(column) | Qt::AlignBottom);
        setHorizontalHeaderItem(column, item);
    }
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
}

void StandardsList::show_row(int row) {
    const catalogue::Row& fields = table_.rows[static_cast<std::size_t>(row)];
    const bool separator = catalogue::is_separator(fields);
    for (int column = 0; column < columnCount(); ++column) {
        auto* item = new QTableWidgetItem(to_qt(fields.at(static_cast<std::size_t>(column))));
        item->setFlags(separator ? Qt::ItemIsEnabled : Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        item->setTextAlignment(side_of(column) | Qt::AlignVCenter);
        if (!separator && column > 0) {
            item->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        }
        setItem(row, column, item);
    }
    setRowHeight(row, separator ? fontMetrics().height() / 3 : fontMetrics().height() + 6);
}

void StandardsList::color_separators() {
    for (int row = 0; row < rowCount(); ++row) {
        for (int column = 0; column < columnCount(); ++column) {
            if (catalogue::is_separator(table_.rows[static_cast<std::size_t>(row)])) {
                item(row, column)->setBackground(palette().brush(QPalette::Midlight));
            }
        }
    }
}

void StandardsList::changeEvent(QEvent* event) {
    QTableWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        color_separators();
    }
}

const catalogue::Row& StandardsList::selected_row() const {
    const auto items = selectedItems();
    return items.isEmpty() ? catalogue::separator
                           : table_.rows[static_cast<std::size_t>(items.constFirst()->row())];
}

QSize StandardsList::sizeHint() const {
    const int border = 2 * frameWidth();
    const int height = horizontalHeader()->sizeHint().height() + verticalHeader()->length() + border;
    const int highest = screen()->availableSize().height() * 7 / 10;
    const int scroll_bar = height > highest ? verticalScrollBar()->sizeHint().width() : 0;
    return {columns_width_ + scroll_bar + border, std::min(height, highest)};
}

QModelIndex StandardsList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    const QModelIndex next = QTableWidget::moveCursor(action, modifiers);
    if (!next.isValid() || !catalogue::is_separator(table_.rows[static_cast<std::size_t>(next.row())])) {
        return next;
    }
    return next.siblingAtRow(next.row() + (next.row() > currentIndex().row() ? 1 : -1));
}

void StandardsList::focusInEvent(QFocusEvent* event) {
    QTableWidget::focusInEvent(event);
    // The toolkit makes the first row current without selecting it; the first arrow key would pass it by.
    if (selectedItems().isEmpty()) {
        selectionModel()->clearCurrentIndex();
    }
}

StandardsWindow::StandardsWindow(const catalogue::Table& table, QWidget* parent) : QDialog(parent) {
    setObjectName(to_qt(table.name));
    setWindowTitle(to_qt(table.title));

    auto* list = new StandardsList(table, this);
    auto* buttons = new QDialogButtonBox;
    QPushButton* select = buttons->addButton(QStringLiteral("Select"), QDialogButtonBox::AcceptRole);
    select->setObjectName(to_qt(table.select_command));
    select->setDefault(true);
    QPushButton* cancel = buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("gtcancel"));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(heading_label(table));
    layout->addWidget(list);
    layout->addWidget(buttons);
    resize(sizeHint());
    list->setFocus();

    const auto pick_selected = [this, list, &table] {
        catalogue::pick(table, row_text(table, list->selected_row()));
        accept();
    };
    connect(select, &QPushButton::clicked, this, pick_selected);
    connect(list, &QTableWidget::doubleClicked, this, pick_selected);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void show_standards(const catalogue::Table& table) {
    show_all();
    count_modal_round();
    StandardsWindow(table, QApplication::activeWindow()).exec();
}

}  // namespace gullymark::shell
