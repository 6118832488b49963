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
    platform::SheetFile file;
    platform::Cells cells;
    std::vector<platform::RowRange> kept_rows;

    SpreadsheetDouble() {
        platform::spreadsheet.open = [this](const platform::SheetFile& asked) {
            file = asked;
            opened.push_back(name_of(asked));
            if (fails_to_open) {
                throw platform::Failure("It does not open.");
            }
            return content;
        };
        platform::spreadsheet.hand_over = [this](const platform::SheetFile& asked,
                                                 const platform::Filling& filling) {
            if (fails_to_show || asked != file) {
                throw platform::Failure("It does not show.");
            }
            shown.push_back(name_of(asked));
            cells = filling.cells;
            kept_rows = filling.kept_rows;
        };
    }
    ~SpreadsheetDouble() { platform::spreadsheet = {}; }
    SpreadsheetDouble(const SpreadsheetDouble&) = delete;
    SpreadsheetDouble& operator=(const SpreadsheetDouble&) = delete;

    /// A workbook by its path, or one without a name by what it is made of.
    static std::string name_of(const platform::SheetFile& file) {
        return file.path.empty() ? "new from " + file.template_path : file.path;
    }

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
