#include "platform/office/cell_blocks.h"

#include <algorithm>

namespace gullymark::office {
namespace {

using platform::CellPosition;
using platform::CellRange;

CellRange united(const CellRange& a, const CellRange& b) {
    return {{std::min(a.first.row, b.first.row), std::min(a.first.column, b.first.column)},
            {std::max(a.last.row, b.last.row), std::max(a.last.column, b.last.column)}};
}

bool holds(const CellRange& range, const CellPosition& cell) {
    return range.first.row <= cell.row && cell.row <= range.last.row && range.first.column <= cell.column &&
           cell.column <= range.last.column;
}

// Where a block may not reach.
struct Kept {
    std::vector<CellPosition> cells;

    [[nodiscard]] bool touches(const CellRange& range) const {
        return std::ranges::any_of(cells, [&](const CellPosition& cell) { return holds(range, cell); });
    }
};

// Each row's cells, from left to right, as few ranges as can be.
std::vector<CellRange> runs_of_rows(const platform::Cells& written, const Kept& kept) {
    std::vector<CellRange> runs;
    for (const auto& [cell, value] : written) {
        const CellRange alone{cell, cell};
        if (!runs.empty() && runs.back().first.row == cell.row && !kept.touches(united(runs.back(), alone))) {
            runs.back() = united(runs.back(), alone);
        } else {
            runs.push_back(alone);
        }
    }
    return runs;
}

}  // namespace

std::vector<CellRange> cell_blocks(const platform::Cells& written, const platform::Cells& kept) {
    Kept unwritten;
    for (const auto& [cell, value] : kept) {
        if (!written.contains(cell)) {
            unwritten.cells.push_back(cell);
        }
    }
    std::vector<CellRange> blocks;
    for (const CellRange& run : runs_of_rows(written, unwritten)) {
        const auto above = std::ranges::find_if(blocks, [&](const CellRange& block) {
            return block.last.row + 1 >= run.first.row && !unwritten.touches(united(block, run));
        });
        if (above == blocks.end()) {
            blocks.push_back(run);
        } else {
            *above = united(*above, run);
        }
    }
    return blocks;
}

}  // namespace gullymark::office
