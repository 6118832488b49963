#include "platform/spreadsheet.h"

#include "platform/failure.h"

namespace gullymark::platform {

Spreadsheet spreadsheet;

Sheet open_sheet(const std::string& path, SheetChoice sheet) {
    if (!spreadsheet.open) {
        throw Failure("No spreadsheet program is installed.");
    }
    return Sheet(spreadsheet.open(path, sheet));
}

void hand_over(const std::string& path, SheetChoice sheet, const Sheet& filled) {
    if (!spreadsheet.hand_over) {
        throw Failure("No spreadsheet program is installed.");
    }
    spreadsheet.hand_over(path, sheet, filled.written());
}

}  // namespace gullymark::platform
