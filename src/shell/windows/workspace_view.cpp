#include "shell/windows/workspace_view.h"

#include <QCloseEvent>

#include "editor/state/workspace.h"
#include "editor/windows/toolbar.h"
#include "editor/windows/workspace_menu.h"
#include "shell/binding/menus.h"
#include "shell/binding/qt_text.h"
#include "shell/binding/tool_icon.h"
#include "shell/binding/turn.h"
#include "shell/windows/calculation_window.h"
#include "ui_workspace_view.h"

namespace gullymark::shell {

using editor::MDIInlet;

WorkspaceView::WorkspaceView() : ui_(new Ui::MDIInlet) {
    ui_->setupUi(this);
    ui_->fixed_splitter->setStretchFactor(1, 1);
    ui_->fixed_splitter->setSizes({220, 1020});
    build_menu<editor::Workspace>(*this, editor::workspace_menu, MDIInlet);
    build_toolbar();
    screenmode_ = std::make_unique<StatusPanels>(*ui_->screenmode, std::vector<int>{0, 1, 0, 3}, false);
    status_ = std::make_unique<StatusPanels>(*ui_->StatusBar, std::vector<int>{4, 3, 2}, true);
    add_view([this] { show_state(); });
    ui_->frminletMDIC->bind();
}

WorkspaceView::~WorkspaceView() = default;

void WorkspaceView::move_focus_on() {
    ui_->frminletMDIC->move_focus_on();
}

void WorkspaceView::show_worked_calculation() {
    shell::show_worked_calculation(*ui_->frminletMDIC);
}

void WorkspaceView::build_toolbar() {
    int shown = 0;
    for (const auto& button : editor::toolbar_buttons) {
        if (button.index > shown + 1) {
            ui_->Toolbar1->addSeparator();
        }
        shown = button.index;
        const QString caption = to_qt(button.caption);
        QAction* action = ui_->Toolbar1->addAction(tool_icon(caption.toLower()), caption);
        action->setObjectName(QStringLiteral("Toolbar1_%1").arg(button.index));
        action->setCheckable(true);
        connect(action, &QAction::triggered, this,
                [index = button.index] { handle([index] { editor::Toolbar1_ButtonClick(index); }); });
        buttons_.at(static_cast<std::size_t>(button.index)) = action;
    }
    buttons_.at(editor::solve_button)->setShortcut(Qt::Key_F9);
    buttons_.at(editor::solve_button)->setToolTip("Solve (F9)");
}

void WorkspaceView::show_state() {
    setWindowTitle(to_qt(MDIInlet.caption));
    for (std::size_t i = 0; i < MDIInlet.screenmode.size(); ++i) {
        screenmode_->show(static_cast<int>(i) + 1, MDIInlet.screenmode.at(i));
    }
    for (std::size_t i = 0; i < MDIInlet.StatusBar.size(); ++i) {
        status_->show(static_cast<int>(i) + 1, MDIInlet.StatusBar.at(i));
    }
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        if (buttons_.at(i) != nullptr) {
            buttons_.at(i)->setChecked(MDIInlet.Toolbar1.at(i).checked);
            buttons_.at(i)->setEnabled(MDIInlet.Toolbar1.at(i).enabled);
        }
    }
    if (isVisible() != MDIInlet.visible) {
        setVisible(MDIInlet.visible);
    }
}

void WorkspaceView::closeEvent(QCloseEvent* event) {
    constexpr int by_the_system_menu = 0;
    event->ignore();
    handle([] { editor::MDIForm_QueryUnload(by_the_system_menu); });
}

}  // namespace gullymark::shell
