#pragma once

#include "engine/inlet_record.h"
#include "platform/row_set.h"

/// Between the current row of a row set over INLET and an inlet in memory.
///
/// A file of the old schema lacks some columns: they read as null, a form can fill and solve them, and a save stores
/// the columns that the file has.
namespace gullymark::engine {

/// The record takes the current row; all nulls without one. Throws Failure.
void load_row(const platform::RowSet& rows, InletRecord& record);

/// Writes the record into the current or the pending new row. Throws Failure.
void save_row(platform::RowSet& rows, const InletRecord& record);

}  // namespace gullymark::engine
