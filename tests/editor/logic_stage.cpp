#include "editor/logic_stage.h"

#include <algorithm>
#include <filesystem>
#include <span>
#include <stdexcept>
#include <utility>

#include "editor/form/field_events.h"
#include "editor/form/inlet_form.h"
#include "editor/form/inlet_screen.h"
#include "editor/form/screen_fields.h"
#include "editor/form/worked_calculation.h"
#include "editor/form_user.h"
#include "editor/records/grid_events.h"
#include "editor/records/life_cycle.h"
#include "editor/records/renumber.h"
#include "editor/state/inlet_grid.h"
#include "editor/state/renumber_dialog.h"
#include "editor/state/windows.h"
#include "editor/state/workspace.h"
#include "editor/windows/inlet_list.h"
#include "editor/windows/inlet_view.h"
#include "editor/windows/toolbar.h"
#include "editor/windows/workspace_menu.h"
#include "platform/files.h"
#include "store/main_menu.h"
#include "support/fresh_start.h"

namespace gullymark::roads {
namespace {

using namespace editor;  // NOLINT(google-build-using-namespace): the stage is all about the editor
using store::frmProject;
using store::frmsoftwaremain;

bool in_details() {
    return frmProject.visible;
}
bool in_renumber() {
    return frminletmodify.visible;
}

/// Fields of the modal forms.
platform::Field& form_field(const std::string& name) {
    if (in_renumber()) {
        if (name == "thisinletnumber" || name == "newinletnumber") {
            return name == "thisinletnumber" ? frminletmodify.thisinletnumber : frminletmodify.newinletnumber;
        }
    } else {
        for (const auto& field : store::details_fields) {
            if (field.name == name) {
                return frmProject.*field.field;
            }
        }
    }
    throw std::runtime_error("no field of the form is called " + name);
}

bool type_into_form(const std::string& name, const std::string& text) {
    if (!form_field(name).enabled) {
        return false;
    }
    if (in_renumber()) {
        edit_new_number(text);
        return true;
    }
    for (const auto& field : store::details_fields) {
        if (field.name == name) {
            store::edit_details_field(field, text);
        }
    }
    return true;
}

// Commands.

std::string without_mark(std::string_view caption) {
    std::string plain(caption);
    std::erase(plain, '&');
    return plain;
}

struct Command {
    void (*action)();
    bool on;
};

template <class Window>
Command find_command(std::span<const platform::MenuItem<Window>> items, const Window& window,
                     const std::string& caption) {
    for (const auto& item : items) {
        if (without_mark(item.caption) == caption && item.action != nullptr) {
            return {item.action, item.field == nullptr || (window.*item.field).enabled};
        }
    }
    throw std::runtime_error("the menu has no " + caption);
}

Command command(const std::string& window, const std::string& caption) {
    if (window == "details") {
        return find_command<store::ProjectDetails>(store::details_menu, frmProject, caption);
    }
    if (window == "workspace") {
        return find_command<Workspace>(workspace_menu, MDIInlet, caption);
    }
    if (window == "listing") {
        return find_command<InletList>(list_menu, frminletflex, caption);
    }
    return find_command<store::MainWindow>(store::main_menu, frmsoftwaremain, caption);
}

// The button of the results page; its window is the shell's.
constexpr const char* calculation_button = "Worked Calculation...";
bool calculation_shown = false;

int button_index(const std::string& caption) {
    for (const auto& button : toolbar_buttons) {
        if (button.caption == caption) {
            return button.index;
        }
    }
    throw std::runtime_error("no button is called " + caption);
}

bool press(const std::string& caption) {
    if (calculation_shown) {
        calculation_shown = caption != "Close";
    } else if (caption == calculation_button) {
        if (!has_worked_calculation()) {
            return false;
        }
        show_worked_calculation();
    } else if (in_renumber()) {
        caption == "Accept" ? cmdmodaccept_Click() : cmdmodcancel_Click();
    } else {
        Toolbar1_ButtonClick(button_index(caption));
    }
    return true;
}

bool is_visible(const std::string& window) {
    return (window == "main" && frmsoftwaremain.visible) || (window == "workspace" && MDIInlet.visible) ||
           (window == "listing" && frminletflex.visible) || (window == "view" && frmviewinlet.visible);
}

constexpr std::array<const char*, 4> windows_from_back{"main", "workspace", "listing", "view"};

}  // namespace

LogicStage::LogicStage(Road& road, const std::string& program_folder) : road_(road) {
    testing_support::forget_everything();
    std::filesystem::create_directory(program_folder);
    platform::copy_file(GULLYMARK_TEMPLATE, program_folder + "/GullymarkAL10.rdb");
    platform::set_program_folder(program_folder);
    ask_the_road();
    set_deeds();
    set_sights();
    store::windows.show_workspace = show_workspace;
    store::windows.unload_inlet_editor = unload_inlet_editor;
    store::load_main_window();
    frmsoftwaremain.visible = true;
}

LogicStage::~LogicStage() {
    testing_support::forget_everything();
    platform::set_program_folder("");
}

void LogicStage::ask_the_road() {
    platform::outside.show_box = [this](const platform::Box& box) { return road_.answer(box); };
    platform::outside.choose_file = [this](const platform::FileDialogRequest&) {
        return road_.choose_file();
    };
    store::windows.run_details_form = [this] {
        while (in_details() && road_.act_in_form()) {
        }
        frmProject.visible = false;
    };
    editor::windows.run_renumber_dialog = [this] {
        while (in_renumber() && road_.act_in_form()) {
        }
    };
    editor::windows.show_worked_calculation = [this] {
        calculation_shown = true;
        while (calculation_shown && road_.act_in_form()) {
        }
        calculation_shown = false;
    };
    editor::windows.move_focus_on = [] { static_cast<void>(move_on()); };
}

template <class Deed>
bool LogicStage::turn(Deed deed) {
    std::array<bool, windows_from_back.size()> before{};
    for (std::size_t i = 0; i < before.size(); ++i) {
        before.at(i) = is_visible(windows_from_back.at(i));
    }
    const bool done = deed();
    honour_wanted_focus();
    water_of_form_.look(engine::open_inlet);
    water_of_view_.look(viewed_inlet);
    const bool gone = !is_visible(front_);
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (const char* window = windows_from_back.at(i); is_visible(window) && (gone || !before.at(i))) {
            front_ = window;
        }
    }
    return done;
}

void LogicStage::set_deeds() {
    stage.choose = [this](const std::string& caption) {
        return turn([&] {
            const Command chosen = command(stage.window(), caption);
            if (chosen.on) {
                chosen.action();
            }
            return chosen.on;
        });
    };
    stage.force = [this](const std::string& caption) {
        return turn([&] {
            command(stage.window(), caption).action();
            return true;
        });
    };
    stage.press = [this](const std::string& caption) { return turn([&] { return press(caption); }); };
    stage.type = [this](const std::string& name, const std::string& keys) {
        return in_details() || in_renumber() ? type_into_form(name, keys)
                                             : turn([&] { return type_into(field_id(name), keys); });
    };
    stage.paste = [this](const std::string& name, const std::string& pasted) {
        return turn([&] { return paste_into(field_id(name), pasted); });
    };
    stage.pick = [this](const std::string& name, const std::string& entry) {
        return in_details() ? type_into_form(name, entry)
                            : turn([&] { return pick_in(field_id(name), entry); });
    };
    stage.open_list = [this](const std::string& name) {
        return turn([&] { return open_list(field_id(name)); });
    };
    stage.click = [this](const std::string& name) { return turn([&] { return click_on(field_id(name)); }); };
    stage.strike_tab = [this] { return turn(move_on); };
    stage.strike_enter = [this] { return turn(strike_enter); };
    stage.turn = [this](int page) {
        return turn([&] {
            if (front_ == "view") {
                view_tab_clicked(page);
                return true;
            }
            if (!leave_focused_field()) {
                return false;
            }
            tab_clicked(page);
            return true;
        });
    };
    stage.go_to_row = [this](int row) {
        return turn([&] {
            if (front_ == "listing") {
                inletflex_EnterCell(row);
                inletflex_Click();
                return true;
            }
            if (frmgrid.enabled) {
                pick_grid_row(row);
            }
            return frmgrid.enabled;
        });
    };
    stage.double_click_row = [this](int row) {
        return turn([&] {
            inletflex_EnterCell(row);
            inletflex_DblClick();
            return true;
        });
    };
    stage.go_to_window = [this](const std::string& window) {
        if (is_visible(window)) {
            front_ = window;
        }
        return is_visible(window);
    };
    stage.close = [this] {
        return turn([&] {
            if (front_ == "view") {
                unload_inlet_view();
            } else if (front_ == "listing") {
                exit_inlet_list();
            } else if (front_ == "workspace") {
                return MDIForm_QueryUnload(0);
            }
            return true;
        });
    };
}

void LogicStage::set_sights() {
    const auto screen = [this]() -> const InletScreen& {
        return front_ == "view" ? frmviewinlet.screen : frminletMDIC.screen;
    };
    const auto in_form = [] { return in_details() || in_renumber(); };
    stage.window = [this] {
        return calculation_shown ? "calculation"
               : in_renumber()   ? "renumber"
               : in_details()    ? "details"
                                 : front_;
    };
    stage.text = [=, this](const std::string& name) {
        if (front_ == "listing" && name == "rec_count") {
            return frminletflex.rec_count.text;
        }
        return in_form() ? form_field(name).text : screen().text(field_id(name));
    };
    stage.is_on = [=](const std::string& name) {
        return in_form() ? form_field(name).enabled : screen().editable(field_id(name));
    };
    stage.is_checked = [=](const std::string& name) { return screen()[field_id(name)].checked; };
    stage.is_shown = [=](const std::string& name) { return screen()[field_id(name)].visible; };
    stage.caption = [=](const std::string& name) { return screen()[field_id(name)].caption; };
    stage.entries = [=](const std::string& name) { return screen()[field_id(name)].entries; };
    stage.is_command_on = [this](const std::string& caption) { return command(stage.window(), caption).on; };
    stage.is_pressed = [](const std::string& caption) {
        return MDIInlet.Toolbar1.at(static_cast<std::size_t>(button_index(caption))).checked;
    };
    stage.picture = [this] {
        const section::Water water =
            front_ == "view" ? water_of_view_.look(viewed_inlet) : water_of_form_.look(engine::open_inlet);
        return water == section::Water::solved     ? "solved"
               : water == section::Water::unsolved ? "not solved"
                                                   : "no results";
    };
    stage.focus = [] {
        return frminletMDIC.focused ? std::string(field_name(*frminletMDIC.focused)) : std::string();
    };
    stage.page = [=] { return screen().tab; };
    stage.panel = [](int bar, int panel) {
        const auto at = static_cast<std::size_t>(panel - 1);
        return bar == 0 ? MDIInlet.screenmode.at(at) : MDIInlet.StatusBar.at(at);
    };
    stage.row = [this] { return front_ == "listing" ? frminletflex.row : frmgrid.row; };
    stage.row_count = [this] {
        return front_ == "listing" ? frminletflex.Adodc1.record_count() : MDIInlet.Adodc1.record_count();
    };
    stage.cell = [this](int row, int column) {
        const auto at = static_cast<std::size_t>(column);
        return front_ == "listing" ? list_cell(row, at) : grid_cell(row, at);
    };
}

}  // namespace gullymark::roads
