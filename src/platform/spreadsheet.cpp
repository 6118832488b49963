#include "platform/spreadsheet.h"

#include "platform/failure.h"

namespace gullymark::platform {

Spreadsheet spreadsheet;

Sheet open_sheet(const SheetFile& file) {
    if (!spreadsheet.open) {
        throw Failure("No spreadsheet program is installed.");
    }
    return Sheet(spreadsheet.open(file));
}

void hand_over(const SheetFile& file, const Sheet& filled) {
    if (!spreadsheet.hand_over) {
        throw Failure("No spreadsheet program is installed.");
    }
    spreadsheet.hand_over(file, filled.filling());
}

}  // namespace gullymark::platform
