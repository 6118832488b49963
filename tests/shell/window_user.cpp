#include "window_user.h"

#include <stdexcept>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

#include "robot.h"
#include "shell/binding/input_filter.h"
#include "window_sights.h"

namespace gullymark::roads {
namespace {

using testing_support::settle;

/// Whether a signal came meanwhile.
template <class Sender, class Signal, class Act>
bool tells(Sender& sender, Signal signal, Act act) {
    bool told = false;
    const QObject life;
    QObject::connect(&sender, signal, &life, [&told] { told = true; });
    act();
    settle();
    return told;
}

void click_at(QWidget& widget, QPoint at) {
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, at);
    settle();
}

/// False for a field that its page hides.
bool is_in_sight(const QWidget& window, const QWidget& field) {
    const auto* tabs = window.findChild<QTabWidget*>();
    if (tabs != nullptr && tabs->isAncestorOf(&field) && !tabs->currentWidget()->isAncestorOf(&field)) {
        throw std::runtime_error(field.objectName().toStdString() + " stands on another page");
    }
    return field.isVisible();
}

/// By mouse, and selects what stands there.
bool go_to_text(QWidget& window, const std::string& field) {
    QWidget& widget = field_of(window, field);
    QLineEdit* line = shell::line_of(widget);
    if (line == nullptr) {
        throw std::runtime_error(field + " takes no typing");
    }
    if (!is_in_sight(window, widget)) {
        return false;
    }
    click_at(*line, line->rect().center());
    if (window.focusWidget() != &widget || line->isReadOnly()) {
        return false;
    }
    testing_support::press(window, Qt::Key_A, Qt::ControlModifier);
    return true;
}

/// Where a list is clicked so that it drops down.
QPoint arrow_of(const QComboBox& list) {
    constexpr int from_the_edge = 8;
    return {list.width() - from_the_edge, list.height() / 2};
}

QComboBox& list_called(const QWidget& window, const std::string& name) {
    if (auto* list = qobject_cast<QComboBox*>(&field_of(window, name))) {
        return *list;
    }
    throw std::runtime_error(name + " is no list");
}

bool drop_down(QWidget& window, QComboBox& list) {
    if (!is_in_sight(window, list)) {
        return false;
    }
    click_at(list, arrow_of(list));
    // A list takes no click for the time in which a second one would make a double click.
    QTest::qWait(QApplication::doubleClickInterval() + 1);
    return list.view()->isVisible();
}

}  // namespace

QWidget& field_of(const QWidget& window, const std::string& name) {
    if (auto* widget = window.findChild<QWidget*>(QString::fromStdString(name))) {
        return *widget;
    }
    throw std::runtime_error("no field is called " + name);
}

void bring_forward(QWidget& window) {
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) {
        throw std::runtime_error("the window does not come forward: " + window.objectName().toStdString());
    }
    settle();
}

bool choose(QWidget& window, const std::string& caption) {
    auto& menus = *dynamic_cast<QMainWindow&>(window).menuBar();
    QAction& action = command_of(dynamic_cast<QMainWindow&>(window), caption);
    return tells(action, &QAction::triggered, [&] {
        for (QMenu* menu : menus.findChildren<QMenu*>()) {
            if (!menu->actions().contains(&action)) {
                continue;
            }
            click_at(menus, menus.actionGeometry(menu->menuAction()).center());
            click_at(*menu, menu->actionGeometry(&action).center());
            if (menu->isVisible()) {
                testing_support::press(*menu, Qt::Key_Escape);  // a command that is off leaves it open
            }
        }
    });
}

bool press(QWidget& window, const std::string& caption) {
    QAbstractButton& button = button_of(window, caption);
    return tells(button, &QAbstractButton::clicked, [&] { click_at(button, button.rect().center()); });
}

bool type_into(QWidget& window, const std::string& field, const std::string& keys) {
    if (!go_to_text(window, field)) {
        return false;
    }
    if (keys.empty()) {
        testing_support::press(window, Qt::Key_Delete);
    }
    testing_support::type(window, keys);
    return true;
}

bool paste_into(QWidget& window, const std::string& field, const std::string& text) {
    if (!go_to_text(window, field)) {
        return false;
    }
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
    testing_support::press(window, Qt::Key_V, Qt::ControlModifier);
    return true;
}

bool open_list(QWidget& window, const std::string& field) {
    QComboBox& list = list_called(window, field);
    const bool opened = drop_down(window, list);
    if (opened) {
        testing_support::press(*list.view(), Qt::Key_Escape);
        settle();
    }
    return opened;
}

bool pick_in(QWidget& window, const std::string& field, const std::string& entry) {
    QComboBox& list = list_called(window, field);
    if (!drop_down(window, list)) {
        return false;
    }
    const int row = list.findText(QString::fromStdString(entry), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (row < 0) {
        testing_support::press(*list.view(), Qt::Key_Escape);
        throw std::runtime_error(field + " does not offer " + entry);
    }
    QAbstractItemView& view = *list.view();
    const QModelIndex index = list.model()->index(row, 0);
    view.scrollTo(index);
    return tells(list, &QComboBox::activated,
                 [&] { click_at(*view.viewport(), view.visualRect(index).center()); });
}

bool click_on(QWidget& window, const std::string& field) {
    auto* button = qobject_cast<QAbstractButton*>(&field_of(window, field));
    if (button == nullptr) {
        throw std::runtime_error(field + " cannot be clicked");
    }
    constexpr int in_the_box = 8;
    return is_in_sight(window, *button) && tells(*button, &QAbstractButton::clicked, [&] {
               click_at(*button, {in_the_box, button->height() / 2});
           });
}

bool strike(QWidget& window, Qt::Key key) {
    const QWidget* before = window.focusWidget();
    testing_support::press(window, key);
    return window.focusWidget() != before;
}

bool turn_page(QWidget& window, int page) {
    auto& tabs = *window.findChild<QTabWidget*>("SSTab1");
    click_at(*tabs.tabBar(), tabs.tabBar()->tabRect(page).center());
    return tabs.currentIndex() == page;
}

bool go_to_row(QWidget& window, int row) {
    QTableView& rows = rows_of(window);
    const QModelIndex index = rows.model()->index(row - 1, 0);
    rows.scrollTo(index);
    click_at(*rows.viewport(), rows.visualRect(index).center());
    return rows.isEnabled() && marked_row(window) == row;
}

bool double_click_row(QWidget& window, int row) {
    QTableView& rows = rows_of(window);
    QWidget& target = *(row == 0 ? rows.horizontalHeader()->viewport() : rows.viewport());
    const QModelIndex index = rows.model()->index(row - 1, 0);
    const QPoint at = index.isValid() ? rows.visualRect(index).center() : target.rect().center();
    QTest::mouseDClick(&target, Qt::LeftButton, Qt::NoModifier, at);
    settle();
    return true;
}

bool close(QWidget& window) {
    window.close();
    settle();
    return !window.isVisible();
}

}  // namespace gullymark::roads
