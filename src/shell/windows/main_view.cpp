#include "shell/windows/main_view.h"

#include <QCloseEvent>

#include "shell/binding/menus.h"
#include "shell/binding/qt_text.h"
#include "shell/binding/turn.h"
#include "store/main_menu.h"
#include "ui_main_view.h"

namespace gullymark::shell {

using store::frmsoftwaremain;

MainView::MainView() : ui_(new Ui::frmsoftwaremain) {
    ui_->setupUi(this);
    build_menu<store::MainWindow>(*this, store::main_menu, frmsoftwaremain);
    panels_ = std::make_unique<StatusPanels>(*ui_->StatusBar, std::vector<int>{5, 2, 2}, true);
    add_view([this] { show_state(); });
}

MainView::~MainView() = default;

void MainView::show_state() {
    setWindowTitle(to_qt(frmsoftwaremain.caption));
    for (std::size_t i = 0; i < frmsoftwaremain.status_panels.size(); ++i) {
        panels_->show(static_cast<int>(i) + 1, frmsoftwaremain.status_panels[i]);
    }
    if (isVisible() != frmsoftwaremain.visible) {
        setVisible(frmsoftwaremain.visible);
    }
}

void MainView::closeEvent(QCloseEvent* event) {
    constexpr int by_the_system_menu = 0;
    event->ignore();
    handle([] { store::Form_QueryUnload(by_the_system_menu); });
}

}  // namespace gullymark::shell
