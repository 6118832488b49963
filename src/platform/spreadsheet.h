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

/// A workbook to be filled, and how it is shown.
struct SheetFile {
    std::string path;  // opened under its name
    SheetChoice sheet = SheetChoice::first;
    /// A new workbook of the same content, without a name, takes its place where `path` is empty or cannot be opened
    /// under its name, for it is open already or another user has it open. Empty: that is a failure.
    std::string template_path;
    /// Rows and columns that stay in sight while the rest scrolls, 0 for none.
    int frozen_rows = 0;
    int frozen_columns = 0;

    bool operator==(const SheetFile&) const = default;
};

struct Spreadsheet {
    /// Starts the application when it does not run, opens the workbook unseen, and gives what the sheet chosen holds.
    std::function<SheetContent(const SheetFile& file)> open;

    /// Puts the cells into the workbook that `open` opened last, shows it and leaves it to the user, unsaved: a text as
    /// that text, whatever it looks like, a date with the application's own date format where the cell has no date
    /// format, nothing as a cleared cell. All else of a cell, its format too, stays; but a text that looks like a
    /// number or a formula may take on the format of a text, so that it stays one when the user edits it.
    std::function<void(const SheetFile& file, const Filling& filling)> hand_over;
};

extern Spreadsheet spreadsheet;

/// Opens the workbook for filling. Throws Failure.
[[nodiscard]] Sheet open_sheet(const SheetFile& file);

/// Shows the workbook with what was written to `filled`. Throws Failure.
void hand_over(const SheetFile& file, const Sheet& filled);

}  // namespace gullymark::platform
