#include "platform/sheet.h"

#include <gtest/gtest.h>

#include "platform/failure.h"
#include "platform/spreadsheet.h"

namespace gullymark::platform {
namespace {

using namespace std::string_literals;

constexpr CellPosition a1{1, 1};
const CellValue nothing;

CellValue after_writing(std::string_view text, SheetContent content = {}) {
    Sheet sheet(std::move(content));
    sheet.write(a1, text);
    return sheet.read(a1);
}

const SheetContent text_everywhere{.text_cells = {{{1, 1}, {9, 9}}}};

TEST(Sheet, APlainDecimalNumberBecomesANumber) {
    const std::vector<std::pair<std::string_view, double>> rows = {
        {"0", 0.0},     {"12", 12.0}, {"-12", -12.0}, {"0.5", 0.5},   {"-0.5", -0.5},
        {".5", 0.5},    {"3.", 3.0},  {" 7 ", 7.0},   {"1.500", 1.5}, {"123456789012345", 123456789012345.0},
        {"0.000", 0.0},
    };
    for (const auto& [text, number] : rows) {
        EXPECT_EQ(after_writing(text), CellValue(number)) << text;
    }
}

TEST(Sheet, EveryOtherTextStaysTheTextThatItIs) {
    for (const std::string text : {"=1+1",  "=HYPERLINK(\"http://example.com\")",
                                   "0123",  "00",
                                   "00.5",  "1/2",
                                   "1-2",   "-",
                                   ".",     "-.",
                                   "1e5",   "+5",
                                   "1,000", "12+00",
                                   "12 34", "--1",
                                   "1.2.3", "'5",
                                   " ",     "YES",
                                   "TRUE",  "$5",
                                   "5%",    "1234567890123456",
                                   "٣"}) {
        EXPECT_EQ(after_writing(text), CellValue(text)) << text;
    }
}

TEST(Sheet, ACellOfTextFormatKeepsEveryText) {
    EXPECT_EQ(after_writing("12", text_everywhere), CellValue("12"s));
    EXPECT_EQ(after_writing("1.50", text_everywhere), CellValue("1.50"s));
}

TEST(Sheet, ATextFormatEndsWithItsRange) {
    Sheet sheet({.text_cells = {{{2, 2}, {3, 4}}, {{9, 9}, {9, 9}}}});
    for (const CellPosition cell : {CellPosition{2, 2}, {2, 4}, {3, 2}, {3, 4}, {9, 9}}) {
        sheet.write(cell, "1");
        EXPECT_EQ(sheet.read(cell), CellValue("1"s)) << cell.row << ',' << cell.column;
    }
    for (const CellPosition cell : {CellPosition{1, 2}, {2, 1}, {4, 4}, {3, 5}, {9, 8}}) {
        sheet.write(cell, "1");
        EXPECT_EQ(sheet.read(cell), CellValue(1.0)) << cell.row << ',' << cell.column;
    }
}

TEST(Sheet, AnUnwrittenCellIsWhatTheWorkbookHolds) {
    const Sheet sheet({.cells = {{a1, "LABEL"s}, {{1, 2}, 4.5}}});
    EXPECT_EQ(sheet.read(a1), CellValue("LABEL"s));
    EXPECT_EQ(sheet.read({1, 2}), CellValue(4.5));
    EXPECT_EQ(sheet.read({2, 1}), nothing);
    EXPECT_TRUE(sheet.filling().cells.empty());
}

TEST(Sheet, AnEmptyTextClearsACell) {
    Sheet sheet({.cells = {{a1, "old"s}}});
    sheet.write(a1, "");
    EXPECT_EQ(sheet.read(a1), nothing);
    EXPECT_EQ(sheet.filling().cells, (Cells{{a1, nothing}}));
}

TEST(Sheet, NumbersAndDatesAreWrittenWhateverTheFormat) {
    Sheet sheet(text_everywhere);
    const Date date{std::chrono::year(2010), std::chrono::May, std::chrono::day(7)};
    sheet.write(a1, 2.5);
    sheet.write({1, 2}, date);
    EXPECT_EQ(sheet.read(a1), CellValue(2.5));
    EXPECT_EQ(sheet.read({1, 2}), CellValue(date));
}

TEST(Sheet, ACellBeyondTheLastRowOrColumnIsAFailure) {
    Sheet sheet;
    sheet.write({65536, 256}, "x");
    for (const CellPosition cell : {CellPosition{65537, 1}, {1, 257}, {0, 1}, {1, 0}}) {
        EXPECT_THROW(sheet.write(cell, "x"), Failure);
        EXPECT_THROW(sheet.write(cell, 1.0), Failure);
    }
    EXPECT_EQ(sheet.filling().cells.size(), 1U);
}

TEST(NumberInACell, NothingIsZeroAndANumericTextCounts) {
    EXPECT_EQ(cell_number(nothing), 0.0);
    EXPECT_EQ(cell_number(2.5), 2.5);
    EXPECT_EQ(cell_number("0123"s), 123.0);
    EXPECT_EQ(cell_number("1e5"s), 1e5);
    EXPECT_THROW((void)cell_number("1/2"s), Failure);
    EXPECT_THROW((void)cell_number("1e999"s), Failure);
    EXPECT_THROW((void)cell_number(Date()), Failure);
}

TEST(TextInACell, ANumberHasUpTo15Digits) {
    EXPECT_EQ(cell_text(nothing), "");
    EXPECT_EQ(cell_text("a"s), "a");
    EXPECT_EQ(cell_text(1.5), "1.5");
    EXPECT_EQ(cell_text(0.1 + 0.2), "0.3");
}

TEST(CellOrder, NumbersCompareAsNumbersAndTextsComeBehindThem) {
    const std::vector<std::pair<CellValue, CellValue>> less = {
        {9.0, 10.0},     {"9"s, 10.0}, {9.0, "10"s},    {nothing, 0.1},
        {-0.1, nothing}, {9.0, "a"s},  {nothing, "a"s}, {"a"s, "b"s},
    };
    for (const auto& [left, right] : less) {
        EXPECT_TRUE(is_less(left, right));
        EXPECT_FALSE(is_less(right, left));
    }
    EXPECT_FALSE(is_less(nothing, nothing));
    EXPECT_FALSE(is_less(nothing, 0.0));
    EXPECT_FALSE(is_less(2.0, "2.0"s));
}

TEST(Spreadsheet, WhereNoneIsInstalledEveryCallIsAFailure) {
    spreadsheet = {};
    EXPECT_THROW((void)open_sheet({.path = "a.xls"}), Failure);
    EXPECT_THROW(hand_over({.path = "a.xls"}, Sheet()), Failure);
}

TEST(Spreadsheet, WhatWasWrittenIsHandedOver) {
    const SheetFile asked{.path = "a.xls", .sheet = SheetChoice::active};
    spreadsheet.open = [&](const SheetFile& file) {
        EXPECT_EQ(file, asked);
        return SheetContent{.cells = {{a1, "LABEL"s}}};
    };
    Filling handed_over;
    spreadsheet.hand_over = [&](const SheetFile& file, const Filling& filling) {
        EXPECT_EQ(file, asked);
        handed_over = filling;
    };
    Sheet sheet = open_sheet(asked);
    EXPECT_EQ(sheet.read(a1), CellValue("LABEL"s));
    sheet.write({2, 2}, "5");
    sheet.keep_together({2, 4});
    hand_over(asked, sheet);
    EXPECT_EQ(handed_over.cells, (Cells{{{2, 2}, 5.0}}));
    ASSERT_EQ(handed_over.kept_rows.size(), 1U);
    EXPECT_EQ(handed_over.kept_rows[0].first, 2);
    EXPECT_EQ(handed_over.kept_rows[0].last, 4);
    spreadsheet = {};
}

}  // namespace
}  // namespace gullymark::platform
