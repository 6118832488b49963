#include "platform/office/cell_blocks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace gullymark::office {
namespace {

using platform::CellPosition;
using platform::Cells;

// Cells given by a drawing, the first line being row 1: 'x' is in it.
Cells drawn(const std::vector<std::string>& rows) {
    Cells cells;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (std::size_t column = 0; column < rows[row].size(); ++column) {
            if (rows[row][column] == 'x') {
                cells[{static_cast<int>(row) + 1, static_cast<int>(column) + 1}] = 1.0;
            }
        }
    }
    return cells;
}

using Corners = std::vector<int>;

std::vector<Corners> blocks(const std::vector<std::string>& written,
                            const std::vector<std::string>& kept = {}) {
    std::vector<Corners> found;
    for (const auto& [first, last] : cell_blocks(drawn(written), drawn(kept))) {
        found.push_back({first.row, first.column, last.row, last.column});
    }
    return found;
}

using testing::ElementsAre;
using testing::IsEmpty;

TEST(CellBlocks, NothingWrittenIsNoBlock) {
    EXPECT_THAT(blocks({}, {"x"}), IsEmpty());
}

TEST(CellBlocks, ATableIsOneBlock) {
    EXPECT_THAT(blocks({"", " xxx", " xxx"}), ElementsAre(Corners{2, 2, 3, 4}));
}

TEST(CellBlocks, EmptyCellsBetweenWrittenOnesAreTakenIn) {
    EXPECT_THAT(blocks({"x xxx", "  x", "x"}), ElementsAre(Corners{1, 1, 3, 5}));
}

TEST(CellBlocks, ACellThatIsKeptPartsTheRow) {
    EXPECT_THAT(blocks({"x x"}, {" x"}), ElementsAre(Corners{1, 1, 1, 1}, Corners{1, 3, 1, 3}));
}

TEST(CellBlocks, ACellThatIsKeptPartsTheRowsBelow) {
    EXPECT_THAT(blocks({"xx", "x", "xx"}, {"", " x"}),
                ElementsAre(Corners{1, 1, 1, 2}, Corners{2, 1, 2, 1}, Corners{3, 1, 3, 2}));
}

TEST(CellBlocks, AWrittenCellIsNotKept) {
    EXPECT_THAT(blocks({"xx"}, {"xx"}), ElementsAre(Corners{1, 1, 1, 2}));
}

TEST(CellBlocks, AnEmptyRowPartsTheBlocks) {
    EXPECT_THAT(blocks({"x", "", "x"}), ElementsAre(Corners{1, 1, 1, 1}, Corners{3, 1, 3, 1}));
}

TEST(CellBlocks, WhatIsKeptIsInNoBlockAndWhatIsWrittenInOne) {
    const std::vector<std::string> written = {"x x x", "xx xx", "  x", "xxxxx", "x   x"};
    const std::vector<std::string> kept = {" x", "  x", "x", "", "  x"};
    const auto covered = [&](const CellPosition& cell) {
        int count = 0;
        for (const auto& [first, last] : cell_blocks(drawn(written), drawn(kept))) {
            count += static_cast<int>(first.row <= cell.row && cell.row <= last.row &&
                                      first.column <= cell.column && cell.column <= last.column);
        }
        return count;
    };
    for (const auto& [cell, value] : drawn(written)) {
        EXPECT_GE(covered(cell), 1) << cell.row << ' ' << cell.column;
    }
    for (const auto& [cell, value] : drawn(kept)) {
        EXPECT_EQ(covered(cell), 0) << cell.row << ' ' << cell.column;
    }
}

}  // namespace
}  // namespace gullymark::office
