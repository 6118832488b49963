#pragma once

#include <vector>

#include "platform/sheet.h"

/// Cells put together to rectangles, since the office takes a rectangle as fast as a cell.
namespace gullymark::office {

/// Rectangles that together hold every cell of `written`. None holds a cell of `kept` that is not written, so that
/// what the sheet has there stays; a cell in neither is empty and may be emptied again.
std::vector<platform::CellRange> cell_blocks(const platform::Cells& written, const platform::Cells& kept);

}  // namespace gullymark::office
