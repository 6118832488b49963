#include "store/project_details.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "platform/characters.h"
#include "platform/failure.h"
#include "platform/outside.h"
#include "platform/unit_system.h"
#include "store/counties.h"
#include "store/main_window.h"
#include "store/project_session.h"
#include "store/project_store.h"
#include "store/windows.h"
#include "store/workspace_entry.h"

namespace gullymark::store {
namespace {

using platform::BoxKind;
using platform::Color;
using platform::Failure;
using platform::Field;
using platform::ignore_failure;

/// Runs an operation of the form; a failure is told and ends it.
template <class Operation>
void tell_failure(Operation operation) {
    try {
        operation();
    } catch (const Failure& failure) {
        platform::tell(failure.what());
    }
}

/// Every text of a field passes here, whoever it comes from: each change of the units runs their list check.
void set_field_text(Field& field, std::string text) {
    if (field.text == text) {
        return;
    }
    field.text = std::move(text);
    if (&field == &frmProject.units) {
        platform::CheckListValue(field.text, field.entries);
    }
}

void allow_entry(Field& field, bool allowed) {
    field.enabled = allowed;
    field.color = allowed ? Color::window : Color::gray;
}

void fill_lists() {
    frmProject.county.entries.assign(counties.begin(), counties.end());
    frmProject.units.entries = {std::string(platform::english_units)};
    set_field_text(frmProject.units, frmProject.units.entries.front());
}

/// A text that the session cannot do without.
std::string required_text(const char* column) {
    auto text = frmProject.brookprojrs.value(column);
    if (!text) {
        throw Failure(std::string("The column ") + column + " of the project holds no value.");
    }
    return *std::move(text);
}

void read_session() {
    session.projectId = required_text("PROJECT_ID");
    session.projectName = required_text("PROJECT_NAME");
    session.projectCounty = required_text("COUNTY");
    session.projectState = required_text("STATE");
    session.projectUnits = required_text("UNITS");
    session.projectDesigner = required_text("DESIGNER");
    session.productName = frmProject.brookprojrs.value("PRODUCT_NAME").value_or("");
    session.majorRelease = frmProject.brookprojrs.value("MAJOR_RELEASE");
    session.releaseDate = required_text("RELEASE_DATE");
}

void prepare_form() {
    frmProject.read = false;
    fill_lists();
    get_project_records();
    attach_project_datasource();
    frmProject.adding = false;
    frmProject.changed = false;
    if (session.detailsUpdateMode || frmProject.brookprojrs.record_count() >= 1) {
        lock_existing_row();
        return;
    }
    frmProject.mnuprojcancel.enabled = false;
    allow_entry(frmProject.project_id, true);
    allow_entry(frmProject.units, true);
    addnewproject();
}

/// All eight fields, and whatever else the row holds.
void write_row() {
    const Failure unread(
        "The project was not read from its file.  Please close this window and open it again");
    if (!frmProject.brookprojrs.is_open()) {
        throw Failure(unread);
    }
    const auto& columns = frmProject.brookprojrs.columns();
    platform::Row row = frmProject.adding ? platform::Row(columns.size()) : frmProject.brookprojrs.row();
    for (const DetailsField& entry : details_fields) {
        const auto at = std::ranges::find(columns, entry.column);
        if (at == columns.end()) {
            throw Failure("The project has no column " + std::string(entry.column) + ".");
        }
        row.at(static_cast<std::size_t>(at - columns.begin())) = (frmProject.*entry.field).text;
    }
    if (!frmProject.adding && !frmProject.read) {
        throw Failure(unread);
    }
    frmProject.brookprojrs.save(row);
}

void copy_to_session() {
    session.projectUnits = frmProject.units.text;
    session.projectName = frmProject.project_name.text;
    session.projectCounty = frmProject.county.text;
    session.projectId = frmProject.project_id.text;
    session.projectState = frmProject.state.text;
    session.projectDesigner = frmProject.designer.text;
}

void save_details() {
    write_row();
    copy_to_session();
    frmsoftwaremain.status_panels[0] =
        session.projectState + " - " + session.projectCounty + ": " + session.projectName;
    frmsoftwaremain.status_panels[2] = "UNITS: " + session.projectUnits;
    frmProject.adding = false;
    frmProject.changed = false;
    platform::tell("Project Details are Saved!", BoxKind::information);
    session.detailsUpdateMode = true;
    frmProject.visible = false;
    open_designform();
}

}  // namespace

ProjectDetails frmProject;

void tell_missing_details() {
    platform::tell("No Project Found.  Please Add Project Details", BoxKind::warning,
                   frmsoftwaremain.message_title);
}

void show_details_form() {
    load_details_form();
    frmProject.visible = true;
    call(windows.run_details_form);
}

void load_details_form() {
    if (!frmProject.loaded) {
        frmProject.loaded = true;
        tell_failure(prepare_form);
    }
}

void lock_existing_row() {
    frmProject.mnuprojcancel.enabled = true;
    allow_entry(frmProject.project_id, false);
    allow_entry(frmProject.units, false);
    // A form that could not be read shows the units of its list, not those of the project.
    if (frmProject.read) {
        session.projectUnits = frmProject.units.text;
    }
}

void unload_details_form() {
    frmProject = {};
}

void get_project_records() {
    tell_failure([] {
        session.productName.clear();
        frmProject.row_read = false;
        auto& rows = frmProject.brookprojrs;
        rows = platform::RowSet();
        rows.open(project_store.connection, select_project);
        if (rows.at_beginning()) {
            frmProject.row_read = true;
            return;
        }
        static_cast<void>(rows.row());
        frmProject.row_read = true;
        read_session();
    });
}

void attach_project_datasource() {
    const bool empty = frmProject.brookprojrs.at_end();
    for (const DetailsField& entry : details_fields) {
        set_field_text(frmProject.*entry.field,
                       empty ? "" : frmProject.brookprojrs.value(entry.column).value_or(""));
    }
    frmProject.read = true;
}

void addnewproject() {
    tell_failure([] {
        frmProject.brookprojrs.add_new();
        for (const DetailsField& entry : details_fields) {
            set_field_text(frmProject.*entry.field, "");
        }
        set_field_text(frmProject.state, "AL");
        set_field_text(frmProject.county, "Autauga");
        set_field_text(frmProject.units, std::string(platform::english_units));
        session.productName = "GULLYMARKAL";
        frmsoftwaremain.status_panels[0] = "Create Project";
        frmProject.adding = true;
    });
}

void brookprojrs_WillChangeRecord(int reason) {
    constexpr int first_change = 11;
    if (reason == first_change) {
        frmProject.changed = true;
    }
}

void edit_details_field(const DetailsField& field, std::string_view text) {
    Field& edited = frmProject.*field.field;
    if (text == edited.text) {
        return;
    }
    // A stored text beyond the limit can be shortened, but not lengthened.
    const std::size_t longest = std::max(field.limit, platform::count_characters(edited.text));
    set_field_text(edited, field.limit == 0 ? std::string(text) : platform::first_characters(text, longest));
    if (!frmProject.changed) {
        brookprojrs_WillChangeRecord(11);
    }
}

void mnuprojsave_Click() {
    if (frmProject.state.text.empty()) {
        platform::tell("State Name is a Required Field!", BoxKind::warning);
        return;
    }
    if (frmProject.project_id.text.empty()) {
        platform::tell("Project ID is a Required Field!", BoxKind::warning);
        return;
    }
    tell_failure(save_details);
}

void mnuprojcancel_Click() {
    call(windows.move_details_focus_on);
    ignore_failure([] { frmProject.brookprojrs.cancel(); });
    ignore_failure([] { frmProject.brookprojrs.requery(); });
    ignore_failure([] { frmProject.brookprojrs.move_first(); });
    ignore_failure(attach_project_datasource);
    platform::tell("Update Cancelled");
    frmProject.adding = false;
    frmProject.changed = false;
}

void mnuprojexit_Click() {
    call(windows.move_details_focus_on);
    if (frmProject.changed) {
        if (!platform::ask("Exit without saving? ")) {
            return;
        }
        mnuprojcancel_Click();
    }
    unload_details_form();
}

}  // namespace gullymark::store
