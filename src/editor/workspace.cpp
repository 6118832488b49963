#include "editor/workspace.h"

#include "editor/form_access.h"
#include "editor/inlet_grid.h"
#include "editor/inlet_list.h"
#include "editor/inlet_view.h"
#include "editor/life_cycle.h"
#include "editor/windows.h"
#include "platform/outside.h"
#include "store/main_window.h"
#include "store/project_session.h"

namespace gullymark::editor {
namespace {

using platform::Answer;
using platform::BoxKind;
using enum FieldId;

void call(const std::function<void()>& function) {
    if (function) {
        function();
    }
}

std::string kind_line() {
    return text(inlet_type) + " - --" + text(inlet_location);
}

void show_commands(bool view) {
    const bool with_rows = view && MDIInlet.Adodc1.record_count() >= 1;
    MDIInlet.mnuAddinlet.enabled = view;
    MDIInlet.mnuSaveinlet.enabled = !view;
    MDIInlet.mnuEditinlet.enabled = with_rows;
    MDIInlet.mnuflexrefresh.enabled = view;
    MDIInlet.mnuflexcopyinlet.enabled = with_rows;
    MDIInlet.mnuflexmodifyinlet.enabled = with_rows;
    MDIInlet.mnuflexdeleteinlet.enabled = with_rows;
    MDIInlet.mnuflex_inlet_report.enabled = with_rows;
    MDIInlet.mnuInletDesignForm.enabled = with_rows;
    if (view) {
        MDIInlet.mnuExit.enabled = true;
    }
}

/// After a Yes the change is given up and the mode is "VIEW" again.
void ask_to_give_up() {
    if (!platform::ask("Exit without Saving?", BoxKind::information_question, "Gullymark")) {
        return;
    }
    CancelUpdate();
    Activate_menu("View");
    mnuflexrefresh_Click();
}

/// The list and the record view show the same project: they go with the workspace.
void unload_workspace() {
    unload_inlet_editor();
    unload_inlet_grid();
    frmviewinlet = {};
    unload_inlet_list();
    MDIInlet = {};
    store::frmsoftwaremain.visible = true;
}

}  // namespace

Workspace MDIInlet;

std::string_view mode() {
    return MDIInlet.screenmode[1];
}

bool viewing() {
    return mode() == "VIEW";
}

void show_workspace() {
    if (!MDIInlet.visible) {
        MDIInlet.screenmode[1] = "VIEW";
        remember_grid_row(0);
        mnuflexrefresh_Click();
        load_inlet_editor();
    }
    MDIInlet.visible = true;
}

void Activate_menu(std::string_view new_mode) {
    const bool view = new_mode == "View";
    if (!view && new_mode != "Add" && new_mode != "Edit") {
        return;
    }
    MDIInlet.screenmode[1] = view ? "VIEW" : new_mode == "Add" ? "ADD" : "EDIT";
    frmgrid.enabled = view;
    show_commands(view);
    for (const FieldId frame : {Project_Details_Frame, Input_Details_Frame, Flow_Data_Frame, CG_frame}) {
        field(frame).enabled = !view;
    }
    if (new_mode == "Add") {
        enable(field(Inlet_Number));
        show_tab(0);
    } else if (new_mode == "Edit") {
        disable(field(Inlet_Number));
    }
}

void update_statusbar() {
    const auto& project = store::session;
    MDIInlet.StatusBar[0] = project.projectState + " - " + project.projectCounty + ": " + project.projectName;
    MDIInlet.StatusBar[1] = kind_line();
    MDIInlet.StatusBar[2] = "UNITS: " + project.projectUnits;
    MDIInlet.screenmode[3] = text(Inlet_Number);
}

void update_currentstatusbar() {
    MDIInlet.StatusBar[1] = kind_line();
    MDIInlet.screenmode[3] = text(Inlet_Number);
}

void mnuAddinlet_Click() {
    SetAddrecord();
}

void mnuEditinlet_Click() {
    if (!grid_is_empty("No records to Edit!") && shows_marked_inlet()) {
        SetEditRecord();
    }
}

void mnuSaveinlet_Click() {
    if (!viewing()) {
        SaveinletRecord();
        mnuflexrefresh_Click();
    }
}

void mnuflexrefresh_Click() {
    if (!viewing()) {
        return;
    }
    unload_inlet_editor();
    load_inlet_editor();
    MDIInlet.CurrentGridRow = frmgrid.row;
    ignore_failure([] {
        frminletMDIC.adoInletRS.requery();
        attach_inlet_datasource();
    });
    unload_inlet_grid();
    load_inlet_grid();
    // The commands follow the rows that were just read.
    Activate_menu("View");
    update_statusbar();
    update_currentstatusbar();
}

void mnuviewInlets_Click() {
    show_inlet_list();
}

void mnuflexcopyinlet_Click() {
    if (!viewing()) {
        return;
    }
    if (grid_is_empty("No records to Copy!") || !shows_marked_inlet()) {
        return;
    }
    if (platform::ask("Copy Inlet -  " + current_grid_number() + " - Data as a New Inlet?",
                      BoxKind::information_question, platform::application_title, Answer::yes)) {
        SetCopyrecord();
    }
}

void mnuflexmodifyinlet_Click() {
    if (viewing()) {
        modifyinlet();
        mnuflexrefresh_Click();
    }
}

void mnuflexdeleteinlet_Click() {
    if (!viewing()) {
        return;
    }
    if (grid_is_empty("No records to Delete!")) {
        return;
    }
    ignore_failure(current_record_delete);
    if (MDIInlet.Adodc1.record_count() == 0) {
        unload_inlet_editor();
        load_inlet_editor();
    }
    mnuflexrefresh_Click();
}

void mnuflex_inlet_report_Click() {
    const bool has_inlets = MDIInlet.Adodc1.record_count() >= 1;
    if (viewing() && (!has_inlets || shows_marked_inlet())) {
        call(windows.inlet_report);
    }
}

void mnuInletDesignForm_Click() {
    call(windows.InletDesignForm);
}

void mnuExit_Click() {
    if (windows.move_focus_on) {
        windows.move_focus_on();
    } else {
        leave_focused_field();
    }
    if (viewing()) {
        unload_workspace();
    } else {
        ask_to_give_up();
    }
}

bool MDIForm_QueryUnload(int unload_mode) {
    constexpr int system_menu = 0;
    if (unload_mode == system_menu) {
        mnuExit_Click();
    } else if (viewing()) {
        unload_workspace();
    } else {
        ask_to_give_up();
    }
    return !MDIInlet.visible;
}

}  // namespace gullymark::editor
