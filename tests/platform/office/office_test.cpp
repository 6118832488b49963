#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/failure.h"
#include "platform/files.h"
#include "platform/spreadsheet.h"
#include "support/test_office.h"

/// Workbooks filled by the real office, saved by the test and read back.
namespace gullymark::platform {
namespace {

using testing_support::TestOffice;
using namespace std::chrono_literals;

constexpr int number_column = 1;  // three decimals
constexpr int text_column = 2;    // formatted as text
constexpr int general_column = 3;

class RealOffice : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        office = std::make_unique<TestOffice>(GULLYMARK_OFFICE);
        office->convert({GULLYMARK_TEST_DIR "/platform/office/template.fods",
                         GULLYMARK_TEST_DIR "/platform/office/two_sheets.fods"});
    }
    static void TearDownTestSuite() { office.reset(); }

    void SetUp() override {
        target = office->path("target.xlr");
        saved = office->path("saved.xls");
        copy_file(office->path("template.xls"), target);
        use_office(office->settings(saved));
    }
    void TearDown() override {
        use_office({});
        spreadsheet = {};
    }

    /// What the saved workbook holds after `cells` were written.
    SheetContent saved_after(const Cells& cells, SheetChoice choice = SheetChoice::first) const {
        static_cast<void>(spreadsheet.open(target, choice));
        spreadsheet.hand_over(target, choice, cells);
        return spreadsheet.open(saved, choice);
    }

    static std::unique_ptr<TestOffice> office;
    std::string target;
    std::string saved;
};

std::unique_ptr<TestOffice> RealOffice::office;

bool is_text_cell(const SheetContent& content, CellPosition cell) {
    return std::ranges::any_of(content.text_cells, [&](const CellRange& range) {
        return range.first.row <= cell.row && cell.row <= range.last.row &&
               range.first.column <= cell.column && cell.column <= range.last.column;
    });
}

TEST_F(RealOffice, TheSheetTellsWhatItHoldsAndWhichCellsAreTexts) {
    const SheetContent content = spreadsheet.open(target, SheetChoice::first);
    EXPECT_THAT(content.cells,
                testing::UnorderedElementsAre(testing::Pair(CellPosition{1, 1}, CellValue("Number")),
                                              testing::Pair(CellPosition{1, 2}, CellValue("Text")),
                                              testing::Pair(CellPosition{1, 3}, CellValue("General")),
                                              testing::Pair(CellPosition{3, 1}, CellValue(7.5)),
                                              testing::Pair(CellPosition{3, 2}, CellValue("0123")),
                                              testing::Pair(CellPosition{3, 3}, CellValue("kept & äöü")),
                                              testing::Pair(CellPosition{4, 3}, CellValue("Grade"))));
    EXPECT_TRUE(is_text_cell(content, {3, text_column}));
    EXPECT_TRUE(is_text_cell(content, {20, text_column}));
    EXPECT_FALSE(is_text_cell(content, {20, number_column}));
    EXPECT_FALSE(is_text_cell(content, {20, general_column}));
}

TEST_F(RealOffice, TheFirstOfTwoSheetsIsFilledUnlessAnotherIsActive) {
    copy_file(office->path("two_sheets.xls"), target);
    for (const SheetChoice choice : {SheetChoice::first, SheetChoice::active}) {
        const SheetContent content = saved_after({{{1, 2}, 2.0}}, choice);
        EXPECT_EQ(content.cells.at({1, 1}), CellValue("first sheet"));
        EXPECT_EQ(content.cells.at({1, 2}), CellValue(2.0));
    }
}

TEST_F(RealOffice, EveryKindOfCellComesBackAsItWasWritten) {
    Cells written;
    int row = 6;
    for (const CellValue& value :
         std::initializer_list<CellValue>{0.1 + 0.2, -12.5, 0.0, 1e-12, "plain", "Ä Ω 水"}) {
        for (const int column : {number_column, text_column, general_column}) {
            written[{row, column}] = value;
        }
        ++row;
    }
    const SheetContent content = saved_after(written);
    for (const auto& [cell, value] : written) {
        EXPECT_EQ(content.cells.at(cell), value) << cell.row << ' ' << cell.column;
    }
}

TEST_F(RealOffice, ATextStaysThatTextWhateverItLooksLike) {
    Cells written;
    int row = 6;
    for (const char* text : {"=1+1", "=HYPERLINK(\"http://example.com\")", "0123", "1/2", "-", "1e5", "+5",
                             "'5", "12.5", "#N/A", "TRUE", "1,000", "50%", "10:30", "two\nlines", "a\tb"}) {
        for (const int column : {number_column, text_column, general_column}) {
            written[{row, column}] = text;
        }
        ++row;
    }
    const SheetContent content = saved_after(written);
    for (const auto& [cell, value] : written) {
        EXPECT_EQ(content.cells.at(cell), value) << cell.row << ' ' << cell.column;
    }
}

TEST_F(RealOffice, WhatIsNotWrittenStaysWithItsFormat) {
    const SheetContent before = spreadsheet.open(target, SheetChoice::first);
    const SheetContent content =
        saved_after({{{2, 2}, "above"}, {{3, 4}, "beside"}, {{4, 1}, 1.0}, {{4, 4}, 2.0}});
    for (const auto& [cell, value] : before.cells) {
        EXPECT_EQ(content.cells.at(cell), value) << cell.row << ' ' << cell.column;
    }
    EXPECT_TRUE(is_text_cell(content, {4, text_column}));
    EXPECT_FALSE(is_text_cell(content, {3, number_column}));
}

TEST_F(RealOffice, AFormulaOfTheTemplateFollowsWhatIsWritten) {
    EXPECT_EQ(saved_after({{{5, 3}, "SUMP"}}).cells.at({4, 3}), CellValue("Sag"));
}

TEST_F(RealOffice, NothingEmptiesACell) {
    const SheetContent content = saved_after({{{3, 1}, {}}, {{3, 2}, {}}, {{3, 3}, {}}});
    for (const int column : {number_column, text_column, general_column}) {
        EXPECT_FALSE(content.cells.contains({3, column})) << column;
    }
    EXPECT_TRUE(is_text_cell(content, {3, text_column}));
}

TEST_F(RealOffice, ADateIsTheNumberOfItsDay) {
    const SheetContent content =
        saved_after({{{2, 4}, Date(2024y / 2 / 29)}, {{2, 3}, Date(2024y / 2 / 29)}});
    EXPECT_EQ(content.cells.at({2, 4}), CellValue(45351.0));
    EXPECT_EQ(content.cells.at({2, 3}), CellValue(45351.0));
}

TEST_F(RealOffice, TheWorkbookOnDiskStaysTheCopyOfItsTemplate) {
    static_cast<void>(saved_after({{{6, 3}, "written"}}));
    const auto content = spreadsheet.open(target, SheetChoice::first);
    EXPECT_FALSE(content.cells.contains({6, 3}));
}

TEST_F(RealOffice, ThreeThousandRowsAreWrittenInOneGo) {
    Cells written;
    for (int row = 15; row < 3015; ++row) {
        for (int column = row % 3 == 0 ? 1 : 13; column <= (row % 3 == 0 ? 45 : 19); ++column) {
            written[{row, column}] = row + column / 100.0;
        }
    }
    const SheetContent content = saved_after(written);
    EXPECT_EQ(content.cells.at({3014, 13}), written.at({3014, 13}));
    EXPECT_EQ(content.cells.size(), written.size() + 7);
}

TEST_F(RealOffice, AWorkbookThatIsOpenAlreadyIsOpenedOnceMore) {
    OfficeSettings left_open = office->settings();
    left_open.last_questions.clear();
    use_office(left_open);
    static_cast<void>(spreadsheet.open(target, SheetChoice::first));
    spreadsheet.hand_over(target, SheetChoice::first, {{{6, 3}, "first"}});
    copy_file(office->path("template.xls"), target);
    use_office(office->settings(saved));
    EXPECT_EQ(saved_after({{{7, 3}, "second"}}).cells.at({7, 3}), CellValue("second"));
    office->end();
}

}  // namespace
}  // namespace gullymark::platform
