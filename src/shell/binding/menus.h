#pragma once

#include <functional>
#include <span>
#include <string_view>

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include "platform/menu.h"
#include "shell/binding/qt_text.h"
#include "shell/binding/turn.h"

namespace gullymark::shell {

/// The keys of a command, by its name in any menu of the program; empty for one without.
QKeySequence keys_of(std::string_view command);

/// Puts a command of the window's menu on a tool bar, with the icon of that name; the button shows its menu caption
/// without the letter's mark.
void add_tool(QToolBar& bar, const char* command, const QString& icon);

/// Builds the menu bar of a window from the logic's table: one action for each command, under its name. Choosing one
/// runs its action, when `may_run` lets it. The items keep to what the logic has in `state`, from turn to turn.
template <class Logic>
void build_menu(QMainWindow& window, std::span<const platform::MenuItem<Logic>> items, const Logic& state,
                const std::function<bool(std::string_view command)>& may_run = {}) {
    // The toolkit's own would let tool bars vanish, and F9 with them.
    window.setContextMenuPolicy(Qt::NoContextMenu);
    for (const auto& item : items) {
        auto* menu = window.menuBar()->findChild<QMenu*>(to_qt(item.menu));
        if (item.menu.empty()) {
            menu = window.menuBar()->addMenu(to_qt(item.caption));
            menu->setObjectName(to_qt(item.name));
            continue;
        }
        if (item.caption == platform::menu_separator) {
            menu->addSeparator()->setObjectName(to_qt(item.name));
            continue;
        }
        QAction* action = menu->addAction(to_qt(item.caption));
        action->setObjectName(to_qt(item.name));
        action->setShortcut(keys_of(item.name));
        action->setMenuRole(QAction::NoRole);
        QObject::connect(action, &QAction::triggered, &window,
                         [name = item.name, run = item.action, may_run] {
                             if (!showing() && (!may_run || may_run(name))) {
                                 handle(run);
                             }
                         });
        if (item.field != nullptr) {
            add_view([action, &state, field = item.field] { action->setEnabled((state.*field).enabled); });
        }
    }
}

}  // namespace gullymark::shell
