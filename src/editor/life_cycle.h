#pragma once

#include <string>
#include <string_view>

/// The one place where rows of INLET are made and changed. Solve never saves, Save never solves, and Save refuses an
/// inlet that changed after its last Solve.
namespace gullymark::editor {

// Opening and closing the form.
void load_inlet_editor();
/// Releases the row sets and forgets the form's state.
void unload_inlet_editor();

// Row sets. A failure is told in a plain box with the store's description and ends the operation.
void get_all_projectrecords();
/// All inlets for an empty key, else those of that number.
void get_inlet_records(const std::string& key);
/// The fields show the current row of `adoInletRS`; without one they are empty.
void attach_inlet_datasource();
/// Runs the query of `adoInletRS` again, or for the first time where it could not be opened. Throws Failure.
void query_inlets();
/// Goes to the inlet of that number. Where there is none, or it cannot be read, the row set is at its end and the form
/// empty; failures are ignored.
void Inletrecord_find(const std::string& number);
/// True when the form shows an inlet. One that could not be read when it was marked in the grid is read now; false
/// after telling why not.
bool shows_marked_inlet();
/// What is told of a number that no inlet has.
std::string not_in_project(std::string_view number);

// Commands, as the workspace calls them after its own questions.
void SetAddrecord();
void SetCopyrecord();
void SetEditRecord();
void SaveinletRecord();
void current_record_delete();
void modifyinlet();

// Their parts.
void AddRecord();
void AddCopiedRecord();
void CaptureInletFields();
void RestoreInletFields();
void UpdateRecord();
void CancelUpdate();

/// The open inlet is about to change: reason 1 is a new row, 11 its first change. Both make it unsolved.
void adoInletRS_WillChangeRecord(int reason);

// Pages of the form.
void SSTab1_Click(int previous_tab);
void set_tab_display(int tab);
/// Shows a page as if its tab was clicked.
void show_tab(int tab);

}  // namespace gullymark::editor
