#include "shell/windows/list_view.h"

#include <QCloseEvent>
#include <QEvent>

#include "editor/windows/inlet_list.h"
#include "editor/windows/inlet_view.h"
#include "shell/binding/menus.h"
#include "shell/binding/qt_text.h"
#include "shell/binding/rows_model.h"
#include "shell/binding/turn.h"
#include "ui_list_view.h"

namespace gullymark::shell {

using editor::frminletflex;

namespace {

void go_to_row(int row) {
    editor::inletflex_EnterCell(row);
    editor::inletflex_Click();
}

void open_row(const QModelIndex& at) {
    handle([row = at.row() + 1] {
        go_to_row(row);
        editor::inletflex_DblClick();
    });
}

}  // namespace

ListView::ListView() : ui_(new Ui::frminletflex) {
    ui_->setupUi(this);
    build_menu<editor::InletList>(*this, editor::list_menu, frminletflex);
    ui_->fixed_count_label->setText(to_qt(editor::list_count_label));
    build_rows();
    add_view([this] { show_state(); });
}

ListView::~ListView() = default;

void ListView::build_rows() {
    rows_ = new RowsModel(this, {.headings = {editor::list_headings.begin(), editor::list_headings.end()},
                                 .count = [] { return frminletflex.Adodc1.record_count(); },
                                 .cell = editor::list_cell});
    set_up_rows(*ui_->inletflex, *rows_);
    // The width of a point follows the screen.
    const int column_width = editor::list_column_points * logicalDpiX() / 72;
    for (int column = 0; column < rows_->columnCount({}); ++column) {
        ui_->inletflex->setColumnWidth(column, column_width);
    }
    connect(ui_->inletflex->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [](const QModelIndex& now) {
                if (now.isValid()) {
                    handle([row = now.row() + 1] { go_to_row(row); });
                }
            });
    // Not `activated`: some desktops take one click for it.
    connect(ui_->inletflex, &QTableView::doubleClicked, this, open_row);
    auto* enter = new QAction(ui_->inletflex);
    enter->setShortcuts({Qt::Key_Return, Qt::Key_Enter});
    enter->setShortcutContext(Qt::WidgetShortcut);
    connect(enter, &QAction::triggered, this, [this] { open_row(ui_->inletflex->currentIndex()); });
    ui_->inletflex->addAction(enter);
    ui_->inletflex->viewport()->installEventFilter(this);
}

void ListView::show_state() {
    setWindowTitle(to_qt(frminletflex.caption));
    ui_->rec_count->setText(to_qt(frminletflex.rec_count.text));
    if (loads_shown_ != frminletflex.loads) {
        loads_shown_ = frminletflex.loads;
        rows_->renew();
    }
    mark_row(*ui_->inletflex, frminletflex.row);
    if (isVisible() != frminletflex.visible) {
        setVisible(frminletflex.visible);
    }
    come_to_front(*this, frminletflex.shows, shows_shown_);
}

bool ListView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonDblClick && rows_->rowCount({}) == 0) {
        handle(editor::inletflex_DblClick);
    }
    return QMainWindow::eventFilter(watched, event);
}

void ListView::closeEvent(QCloseEvent* event) {
    event->ignore();
    handle(editor::exit_inlet_list);
}

}  // namespace gullymark::shell
