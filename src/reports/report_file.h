#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/spreadsheet.h"

/// The file of a report: how the user names it, and its way from the template to the user's spreadsheet. A report copies a
/// template of the program's folder to a path that the user chooses, fills the copy and leaves it open and unsaved in the
/// user's spreadsheet application; the file itself stays a bare copy of the template until the user saves it there.
///
/// Failures are ignored step by step: a cell whose value cannot be had stays as the template has it; where the copy cannot
/// be made the sheet is filled all the same, as a new workbook without a name; and without a spreadsheet application the
/// copy is made and nothing is shown.
namespace gullymark::reports {

struct ReportFile {
    const char* template_name;  // in the program's folder
    const char* filter;         // of the file dialog
    const char* title;          // of the file dialog
    platform::SheetChoice sheet;
    int frozen_rows = 0;  // stay in sight while the rest scrolls
    int frozen_columns = 0;
};

/// Asks for the report's path. Nothing when the user gave none, which a warning tells, or keeps a file that exists.
std::optional<std::string> choose_target(const ReportFile& report);

/// Copies the template onto `target`, overwriting, opens it in the spreadsheet application, has `fill` write its
/// cells, and shows it; under the wait pointer from the copy on. Where the copy fails, `target` is a project, or it is
/// open already, `fill` writes into a new workbook without a name: what an old report holds is never filled. Without a
/// spreadsheet application, or without the template, nothing is filled or shown.
void fill_copy_of_template(const ReportFile& report, const std::string& target,
                           const std::function<void(platform::Sheet&)>& fill);

}  // namespace gullymark::reports
