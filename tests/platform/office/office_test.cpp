#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "platform/failure.h"
#include "platform/files.h"
#include "platform/spreadsheet.h"
#include "support/outside_double.h"
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
        static_cast<void>(spreadsheet.open({.path = target, .sheet = choice}));
        spreadsheet.hand_over({.path = target, .sheet = choice}, {.cells = cells});
        return spreadsheet.open({.path = saved, .sheet = choice});
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
    const SheetContent content = spreadsheet.open({.path = target});
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
    const SheetContent before = spreadsheet.open({.path = target});
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
    const auto content = spreadsheet.open({.path = target});
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

/// The content of the first record of this kind in an .xls file, as numbers of 16 bits.
std::vector<int> numbers_of_record(const std::string& book, int kind, int length) {
    std::string head;
    for (const int number : {kind, length}) {
        head += {static_cast<char>(number & 0xff), static_cast<char>(number >> 8)};
    }
    const auto at = book.find(head);
    std::vector<int> numbers;
    for (int byte = 0; at != std::string::npos && byte < length; byte += 2) {
        const auto digit = [&](int offset) {
            return static_cast<unsigned char>(book.at(at + head.size() + static_cast<std::size_t>(offset)));
        };
        numbers.push_back(digit(byte) + digit(byte + 1) * 256);
    }
    return numbers;
}

TEST_F(RealOffice, RowsThatBelongTogetherDoNotPartAtTheEndOfAPage) {
    Filling filling;
    for (int row = 6; row < 150; row += 3) {
        filling.cells[{row, 3}] = "three rows";
        filling.cells[{row + 2, 3}] = "together";
        filling.kept_rows.push_back({row, row + 2});
    }
    static_cast<void>(spreadsheet.open({.path = target}));
    spreadsheet.hand_over({.path = target}, filling);
    int breaks = 0;
    const std::string book = testing_support::read_file(saved);
    for (int count = 1; count < 5; ++count) {
        const auto numbers = numbers_of_record(book, 0x001b, 2 + 6 * count);
        if (!numbers.empty() && numbers[0] == count) {
            for (breaks = 0; breaks < count; ++breaks) {
                EXPECT_EQ((numbers.at(static_cast<std::size_t>(1 + 3 * breaks)) + 1) % 3, 0);  // 6, 9, ...
            }
        }
    }
    EXPECT_GT(breaks, 0) << "no page would have parted three rows";
}

TEST_F(RealOffice, TheHeadingOfATableStaysInSight) {
    const SheetFile file{.path = target, .frozen_rows = 5, .frozen_columns = 2};
    static_cast<void>(spreadsheet.open(file));
    spreadsheet.hand_over(file, {.cells = {{{6, 1}, 1.5}}});
    const auto pane = numbers_of_record(testing_support::read_file(saved), 0x0041, 10);
    ASSERT_FALSE(pane.empty());
    EXPECT_EQ(pane[0], 2);
    EXPECT_EQ(pane[1], 5);
}

// What cannot be opened under its name.

struct UnnamedWorkbook : RealOffice {
    SheetFile file{.path = target, .template_path = office->path("template.xls")};

    void SetUp() override {
        RealOffice::SetUp();
        file = {.path = target, .template_path = office->path("template.xls")};
        copy_file(office->path("two_sheets.xls"),
                  target);  // something else, so that it is told from the template
    }
    void TearDown() override {
        std::filesystem::remove(lock());
        RealOffice::TearDown();
    }
    [[nodiscard]] std::string lock() const { return office->path(".~lock.target.xlr#"); }

    /// Fills and saves a copy; true when the workbook was made from the template and has no name to be saved under.
    [[nodiscard]] bool is_filled_without_a_name() const {
        OfficeSettings settings = office->settings(saved);
        settings.last_questions = {{"save", saved}, {"keep_name"}, {"close"}};
        use_office(settings);
        const std::string before = testing_support::read_file(target);
        static_cast<void>(spreadsheet.open(file));
        bool refused = false;
        try {
            spreadsheet.hand_over(file, {.cells = {{{7, 3}, "filled"}}});
        } catch (const Failure&) {
            refused = true;
        }
        use_office(office->settings());
        const SheetContent content = spreadsheet.open({.path = saved});
        EXPECT_EQ(content.cells.at({7, 3}), CellValue("filled"));
        return refused && content.cells.at({1, 1}) == CellValue("Number") &&
               testing_support::read_file(target) == before;
    }
};

TEST_F(UnnamedWorkbook, IsNotMadeOfAFileThatCanBeOpened) {
    EXPECT_FALSE(is_filled_without_a_name());
}

TEST_F(UnnamedWorkbook, TakesThePlaceOfOneThatAnotherUserHasOpen) {
    std::ofstream(lock()) << ",Someone,elsewhere,20.11.2025 10:00,file:///elsewhere;";
    EXPECT_TRUE(is_filled_without_a_name());
}

TEST_F(UnnamedWorkbook, TakesThePlaceOfNone) {
    file.path = "";
    EXPECT_TRUE(is_filled_without_a_name());
    file.path = office->path("gone.xls");
    EXPECT_TRUE(is_filled_without_a_name());
}

TEST_F(UnnamedWorkbook, TakesThePlaceOfOneThatIsOpenAlready) {
    OfficeSettings left_open = office->settings();
    left_open.last_questions.clear();
    use_office(left_open);
    static_cast<void>(spreadsheet.open({.path = target}));
    spreadsheet.hand_over({.path = target}, {.cells = {{{6, 3}, "first"}}});
    EXPECT_TRUE(is_filled_without_a_name());
    office->end();
}

}  // namespace
}  // namespace gullymark::platform
