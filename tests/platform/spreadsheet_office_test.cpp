#include "platform/spreadsheet_office.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "platform/outside.h"
#include "platform/spreadsheet.h"
#include "support/failure_text.h"
#include "support/outside_double.h"

namespace gullymark::platform {
namespace {

using testing_support::failure_text;
using namespace std::chrono_literals;

// The small program is played by a shell script.
class SpreadsheetOffice : public testing::Test {
  protected:
    void SetUp() override {
        std::string name = (std::filesystem::temp_directory_path() / "gullymark_helper_XXXXXX").string();
        ASSERT_NE(mkdtemp(name.data()), nullptr);
        folder_ = name;
    }
    void TearDown() override {
        use_office({});
        spreadsheet = {};
        outside = {};
        std::filesystem::remove_all(folder_);
    }

    void play(const std::string& script, std::chrono::milliseconds limit = 10s) const {
        const std::string program = folder_ / "helper";
        std::ofstream(program) << "#!/bin/sh\n" << script << '\n';
        chmod(program.c_str(), S_IRWXU);
        use_office({.program = program, .limit = limit});
    }

    static std::string failure_of_opening() {
        return failure_text([] { static_cast<void>(open_sheet({.path = "a.xls"})); });
    }

    std::filesystem::path folder_;
};

TEST_F(SpreadsheetOffice, WithoutTheSmallProgramThereIsNoSpreadsheet) {
    use_office({.program = folder_ / "missing"});
    EXPECT_EQ(failure_of_opening(), "No spreadsheet program can be reached.");
}

TEST_F(SpreadsheetOffice, ASmallProgramThatCannotRunIsNoSpreadsheet) {
    const std::string program = folder_ / "helper";
    std::ofstream(program) << "no program";
    use_office({.program = program});
    EXPECT_EQ(failure_of_opening(), "No spreadsheet program can be reached.");
}

TEST_F(SpreadsheetOffice, OneThatEndsAtOnceIsAFailure) {
    play("exit 127");
    EXPECT_EQ(failure_of_opening(), "The spreadsheet program has ended.");
}

TEST_F(SpreadsheetOffice, OneThatIsNotUnderstoodIsAFailure) {
    play("echo hello; cat >/dev/null");
    EXPECT_EQ(failure_of_opening(), "The spreadsheet program is not understood.");
}

TEST_F(SpreadsheetOffice, OneThatNeverAnswersIsAFailureSoonAfterTheLimit) {
    play("exec cat >/dev/null", 10ms);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(failure_of_opening(), "The spreadsheet program does not answer.");
    EXPECT_LT(std::chrono::steady_clock::now() - start, 20s);
}

TEST_F(SpreadsheetOffice, WhatItFailedWithIsTheFailure) {
    play("printf 'failed\\tThere is no file.\\n'; cat >/dev/null");
    EXPECT_EQ(failure_of_opening(), "There is no file.");
}

TEST_F(SpreadsheetOffice, TheSheetChosenIsAskedForAndItsContentComes) {
    play(R"(read limit; read open; printf 'text\t1\t2\t%s\nformatted_as_text\t3\t3\t4\t4\nopened\n' "$open"
cat >/dev/null)");
    Sheet sheet = open_sheet({.path = "a.xls", .sheet = SheetChoice::active});
    EXPECT_EQ(sheet.read({1, 2}), CellValue("open"));
    sheet.write({4, 4}, "12");
    EXPECT_EQ(sheet.read({4, 4}), CellValue("12"));
}

TEST_F(SpreadsheetOffice, TheCellsWrittenAreHandedOverAndThenShown) {
    const std::string said = folder_ / "said";
    play("while IFS= read -r line; do echo \"$line\" >>" + said +
         "; case $line in open*) echo opened;; show) echo shown; esac; done");
    Sheet sheet = open_sheet({.path = "a.xls"});
    sheet.write({2, 1}, 0.1);
    sheet.write({1, 2}, "1/2");
    sheet.write({1, 3}, "");
    hand_over({.path = "a.xls"}, sheet);
    EXPECT_EQ(testing_support::read_file(said),
              "limit\t10\nopen\ta.xls\tfirst\ntext\t1\t2\t1/2\nempty\t1\t3\nnumber\t2\t1\t0.1\nshow\n");
}

TEST_F(SpreadsheetOffice, TheTemplateAndHowTheSheetIsShownAreHandedOver) {
    const std::string said = folder_ / "said";
    play("while IFS= read -r line; do echo \"$line\" >>" + said +
         "; case $line in open*) echo opened;; show) echo shown; esac; done");
    const SheetFile file{.path = "", .template_path = "a.xlr", .frozen_rows = 14, .frozen_columns = 2};
    Sheet sheet = open_sheet(file);
    sheet.keep_together({15, 17});
    hand_over(file, sheet);
    EXPECT_EQ(testing_support::read_file(said),
              "limit\t10\nopen\t\tfirst\ta.xlr\nkeep\t15\t17\nfreeze\t14\t2\nshow\n");
}

TEST_F(SpreadsheetOffice, NoDeadProcessStaysOnceTheWorkbookIsShown) {
    play(
        "while IFS= read -r line; do case $line in open*) echo opened;; show) echo shown; esac; done; sleep "
        "0.2");
    Sheet sheet = open_sheet({.path = "a.xls"});
    hand_over({.path = "a.xls"}, sheet);
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "there is a child process";
    EXPECT_EQ(errno, ECHILD);
}

TEST_F(SpreadsheetOffice, NothingCanBeHandedOverThatIsNotOpen) {
    play("echo opened; echo shown; cat >/dev/null");
    Sheet sheet = open_sheet({.path = "a.xls"});
    EXPECT_EQ(failure_text([&] { hand_over({.path = "b.xls"}, sheet); }), "The workbook is not open.");
    hand_over({.path = "a.xls"}, sheet);
    EXPECT_EQ(failure_text([&] { hand_over({.path = "a.xls"}, sheet); }), "The workbook is not open.");
}

TEST_F(SpreadsheetOffice, WindowsArePaintedWhileItWaits) {
    play("sleep 0.3; echo opened; cat >/dev/null");
    int painted = 0;
    outside.keep_painting = [&] { ++painted; };
    static_cast<void>(open_sheet({.path = "a.xls"}));
    EXPECT_GT(painted, 3);
}

TEST_F(SpreadsheetOffice, AFailureWhileHandingOverEndsTheTalk) {
    play("echo opened; sleep 0.1");
    Sheet sheet = open_sheet({.path = "a.xls"});
    sheet.write({1, 1}, std::string(1000000, 'x'));
    EXPECT_EQ(failure_text([&] { hand_over({.path = "a.xls"}, sheet); }),
              "The spreadsheet program has ended.");
}

}  // namespace
}  // namespace gullymark::platform
