#pragma once

#include <vector>

#include "platform/office/workbook.h"
#include "platform/sheet.h"

/// How the sheet that was filled looks on the screen and on paper. All failures are exceptions of the office itself.
namespace gullymark::office {

/// A format with an optional last digit ("0.000?") leaves a blank for it that is narrower than a digit. In each column of
/// a table below `heading_rows` all numbers of such a format get the digit, where one of them has it, or none of them.
void align_decimals(const Workbook& workbook, int heading_rows, const platform::Cells& filled);

/// Ends pages earlier where one would end between rows that belong together. Rows count from 1.
void keep_rows_together(const Workbook& workbook, const std::vector<platform::RowRange>& kept_rows);

/// So many rows above and columns on the left stay in sight while the rest scrolls. For a workbook that is shown.
void freeze(const Workbook& workbook, int rows, int columns);

}  // namespace gullymark::office
