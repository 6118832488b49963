#include "editor/records/inlet_rows.h"

#include "editor/form/carryover.h"
#include "editor/form/inlet_form.h"
#include "editor/form/status_bar.h"
#include "editor/state/inlet_grid.h"
#include "engine/inlet_row.h"
#include "engine/solve.h"
#include "platform/failure.h"
#include "platform/outside.h"
#include "store/project_store.h"

namespace gullymark::editor {
namespace {

using platform::ignore_failure;
using platform::tell;

bool shows_a_row() {
    const auto& rows = frminletMDIC.adoInletRS;
    return rows.is_open() && !rows.at_beginning() && !rows.at_end();
}

/// Fails where no inlet has that number, and where it cannot be read.
void show_inlet(const std::string& number) {
    auto& rows = frminletMDIC.adoInletRS;
    store::find_inlet(rows, number);
    attach_inlet_datasource();
    if (rows.at_end()) {
        throw platform::Failure(store::not_in_project(number));
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

}  // namespace

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

void query_inlets() {
    auto& rows = frminletMDIC.adoInletRS;
    if (rows.is_open()) {
        rows.requery();
    } else {
        rows.open(store::project_store.connection, store::select_inlets);
    }
}

void requery_inlets() {
    query_inlets();
    attach_inlet_datasource();
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

void adoInletRS_WillChangeRecord(int reason) {
    if (reason == add_new_reason || reason == first_change_reason) {
        engine::DataSolved = false;
    }
}

}  // namespace gullymark::editor
