#include "faults/designer.h"

#include <algorithm>
#include <filesystem>

#include "editor/form/field_events.h"
#include "editor/form/inlet_form.h"
#include "editor/form/screen_fields.h"
#include "editor/form/solve_command.h"
#include "editor/records/grid_events.h"
#include "editor/records/life_cycle.h"
#include "editor/records/renumber.h"
#include "editor/state/inlet_grid.h"
#include "editor/state/renumber_dialog.h"
#include "editor/state/windows.h"
#include "editor/state/workspace.h"
#include "editor/windows/inlet_list.h"
#include "editor/windows/inlet_view.h"
#include "editor/windows/workspace_menu.h"
#include "platform/file_dialog.h"
#include "platform/files.h"
#include "platform/spreadsheet.h"
#include "reports/inlet_design_form.h"
#include "reports/inlet_report.h"
#include "store/main_menu.h"
#include "support/fresh_start.h"
#include "support/sqlite_file.h"

namespace gullymark::faults {
namespace {

using namespace editor;  // NOLINT(google-build-using-namespace): a designer is all about the editor

using enum FieldId;

constexpr int form_pages = 4;

void type(FieldId field, const std::string& text) {
    leave_focused_field();
    enter(field);
    edited(field, text);
    leave_focused_field();
}

/// A save that was refused, or that never came about, is given up: he is back in "VIEW".
void solve_and_save() {
    editor::cmdsolve_Click();
    mnuSaveinlet_Click();
    if (!viewing()) {
        mnuExit_Click();
    }
}

void look_at_row(int row, const std::function<void()>& look) {
    pick_grid_row(row);
    look ? look() : void();
    for (int page = form_pages - 1; page >= 0; --page) {
        tab_clicked(page);
    }
}

void look_at_record(int row, const std::function<void()>& look) {
    for (std::size_t column = 0; column < list_headings.size(); ++column) {
        static_cast<void>(list_cell(row, column));
    }
    inletflex_EnterCell(row);
    inletflex_DblClick();
    look ? look() : void();
    for (int page = form_pages - 1; page >= 0; --page) {
        view_tab_clicked(page);
    }
    unload_inlet_view();
}

void fill_details(const std::string& project_name) {
    for (const auto& field : store::details_fields) {
        if (field.name == "project_id" && store::frmProject.project_id.enabled) {
            store::edit_details_field(field, "P-1");
        } else if (field.name == "project_name" || field.name == "designer") {
            store::edit_details_field(field, project_name);
        }
    }
    store::mnuprojsave_Click();
}

}  // namespace

Designer::Designer(const std::string& program_folder) {
    testing_support::forget_everything();
    platform::printDlg = {};
    platform::outside = {};
    platform::outside.show_box = [this](const platform::Box& box) {
        boxes.push_back(box);
        if (on_box) {
            on_box();
        }
        return platform::Answer::yes;
    };
    platform::outside.choose_file = [this](const platform::FileDialogRequest&) { return chosen_path_; };
    store::windows.show_workspace = show_workspace;
    store::windows.unload_inlet_editor = unload_inlet_editor;
    store::windows.run_details_form = [this] {
        if (project_name_.empty()) {
            store::mnuprojexit_Click();
        } else {
            fill_details(project_name_);
        }
        store::frmProject.visible = false;
    };
    platform::spreadsheet.open = [](const platform::SheetFile&) { return platform::SheetContent(); };
    platform::spreadsheet.hand_over = [this](const platform::SheetFile&, const platform::Filling& filling) {
        sheet = filling.cells;
    };
    platform::set_program_folder(program_folder);
    store::load_main_window();
    store::frmsoftwaremain.visible = true;
}

Designer::~Designer() {
    testing_support::forget_everything();
    platform::outside = {};
    platform::spreadsheet = {};
    platform::set_program_folder("");
}

void Designer::create(const std::string& path, const std::string& project_name) {
    close_for_another();
    chosen_path_ = path;
    project_name_ = project_name;
    store::mnucreateProj_Click();
}

void Designer::open(const std::string& path) {
    close_for_another();
    chosen_path_ = path;
    project_name_.clear();
    store::mnuopenProj_Click();
}

void Designer::close_for_another() {
    if (MDIInlet.visible || !store::frmsoftwaremain.mnuopenProj.enabled) {
        close();
    }
}

void Designer::close() {
    if (MDIInlet.visible) {
        mnuExit_Click();
    }
    store::mnucloseProj_Click();
}

void Designer::look_at_every_row(const std::function<void()>& at_form,
                                 const std::function<void()>& at_record) {
    for (int row = 1; row <= rows(); ++row) {
        look_at_row(row, at_form);
    }
    show_inlet_list();
    for (int row = 1; row <= frminletflex.Adodc1.record_count(); ++row) {
        look_at_record(row, at_record);
    }
    unload_inlet_list();
}

void Designer::edit(int row, const std::function<std::string(const std::string& station)>& change) {
    pick_grid_row(row);
    mnuEditinlet_Click();
    if (viewing()) {
        return;  // nothing can be typed
    }
    const std::string text = change(frminletMDIC.screen.text(Station));
    type(Station, text);
    type(RoadWay, text);
    solve_and_save();
}

void Designer::edit(int row, const std::string& text) {
    edit(row, [&](const std::string& /*station*/) { return text; });
}

void Designer::copy(int row, const std::string& number) {
    pick_grid_row(row);
    mnuflexcopyinlet_Click();
    if (viewing()) {
        return;
    }
    type(Inlet_Number, number);
    solve_and_save();
}

void Designer::remove(int row) {
    pick_grid_row(row);
    mnuflexdeleteinlet_Click();
}

void Designer::renumber(int row, const std::string& number) {
    pick_grid_row(row);
    editor::windows.run_renumber_dialog = [number] {
        edit_new_number(number);
        cmdmodaccept_Click();
        frminletmodify.visible = false;
    };
    mnuflexmodifyinlet_Click();
}

void Designer::save_details(const std::string& project_name) {
    if (MDIInlet.visible) {
        mnuExit_Click();
    }
    project_name_ = project_name;
    store::mnuupdateProj_Click();
}

void Designer::write_report(const std::string& path) {
    chosen_path_ = path;
    reports::inlet_report(static_cast<std::size_t>(rows()), engine::open_inlet);
}

void Designer::write_design_form(const std::string& path) {
    chosen_path_ = path;
    reports::InletDesignForm(static_cast<std::size_t>(rows()));
}

void Designer::pick(int row) {
    pick_grid_row(row);
}

void Designer::name_previous(int row, const std::string& number) {
    pick_grid_row(row);
    mnuEditinlet_Click();
    if (viewing()) {
        return;
    }
    tab_clicked(1);
    type(preinlet1, number);
    if (told_of_failure()) {
        mnuExit_Click();
        return;
    }
    solve_and_save();
}

void Designer::view(int row) {
    if (frmviewinlet.visible) {
        unload_inlet_view();
    }
    show_inlet_list();
    refresh_inlet_list();
    inletflex_EnterCell(row);
    inletflex_DblClick();
}

bool Designer::told_of_failure() const {
    return std::ranges::any_of(boxes, [](const platform::Box& box) {
        return !box.text.empty() && box.text.front() >= 'a' && box.text.front() <= 'z';
    });
}

std::string Designer::what_was_told() const {
    std::string texts = "; told:";
    for (const auto& box : boxes) {
        texts += " \"" + box.text + '"';
    }
    return texts;
}

int Designer::rows() {
    return MDIInlet.Adodc1.record_count();
}

std::string Designer::number_in(int row) {
    return grid_cell(row, 0);
}

void make_project(const std::string& program_folder, const std::string& path, int inlets) {
    Designer designer(program_folder);
    designer.create(path, "Mill Road");
    mnuAddinlet_Click();
    type(Inlet_Number, "1");
    tab_clicked(1);
    clicked(Left_override);
    type(discharge1, "1.5");
    solve_and_save();
    designer.close();
    const auto count = std::to_string(inlets);
    testing_support::run_sql(
        path,
        "CREATE TEMP TABLE one AS SELECT * FROM INLET;"
        "WITH RECURSIVE n(i) AS (SELECT 2 UNION ALL SELECT i + 1 FROM n WHERE i < 2 * " +
            count +
            ")"
            " INSERT INTO INLET SELECT one.* FROM one, n;"
            "DELETE FROM INLET WHERE rowid > " +
            count +
            ";"
            "UPDATE INLET SET INLET_NUMBER = printf('I-%06d', rowid),"
            " PREINLET1 = CASE WHEN rowid > 1 THEN printf('I-%06d', rowid - 1) ELSE '' END;");
}

}  // namespace gullymark::faults
