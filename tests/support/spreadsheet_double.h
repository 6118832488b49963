#pragma once

#include <string>
#include <vector>

#include "platform/failure.h"
#include "platform/spreadsheet.h"

namespace gullymark::testing_support {

/// Stands in for the spreadsheet application while it lives: gives `content` for every workbook and keeps what was
/// handed over last.
struct SpreadsheetDouble {
    platform::SheetContent content;
    bool fails_to_open = false;
    bool fails_to_show = false;

    std::vector<std::string> opened;
    std::vector<std::string> shown;
    platform::SheetChoice sheet = platform::SheetChoice::first;
    platform::Cells cells;

    SpreadsheetDouble() {
        platform::spreadsheet.open = [this](const std::string& path, platform::SheetChoice choice) {
            opened.push_back(path);
            sheet = choice;
            if (fails_to_open) {
                throw platform::Failure("It does not open.");
            }
            return content;
        };
        platform::spreadsheet.hand_over = [this](const std::string& path, platform::SheetChoice choice,
                                                 const platform::Cells& written) {
            if (fails_to_show || choice != sheet) {
                throw platform::Failure("It does not show.");
            }
            shown.push_back(path);
            cells = written;
        };
    }
    ~SpreadsheetDouble() { platform::spreadsheet = {}; }
    SpreadsheetDouble(const SpreadsheetDouble&) = delete;
    SpreadsheetDouble& operator=(const SpreadsheetDouble&) = delete;

    /// What stands in a cell in the end.
    [[nodiscard]] platform::CellValue at(int row, int column) const {
        if (const auto written = cells.find({row, column}); written != cells.end()) {
            return written->second;
        }
        const auto held = content.cells.find({row, column});
        return held == content.cells.end() ? platform::CellValue() : held->second;
    }
};

}  // namespace gullymark::testing_support
