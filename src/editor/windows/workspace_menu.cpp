#include "editor/windows/workspace_menu.h"

#include "editor/form/field_events.h"
#include "editor/form/inlet_form.h"
#include "editor/form/status_bar.h"
#include "editor/records/grid_events.h"
#include "editor/records/inlet_rows.h"
#include "editor/records/life_cycle.h"
#include "editor/records/record_commands.h"
#include "editor/records/renumber.h"
#include "editor/records/screen_mode.h"
#include "editor/state/inlet_grid.h"
#include "editor/state/windows.h"
#include "editor/windows/inlet_list.h"
#include "editor/windows/inlet_view.h"
#include "platform/failure.h"
#include "platform/outside.h"
#include "store/main_window.h"

namespace gullymark::editor {
namespace {

using platform::Answer;
using platform::BoxKind;
using platform::ignore_failure;

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

void show_workspace() {
    if (!MDIInlet.visible) {
        MDIInlet.screenmode[1] = "VIEW";
        remember_grid_row(0);
        mnuflexrefresh_Click();
        load_inlet_editor();
    }
    MDIInlet.visible = true;
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

}  // namespace gullymark::editor
