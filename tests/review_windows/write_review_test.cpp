// What leaves the reviewer's window: the book and the table, where the user chooses.

#include "shell/review/review_window.h"

#include <QAction>
#include <QPrintDialog>
#include <QPrinter>

#include "review_windows/review_stage.h"

namespace gullymark::shell {
namespace {

using namespace testing_support;  // NOLINT(google-build-using-namespace): the user of the whole file
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class WriteReviewTest : public ReviewStage {
  protected:
    [[nodiscard]] QAction& command(const char* name) const {
        return *window->findChild<QAction*>(QString::fromLatin1(name));
    }
    Robot robot;
};

/// Prints into a file, as the printer that stands for one does.
void print_into_file(QWidget& asked, const std::string& path) {
    auto& dialog = dynamic_cast<QPrintDialog&>(asked);
    dialog.printer()->setOutputFormat(QPrinter::PdfFormat);
    dialog.printer()->setOutputFileName(QString::fromStdString(path));
    dialog.done(QDialog::Accepted);
}

TEST_F(WriteReviewTest, NothingIsThereToWriteBeforeAProjectIsOpen) {
    for (const char* name : {"save_book", "save_table", "print_book"}) {
        EXPECT_FALSE(command(name).isEnabled()) << name;
    }
    open();
    for (const char* name : {"save_book", "save_table", "print_book"}) {
        EXPECT_TRUE(command(name).isEnabled()) << name;
    }
}

TEST_F(WriteReviewTest, TheBookIsSavedByItsKeysAndTakesTheExtension) {
    open();
    robot.files.emplace_back(folder.path("book"));
    press(*window, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_THAT(robot.file_titles, ElementsAre("Save Book as PDF"));
    EXPECT_THAT(read_file(folder.path("book.pdf")), StartsWith("%PDF-"));
    EXPECT_THAT(robot.boxes, IsEmpty());
}

TEST_F(WriteReviewTest, TheTableIsSavedAndAnotherFileIsReplacedOnlyAfterAYes) {
    open();
    const std::string table = folder.path("table.csv");
    write_file(table, "old");
    robot.files.emplace_back(table);
    robot.answers.push_back(QMessageBox::No);
    command("save_table").trigger();
    EXPECT_EQ(read_file(table), "old");
    robot.files.emplace_back(table);
    robot.answers.push_back(QMessageBox::Yes);
    command("save_table").trigger();
    EXPECT_THAT(read_file(table), StartsWith("Inlet,Roadway,Station,"));
    EXPECT_THAT(read_file(table), HasSubstr("\r\nL1,"));
    ASSERT_EQ(robot.boxes.size(), 2U);
    EXPECT_EQ(robot.boxes.front().text, "File Already Exists!   Overwrite?");
}

TEST_F(WriteReviewTest, TheProjectItselfIsNeverWrittenOver) {
    open();
    const std::string before = read_file(path);
    for (const char* name : {"save_book", "save_table"}) {
        robot.boxes.clear();
        robot.files.emplace_back(path);
        robot.answers.push_back(QMessageBox::Yes);
        command(name).trigger();
        ASSERT_EQ(robot.boxes.size(), 2U);
        EXPECT_THAT(robot.boxes.back().text, HasSubstr(" file was not written: "));
        EXPECT_EQ(robot.boxes.back().kind, platform::BoxKind::warning);
    }
    EXPECT_EQ(read_file(path), before);
}

TEST_F(WriteReviewTest, ACanceledDialogWritesNothing) {
    open();
    robot.files.emplace_back(std::nullopt);
    command("save_book").trigger();
    robot.files.emplace_back(std::nullopt);
    command("save_table").trigger();
    EXPECT_THAT(robot.boxes, IsEmpty());
}

TEST_F(WriteReviewTest, TheBookIsPrinted) {
    open();
    const std::string printed = folder.path("printed.pdf");
    robot.in_window.emplace_back([&printed](QWidget& dialog) { print_into_file(dialog, printed); });
    command("print_book").trigger();
    EXPECT_THAT(read_file(printed), StartsWith("%PDF-"));
    EXPECT_THAT(robot.boxes, IsEmpty());
}

TEST_F(WriteReviewTest, APrinterThatTakesNothingIsTold) {
    open();
    robot.in_window.emplace_back(
        [this](QWidget& dialog) { print_into_file(dialog, folder.path("none/printed.pdf")); });
    command("print_book").trigger();
    EXPECT_THAT(robot.boxes, ElementsAre(platform::Box{.kind = platform::BoxKind::warning,
                                                       .text = "The book was not printed."}));
}

}  // namespace
}  // namespace gullymark::shell
