#pragma once

#include <functional>
#include <string>

#include "platform/sheet.h"

/// The user's spreadsheet application, as one table of functions. The start fills it once, a test puts in functions of
/// its own; where nobody did, there is no spreadsheet. The functions wait until the application has answered; a
/// Failure tells what went wrong, and then nothing is shown and nothing stays open unseen.
namespace gullymark::platform {

enum class SheetChoice {
    first,   // the first sheet, which is also the active one when the workbook is shown
    active,  // the sheet that is active as the workbook opens
};

struct Spreadsheet {
    /// Starts the application when it does not run, opens the workbook at `path` unseen, and gives what the sheet
    /// chosen holds.
    std::function<SheetContent(const std::string& path, SheetChoice sheet)> open;

    /// Puts `cells` into the workbook that `open` opened last, shows it and leaves it to the user, unsaved: a text as
    /// that text, whatever it looks like, a date with the application's own date format where the cell has no date
    /// format, nothing as a cleared cell. All else of a cell, its format too, stays; but a text that looks like a
    /// number or a formula may take on the format of a text, so that it stays one when the user edits it.
    std::function<void(const std::string& path, SheetChoice sheet, const Cells& cells)> hand_over;
};

extern Spreadsheet spreadsheet;

/// Opens the workbook for filling. Throws Failure.
[[nodiscard]] Sheet open_sheet(const std::string& path, SheetChoice sheet);

/// Shows the workbook with what was written to `filled`. Throws Failure.
void hand_over(const std::string& path, SheetChoice sheet, const Sheet& filled);

}  // namespace gullymark::platform
