#include "editor/life_cycle.h"

#include "editor/defaults.h"
#include "editor/discharge.h"
#include "editor/field_enabling.h"
#include "editor/form_access.h"
#include "editor/inlet_grid.h"
#include "editor/workspace.h"
#include "engine/inlet_row.h"
#include "engine/results.h"
#include "engine/solve.h"
#include "engine/unit_constants.h"
#include "platform/outside.h"
#include "store/project_session.h"
#include "store/project_store.h"

namespace gullymark::editor {
namespace {

using platform::tell;
using enum FieldId;

constexpr int add_new_reason = 1;
constexpr int first_change_reason = 11;

bool shows_a_row() {
    const auto& rows = frminletMDIC.adoInletRS;
    return rows.is_open() && !rows.at_beginning() && !rows.at_end();
}

/// Fails where no inlet has that number, and where it cannot be read.
void show_inlet(const std::string& number) {
    auto& rows = frminletMDIC.adoInletRS;
    rows.move_first();
    rows.find("INLET_NUMBER = '" + number + "'");
    attach_inlet_datasource();
    if (rows.at_end()) {
        throw platform::Failure(not_in_project(number));
    }
}

/// An empty form on no row: what is typed from here on can be saved into none.
void show_no_inlet() {
    ignore_failure([] {
        frminletMDIC.adoInletRS.move_last();
        frminletMDIC.adoInletRS.move_next();
    });
    ignore_failure(attach_inlet_datasource);
}

void InitEditorForm() {
    set_text(txtProject, store::session.projectName);
    frminletMDIC.road_name.clear();
    engine::unit_constants.numberFormat = "0.000";
    show_tab(0);
}

}  // namespace

void load_inlet_editor() {
    if (frminletMDIC.loaded) {
        return;
    }
    frminletMDIC.loaded = true;
    platform::show_wait_pointer(true);
    engine::open_inlet = {};
    engine::open_inlet.on_first_change = [] { adoInletRS_WillChangeRecord(first_change_reason); };
    engine::clear_results();
    InitEditorForm();
    FillFormLists();
    SetFormDefaults();
    get_all_projectrecords();
    set_tab_display(frminletMDIC.screen.tab);
    Activate_menu("View");
    platform::show_wait_pointer(false);
    update_statusbar();
    engine::DataSolved = true;
}

void unload_inlet_editor() {
    frminletMDIC = {.begun = frminletMDIC.begun};
    engine::open_inlet = {};
}

void get_all_projectrecords() {
    get_inlet_records("");
    try {
        attach_inlet_datasource();
    } catch (const platform::Failure& failure) {
        // A damaged row: the workspace opens without it.
        tell(failure.what());
    }
    get_discharge_carryover("newquery");
}

void get_inlet_records(const std::string& key) {
    auto& rows = frminletMDIC.adoInletRS;
    try {
        rows = platform::RowSet();
        rows.open(store::project_store.connection,
                  key.empty() ? store::select_inlets : store::select_inlet(key));
        if (!rows.at_beginning()) {
            rows.move_first();
        }
    } catch (const platform::Failure& failure) {
        tell(failure.what());
    }
}

void attach_inlet_datasource() {
    load_row(frminletMDIC.adoInletRS, engine::open_inlet);
}

void adoInletRS_WillChangeRecord(int reason) {
    if (reason == add_new_reason || reason == first_change_reason) {
        engine::DataSolved = false;
    }
}

std::string not_in_project(std::string_view number) {
    return "Inlet " + std::string(number) + " is not in this project";
}

void query_inlets() {
    auto& rows = frminletMDIC.adoInletRS;
    if (rows.is_open()) {
        rows.requery();
    } else {
        rows.open(store::project_store.connection, store::select_inlets);
    }
}

void Inletrecord_find(const std::string& number) {
    try {
        show_inlet(number);
    } catch (const platform::Failure&) {
        show_no_inlet();
    }
}

bool shows_marked_inlet() {
    try {
        if (!shows_a_row()) {
            query_inlets();
            show_inlet(current_grid_number());
            update_currentstatusbar();
        }
        return true;
    } catch (const platform::Failure& failure) {
        show_no_inlet();
        tell(failure.what());
        return false;
    }
}

void SSTab1_Click(int /*previous_tab*/) {
    const int tabnumber = frminletMDIC.screen.tab;
    set_tab_display(tabnumber);
    if (tabnumber == 1) {
        show_overrides(frminletMDIC.screen);
    }
}

void set_tab_display(int tab) {
    switch (tab) {
        case 0:
            frminletMDIC.screen.tab = 0;
            break;
        case 1:
            ShowDischargeFrames();
            break;
        case 2:
            ShowInletDataFields();
            break;
        case 3:
            show_result_captions(frminletMDIC.screen);
            break;
        default:
            break;
    }
}

void show_tab(int tab) {
    auto& shown = frminletMDIC.screen.tab;
    if (shown == tab) {
        return;
    }
    const int previous = shown;
    shown = tab;
    // A field that goes out of sight is not left, and nothing there can take the focus.
    drop_focus();
    SSTab1_Click(previous);
}

}  // namespace gullymark::editor
