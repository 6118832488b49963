#pragma once

#include <string>

/// The rows of INLET behind the form: the row set `adoInletRS`, whose current row is the open inlet.
namespace gullymark::editor {

/// Opens the rows of all inlets, shows the first one and opens the rows of the previous inlets. What cannot be read is
/// told in a plain box with the store's description; the workspace opens without it.
void get_all_projectrecords();

/// Opens the rows of all inlets for an empty key, else those of that number, on the first. A failure is told in a plain
/// box with the store's description.
void get_inlet_records(const std::string& key);

/// The fields show the current row of `adoInletRS`; without one they are empty. Throws Failure.
void attach_inlet_datasource();

/// Runs the query of `adoInletRS` again, or for the first time where it could not be opened. Throws Failure.
void query_inlets();

/// Runs the query again and shows its current row. Throws Failure.
void requery_inlets();

/// Goes to the inlet of that number. Where there is none, or it cannot be read, the row set is at its end and the form
/// empty; failures are ignored.
void Inletrecord_find(const std::string& number);

/// True when the form shows an inlet. One that could not be read when it was marked in the grid is read now; false
/// after telling why not.
bool shows_marked_inlet();

/// The reasons for which a row is about to change.
inline constexpr int add_new_reason = 1;
inline constexpr int first_change_reason = 11;

/// The open inlet is about to change: a new row, or its first change, make it unsolved; any other reason does nothing.
void adoInletRS_WillChangeRecord(int reason);

}  // namespace gullymark::editor
