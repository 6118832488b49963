#pragma once

#include <cstddef>

#include "engine/inlet_record.h"

/// The two spreadsheets of a project. Each copies a template of the program's folder to a path that the user chooses,
/// fills the copy and leaves it open and unsaved in the user's spreadsheet application; the file itself stays a bare
/// copy of the template until the user saves it there.
///
/// Failures are ignored step by step: a cell whose value cannot be had stays as the template has it; where the copy cannot
/// be made the sheet is filled all the same, as a new workbook without a name; and without a spreadsheet application the
/// copy is made and nothing is shown.
namespace gullymark::reports {

/// Print Report: the one inlet that is current in the editor. `inlet_count` is the number of rows in the workspace's
/// list; with none there is only a message. The folder chosen becomes the session's working folder.
void inlet_report(std::size_t inlet_count, const engine::InletRecord& current_inlet);

/// Inlet Design Form: all inlets of the open project in the order of their numbers, read from the file. With none there is
/// only a message. The working folder stays.
void InletDesignForm(std::size_t inlet_count);

}  // namespace gullymark::reports
