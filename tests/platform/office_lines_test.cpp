#include "platform/office_lines.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/failure_text.h"

namespace gullymark::platform {
namespace {

using testing_support::failure_text;
using namespace std::chrono_literals;

std::vector<std::string> there_and_back(const std::vector<std::string>& fields) {
    const std::string line = join_line(fields);
    return split_line(std::string_view(line).substr(0, line.size() - 1));
}

TEST(OfficeLines, FieldsArePartedByTabsAndTheLineHasAnEnd) {
    EXPECT_EQ(join_line({"text", "3", "4", "a b"}), "text\t3\t4\ta b\n");
    EXPECT_EQ(join_line({"show"}), "show\n");
}

TEST(OfficeLines, NothingInAFieldPartsOrEndsTheLine) {
    EXPECT_EQ(join_line({"a\tb\nc\rd\\e"}), "a\\tb\\nc\\rd\\\\e\n");
}

TEST(OfficeLines, EveryFieldComesBackAsItWas) {
    const std::vector<std::vector<std::string>> rows = {
        {""}, {"", ""}, {"a", "", "b"}, {"\\", "\t", "\n\n", "\r"}, {"\\t", "\\\\n"}, {"ÄÖ 1/2", "=1+1"},
    };
    for (const auto& fields : rows) {
        EXPECT_EQ(there_and_back(fields), fields);
    }
}

TEST(OfficeLines, ABackslashBeforeAnotherCharacterStandsForItself) {
    EXPECT_EQ(split_line("\\x\\"), std::vector<std::string>{"\\x\\"});
}

TEST(OfficeLines, ASheetComesBackAsItWas) {
    SheetContent content;
    content.cells[{1, 1}] = 0.1 + 0.2;
    content.cells[{1, 2}] = -1e-300;
    content.cells[{2, 1}] = "0123\n\t";
    content.cells[{3, 256}] = Date(2024y / 2 / 29);
    content.cells[{65536, 1}] = std::monostate();
    content.text_cells.push_back({{1, 2}, {3, 4}});

    SheetContent read;
    const std::string written = content_lines(content);
    for (std::string_view lines = written; !lines.empty(); lines.remove_prefix(lines.find('\n') + 1)) {
        EXPECT_TRUE(read_content_line(split_line(lines.substr(0, lines.find('\n'))), read));
    }
    EXPECT_EQ(read.cells, content.cells);
    ASSERT_EQ(read.text_cells.size(), 1U);
    EXPECT_EQ(read.text_cells.front().first, (CellPosition{1, 2}));
    EXPECT_EQ(read.text_cells.front().last, (CellPosition{3, 4}));
}

TEST(OfficeLines, AnInfiniteNumberHasNoLine) {
    Cells cells;
    cells[{1, 1}] = std::numeric_limits<double>::infinity();
    EXPECT_EQ(cell_lines(cells), "");
}

TEST(OfficeLines, AnotherLineIsNoCell) {
    SheetContent content;
    EXPECT_FALSE(read_content_line({"opened"}, content));
    EXPECT_FALSE(read_content_line({""}, content));
}

TEST(OfficeLines, ACellThatCannotBeReadIsAFailure) {
    SheetContent content;
    EXPECT_EQ(failure_text([&] { read_content_line({"text", "1"}, content); }), "A field is missing: text");
    EXPECT_EQ(failure_text([&] {
                  read_content_line({"text", "1", "b", ""}, content);
              }),
              "No whole number: b");
    EXPECT_EQ(failure_text([&] {
                  read_content_line({"number", "1", "2", "inf"}, content);
              }),
              "No number: inf");
}

}  // namespace
}  // namespace gullymark::platform
