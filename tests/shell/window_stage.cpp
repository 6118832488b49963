#include "window_stage.h"

#include <array>
#include <stdexcept>
#include <utility>

#include <QApplication>

#include "editor/form/screen_fields.h"
#include "editor/state/renumber_dialog.h"
#include "shell/binding/turn.h"
#include "window_sights.h"
#include "window_user.h"

namespace gullymark::roads {
namespace {

/// What roads call a window, and its own name.
using WindowName = std::pair<const char*, const char*>;

constexpr std::array<WindowName, 4> windows_from_back{{
    {"main", "frmsoftwaremain"},
    {"workspace", "MDIInlet"},
    {"listing", "frminletflex"},
    {"view", "frmviewinlet"},
}};
constexpr std::array<WindowName, 3> modal_forms{{
    {"calculation", "worked_calculation"},
    {"details", "frmProject"},
    {"renumber", "frminletmodify"},
}};

QWidget& window_called(const std::string& name) {
    for (const auto& [called, own] : windows_from_back) {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (called == name && widget->objectName() == own) {
                return *widget;
            }
        }
    }
    throw std::runtime_error("no window is called " + name);
}

std::array<bool, windows_from_back.size()> visible_windows() {
    std::array<bool, windows_from_back.size()> visible{};
    for (std::size_t i = 0; i < visible.size(); ++i) {
        visible.at(i) = window_called(windows_from_back.at(i).first).isVisible();
    }
    return visible;
}

/// Hides a form of which the road tells nothing more, so that the program comes out of it.
void give_up(QWidget& form) {
    shell::handle([] {
        store::frmProject.visible = false;
        editor::frminletmodify.visible = false;
    });
    form.hide();
}

}  // namespace

WindowStage::WindowStage(Road& road, testing_support::RunningProgram& program)
    : road_(road), double_click_interval_(QApplication::doubleClickInterval()) {
    QApplication::setDoubleClickInterval(1);
    ask_the_road(program.robot);
    set_deeds();
    set_sights();
}

WindowStage::~WindowStage() {
    QApplication::setDoubleClickInterval(double_click_interval_);
}

void WindowStage::ask_the_road(testing_support::Robot& robot) {
    robot.ask_box = [this](const platform::Box& box) { return road_.answer(box); };
    robot.ask_file = [this] { return road_.choose_file(); };
    robot.ask_window = [this](QWidget& form) {
        while (form.isVisible() && road_.act_in_form()) {
        }
        if (form.isVisible()) {
            give_up(form);
        }
    };
}

QWidget& WindowStage::front() const {
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr ? *modal : window_called(front_);
}

template <class Deed>
bool WindowStage::turn(Deed deed) {
    const auto before = visible_windows();
    QWidget& window = front();
    bring_forward(window);
    const bool done = deed(window);
    const auto now = visible_windows();
    const bool gone = !window_called(front_).isVisible();
    for (std::size_t i = 0; i < now.size(); ++i) {
        if (now.at(i) && (gone || !before.at(i))) {
            front_ = windows_from_back.at(i).first;
        }
    }
    // What ran in a modal form that is gone is still on its way back to the window below.
    if (!window.isModal() || window.isVisible()) {
        if (QWidget& next = front(); next.isVisible()) {
            bring_forward(next);
        }
    }
    return done;
}

void WindowStage::set_deeds() {
    stage.choose = [this](const std::string& caption) {
        return turn([&](QWidget& window) { return choose(window, caption); });
    };
    stage.force = [this](const std::string& caption) {
        return turn([&](QWidget& window) {
            command_of(dynamic_cast<QMainWindow&>(window), caption).setEnabled(true);
            return choose(window, caption);
        });
    };
    stage.press = [this](const std::string& caption) {
        return turn([&](QWidget& window) { return press(window, caption); });
    };
    stage.type = [this](const std::string& name, const std::string& keys) {
        return turn([&](QWidget& window) { return type_into(window, name, keys); });
    };
    stage.paste = [this](const std::string& name, const std::string& text) {
        return turn([&](QWidget& window) { return paste_into(window, name, text); });
    };
    stage.pick = [this](const std::string& name, const std::string& entry) {
        return turn([&](QWidget& window) { return pick_in(window, name, entry); });
    };
    stage.open_list = [this](const std::string& name) {
        return turn([&](QWidget& window) { return open_list(window, name); });
    };
    stage.click = [this](const std::string& name) {
        return turn([&](QWidget& window) { return click_on(window, name); });
    };
    stage.strike_tab = [this] { return turn([](QWidget& window) { return strike(window, Qt::Key_Tab); }); };
    stage.strike_enter = [this] {
        return turn([](QWidget& window) { return strike(window, Qt::Key_Return); });
    };
    stage.turn = [this](int page) { return turn([&](QWidget& window) { return turn_page(window, page); }); };
    stage.go_to_row = [this](int row) {
        return turn([&](QWidget& window) { return go_to_row(window, row); });
    };
    stage.double_click_row = [this](int row) {
        return turn([&](QWidget& window) { return double_click_row(window, row); });
    };
    stage.go_to_window = [this](const std::string& name) {
        return turn([&](QWidget& /*window*/) {
            const bool shown = window_called(name).isVisible();
            front_ = shown ? name : front_;
            return shown;
        });
    };
    stage.close = [this] { return turn([](QWidget& window) { return close(window); }); };
}

void WindowStage::set_sights() {
    const auto field = [this](const std::string& name) -> const QWidget& { return field_of(front(), name); };
    stage.window = [this] {
        const QString modal = front().objectName();
        for (const auto& [called, own] : modal_forms) {
            if (modal == own) {
                return std::string(called);
            }
        }
        return front_;
    };
    stage.text = [=](const std::string& name) { return text_in(field(name)); };
    stage.is_on = [=](const std::string& name) { return is_on(field(name)); };
    stage.is_checked = [=](const std::string& name) { return is_checked(field(name)); };
    stage.is_shown = [=](const std::string& name) { return is_shown(field(name)); };
    stage.caption = [this](const std::string& name) { return caption_of(front(), name); };
    stage.entries = [=](const std::string& name) { return entries_of(field(name)); };
    stage.is_command_on = [this](const std::string& caption) {
        return command_of(dynamic_cast<QMainWindow&>(front()), caption).isEnabled();
    };
    stage.is_pressed = [](const std::string& caption) {
        return button_of(window_called("workspace"), caption).isChecked();
    };
    stage.picture = [this] { return said_of_the_water(front()); };
    stage.focus = [this] { return focus_in(front()); };
    stage.page = [this] { return page_of(front()); };
    stage.panel = [](int bar, int panel) {
        return panel_of(window_called("workspace"), bar == 0 ? "screenmode" : "StatusBar", panel);
    };
    stage.row = [this] { return marked_row(front()); };
    stage.row_count = [this] { return rows_of(front()).model()->rowCount(); };
    stage.cell = [this](int row, int column) {
        return rows_of(front()).model()->index(row - 1, column).data().toString().toStdString();
    };
}

}  // namespace gullymark::roads
