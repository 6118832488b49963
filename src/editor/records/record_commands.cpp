#include "editor/records/record_commands.h"

#include <array>
#include <optional>
#include <string>

#include "editor/form/carryover.h"
#include "editor/form/field_events.h"
#include "editor/form/form_access.h"
#include "editor/form/form_defaults.h"
#include "editor/form/pages.h"
#include "editor/form/status_bar.h"
#include "editor/records/inlet_rows.h"
#include "editor/records/next_inlet.h"
#include "editor/records/screen_mode.h"
#include "editor/state/inlet_grid.h"
#include "editor/state/workspace.h"
#include "engine/inlet_row.h"
#include "engine/solve.h"
#include "platform/failure.h"
#include "platform/outside.h"
#include "store/project_session.h"
#include "store/project_store.h"

namespace gullymark::editor {
namespace {

using engine::DataSolved;
using platform::BoxKind;
using platform::ignore_failure;
using platform::tell;
using store::InletUsage;
using enum FieldId;

// clang-format off
// What a copy takes over: no number, no previous inlets with their carryover, no results.
constexpr auto copied_fields = std::to_array<FieldId>({
    RoadWay, inlet_type, Station, inlet_location, inlet_subtype, offset, offset_location, TopElevation,
    allowable_spread, curb_height, flow_direction, runoff_area, runoff_coeff, intensity, runoff_area2, runoff_coeff2,
    intensity2, Ldischarge_override, Rdischarge_override, discharge1, discharge2, QTotal, storm_frequency,
    overland_flow, txtS, txtn, txtW, txtSx, txtSw, txtWa, txtSdashW, txta, cboLength, txtWg, cboType, cboCurb,
    cboThroat, cboClog, cboLCOUG, txtzl, txtzr, txthco, txtAngle, txtPeri, txtArea, txtslotw,
});
// clang-format on

void begin_row() {
    frminletMDIC.adoInletRS.add_new();
    load_row(frminletMDIC.adoInletRS, engine::open_inlet);
    adoInletRS_WillChangeRecord(add_new_reason);
}

/// A pending new row behind the last one; the fields are empty.
void append_row() {
    auto& rows = frminletMDIC.adoInletRS;
    try {
        query_inlets();
        if (rows.record_count() >= 1) {
            rows.move_last();
        }
    } catch (const platform::Failure&) {
        if (rows.is_open()) {
            begin_row();  // else what is typed now would be saved over the inlet that was shown
        }
        throw;
    }
    begin_row();
}

/// "ADD" without a pending row would take an inlet that can never be saved.
bool row_is_pending() {
    bool pending = false;
    ignore_failure([&] { pending = frminletMDIC.adoInletRS.adding(); });
    return pending;
}

/// The new row is there to be typed in, beginning with its number; without one the mode is "VIEW" again.
void go_to_new_row() {
    if (!row_is_pending()) {
        Activate_menu("View");
        return;
    }
    ++frminletMDIC.begun;
    update_currentstatusbar();
    enter(Inlet_Number);
    frminletMDIC.wanted_focus = Inlet_Number;
}

void tell_inlet_downstream() {
    if (feeds_another(text(Inlet_Number)) == InletUsage::a_row) {
        tell(feeds_found_inlet() + "\r\nPlease review the design, solve & save the results for Inlet - " +
                 store::session.ReferencingInletNumber,
             BoxKind::information);
    }
}

/// After a refused save: the field that the user was in has the focus again, or is left where it went out of sight. Else
/// a Solve would take its text as it was typed, unformatted and with nothing computed from it.
void stay_in_or_leave(std::optional<FieldId> field) {
    if (!field) {
        return;
    }
    const int page = frminletMDIC.screen.tab;
    frminletMDIC.focused = field;
    if (screen_field(*field).tab == page) {
        frminletMDIC.wanted_focus = field;
    } else if (!leave(*field) && frminletMDIC.screen.tab == page) {
        drop_focus();
    }
}

/// Another program may have given the number, or the row, to another inlet since the grid was read.
void delete_row_of_grid(int row, const std::string& number) {
    auto& rows = MDIInlet.Adodc1.rows;
    rows.move_first();
    rows.move(row - 1);
    if (rows.row().front().value_or("") != number) {
        throw platform::Failure("Inlet " + number + " was changed by another program");
    }
    rows.remove();
}

}  // namespace

void SetAddrecord() {
    DataSolved = false;
    Activate_menu("Add");
    frminletMDIC.road_name = text(RoadWay);
    AddRecord();
    go_to_new_row();
}

void AddRecord() {
    try {
        append_row();
        set_text(project_id, store::session.projectId);
        set_text(RoadWay, frminletMDIC.road_name);
        SetFormDefaults();
    } catch (const platform::Failure& failure) {
        tell(failure.what());
    }
}

void SetCopyrecord() {
    DataSolved = false;
    CaptureInletFields();
    Activate_menu("Add");
    AddCopiedRecord();
    go_to_new_row();
}

void CaptureInletFields() {
    frminletMDIC.held_values.clear();
    for (const FieldId id : copied_fields) {
        frminletMDIC.held_values.push_back(text(id));
    }
}

void AddCopiedRecord() {
    try {
        append_row();
        RestoreInletFields();
    } catch (const platform::Failure& failure) {
        tell(failure.what());
    }
}

void RestoreInletFields() {
    set_text(project_id, store::session.projectId);
    const auto& values = frminletMDIC.held_values;
    for (std::size_t i = 0; i < values.size(); ++i) {
        set_text(copied_fields.at(i), values[i]);
    }
}

void SetEditRecord() {
    DataSolved = false;
    ++frminletMDIC.begun;
    Activate_menu("Edit");
}

void SaveinletRecord() {
    const auto was_in = frminletMDIC.focused;
    show_tab(3);
    if (text(Inlet_Number).empty()) {
        tell("Inlet number can't be blank.  Please enter a valid unique Inlet Number", BoxKind::warning);
        show_tab(0);
        stay_in_or_leave(was_in);
        return;
    }
    if (!DataSolved) {
        tell("Data has changed! Please 'Solve' Inlet Analysis before saving");
        stay_in_or_leave(was_in);
        return;
    }
    UpdateRecord();
    ignore_failure([] { MDIInlet.Adodc1.refresh(); });
    update_currentstatusbar();
    tell("Record Saved", BoxKind::information);
    if (mode() == "EDIT") {
        tell_inlet_downstream();
    }
    if (mode() == "ADD" && MDIInlet.Adodc1.record_count() >= 1) {
        remember_grid_row(MDIInlet.Adodc1.record_count());
    }
    Activate_menu("View");
    release_mode_buttons();
}

void UpdateRecord() {
    ignore_failure([] {
        save_row(frminletMDIC.adoInletRS, engine::open_inlet);
        engine::open_inlet.begin_new_changes();
        get_discharge_carryover("requery");
        update_currentstatusbar();
    });
}

void CancelUpdate() {
    ignore_failure([] {
        frminletMDIC.adoInletRS.cancel();
        attach_inlet_datasource();
    });
}

void current_record_delete() {
    const std::string number = current_grid_number();
    if (!platform::ask("Delete Current Inlet - " + number + " ?")) {
        return;
    }
    const auto usage = feeds_another(number);
    if (usage == InletUsage::unread) {
        return;  // it was told; an inlet that others may name stays
    }
    if (usage == InletUsage::a_row) {
        tell(feeds_found_inlet() + " - Delete Denied!", BoxKind::warning);
        return;
    }
    delete_row_of_grid(frmgrid.row, number);
    MDIInlet.Adodc1.refresh();
    requery_inlets();
    if (frmgrid.row >= 1) {
        remember_grid_row(frmgrid.row - 1);
    }
    tell("Current record Deleted! Please Refresh the screen to verify the results", BoxKind::warning);
    if (MDIInlet.Adodc1.record_count() == 0) {
        tell("No Inlets in Project!  Please Add Inlets", BoxKind::information);
    }
}

}  // namespace gullymark::editor
