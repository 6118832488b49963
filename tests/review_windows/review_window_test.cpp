// The reviewer's window: opened, chosen from, sorted, and gone through by keys alone.

#include "shell/review/review_window.h"

#include <QClipboard>
#include <QMimeData>
#include <QTabWidget>

#include "review_windows/review_stage.h"

namespace gullymark::shell {
namespace {

using namespace testing_support;  // NOLINT(google-build-using-namespace): the user of the whole file
using engine::Column;
using testing::ElementsAre;
using testing::HasSubstr;

class ReviewWindowTest : public ReviewStage {
  protected:
    /// Two findings by hand: a spread over the allowable at L2, a previous inlet that is not there at R3.
    void make_faults() {
        change(1, {{Column::ALLOWABLE_SPREAD, "3.0"}});
        change(7, {{Column::PREINLET1, "X9"}, {Column::CARRYOVER1, ""}});
        update(7);
        bring_up_to_date();
        save();
    }
    [[nodiscard]] int row_of(const std::string& wanted) const {
        const auto rows = shown();
        return static_cast<int>(std::ranges::find(rows, wanted) - rows.begin());
    }
};

TEST_F(ReviewWindowTest, ARoadWithoutFaultsSaysSo) {
    open();
    EXPECT_EQ(title(), "road.gmk - 0 findings - GullymarkAL Review");
    EXPECT_EQ(text("counts"), "0 findings on 10 inlets: 0 wrong, 0 beyond, 0 doubtful");
    EXPECT_EQ(text("project"), "Mill Road  \u00b7  P-1  \u00b7  Mobile  \u00b7  Alabama  \u00b7  R. Vane");
    EXPECT_EQ(find<QTextBrowser>("finding").toPlainText().toStdString(), "Nothing was found.");
}

TEST_F(ReviewWindowTest, TheFirstInletIsShownWhenAProjectOpens) {
    open();
    EXPECT_EQ(text("inlet_title"), "Inlet L1: Curb Inlet, CONTINUOUS GRADE");
    EXPECT_EQ(find<QTextBrowser>("inlet_findings").toPlainText().toStdString(),
              "Nothing was found at this inlet.");
}

TEST_F(ReviewWindowTest, AFindingThatIsPickedShowsItsInletAndWhatToDo) {
    make_faults();
    open();
    const int row = row_of("Beyond L2");
    ASSERT_LT(row, static_cast<int>(shown().size()));
    findings().setCurrentIndex(findings().model()->index(row, 0));
    EXPECT_EQ(text("inlet_title"), "Inlet L2: Curb Inlet, CONTINUOUS GRADE");
    EXPECT_THAT(find<QTextBrowser>("finding").toPlainText().toStdString(), HasSubstr("Beyond, Inlet L2: "));
    EXPECT_THAT(find<QTextBrowser>("inlet_findings").toPlainText().toStdString(), HasSubstr("allowable"));
}

TEST_F(ReviewWindowTest, FindingsAreChosenByATextAndBySeverity) {
    make_faults();
    open();
    const auto all = shown();
    press(*window, Qt::Key_F, Qt::ControlModifier);
    type(*window, "x9");
    ASSERT_FALSE(shown().empty());
    for (const auto& row : shown()) {
        EXPECT_TRUE(row.ends_with("R3")) << row;
    }
    EXPECT_EQ(text("shown_count"),
              std::to_string(shown().size()) + " of " + std::to_string(all.size()) + " shown");
    press(*window, Qt::Key_Escape);
    EXPECT_EQ(shown(), all);
    click(find("severity_wrong"), {8, find("severity_wrong").height() / 2});
    for (const auto& row : shown()) {
        EXPECT_FALSE(row.starts_with("Wrong")) << row;
    }
}

TEST_F(ReviewWindowTest, FindingsAreSortedBySeverityAndAlongTheRoad) {
    make_faults();
    open();
    const auto by_severity = shown();
    EXPECT_TRUE(by_severity.front().starts_with("Wrong"));
    window->findChild<QAction*>("along_road")->trigger();
    EXPECT_EQ(shown().front(), "Beyond L2");
    window->findChild<QAction*>("by_severity")->trigger();
    EXPECT_EQ(shown(), by_severity);
}

TEST_F(ReviewWindowTest, KeysGoThroughTheInletsAndTheirFindingsFollow) {
    make_faults();
    open();
    press(*window, Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(text("inlet_title"), "Inlet L2: Curb Inlet, CONTINUOUS GRADE");
    EXPECT_EQ(findings().currentIndex().row(), row_of("Beyond L2"));
    press(*window, Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(text("inlet_title"), "Inlet L3: Curb Inlet, CONTINUOUS GRADE");
    EXPECT_FALSE(findings().currentIndex().isValid());
    press(*window, Qt::Key_PageUp, Qt::ControlModifier);
    press(*window, Qt::Key_Left, Qt::AltModifier);
    press(*window, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(text("inlet_title"), "Inlet L1: Curb Inlet, CONTINUOUS GRADE");
}

TEST_F(ReviewWindowTest, RowsAreCopiedWithTheirHeadings) {
    make_faults();
    open();
    findings().setFocus();
    press(*window, Qt::Key_Home, Qt::ControlModifier);
    press(*window, Qt::Key_C, Qt::ControlModifier);
    const auto copied = QGuiApplication::clipboard()->text().toStdString();
    EXPECT_TRUE(copied.starts_with("Severity\tInlet\tFinding\nWrong\t")) << copied;
    EXPECT_EQ(std::ranges::count(copied, '\n'), 2) << copied;
}

TEST_F(ReviewWindowTest, AFileIsOpenedByItsDialogAndByADrop) {
    Robot robot;
    robot.files.emplace_back(path);
    press(*window, Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(title(), "road.gmk - 0 findings - GullymarkAL Review");
    const std::string other = folder.path("other road.gmk");
    make_faults();
    std::filesystem::copy_file(path, other);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(other))});
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QApplication::sendEvent(window.get(), &drop);
    EXPECT_TRUE(title().starts_with("other road.gmk - ")) << title();
}

TEST_F(ReviewWindowTest, AFileThatCannotBeReadIsToldAndWhatWasOpenStays) {
    Robot robot;
    open();
    window->open(folder.path("missing.gmk"));
    ASSERT_EQ(robot.boxes.size(), 1U);
    EXPECT_EQ(robot.boxes[0].text,
              "The project cannot be read: unable to open database file - " + folder.path("missing.gmk"));
    EXPECT_EQ(robot.boxes[0].kind, platform::BoxKind::warning);
    EXPECT_EQ(title(), "road.gmk - 0 findings - GullymarkAL Review");
}

TEST_F(ReviewWindowTest, AboutTellsWhatTheProgramDoes) {
    Robot robot;
    window->findChild<QAction*>("about")->trigger();
    ASSERT_EQ(robot.boxes.size(), 1U);
    EXPECT_EQ(robot.boxes[0].text,
              "GullymarkAL Review reads a project of GullymarkAL, solves its inlets anew and tells what is "
              "wrong, beyond what "
              "is allowed, or doubtful. It never writes to the project.");
}

TEST_F(ReviewWindowTest, AnEmptyProjectHasNoInlets) {
    project.inlets.clear();
    save();
    open();
    EXPECT_EQ(title(), "road.gmk - 0 findings - GullymarkAL Review");
    EXPECT_EQ(text("inlet_title"), "No inlet");
    press(*window, Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(text("inlet_title"), "No inlet");
}

TEST_F(ReviewWindowTest, ABypassThatNoInletTakesIsToldAboveTheLimitOnly) {
    change(5, {{Column::PREINLET1, ""}});
    change(6, {{Column::PREINLET1, ""}});
    bring_up_to_date();
    save();
    open();
    const std::string bypass = stored(5, Column::QCARRY);
    const auto untaken = [this] { return std::ranges::count(shown(), "Wrong R1"); };
    ASSERT_EQ(untaken(), 1);
    auto& limit = find<QLineEdit>("bypass_limit");
    EXPECT_EQ(limit.text(), "0");
    const auto type_limit = [&](const std::string& text) {
        press(*window, Qt::Key_M, Qt::AltModifier);
        ASSERT_TRUE(limit.hasFocus());
        press(*window, Qt::Key_A, Qt::ControlModifier);
        type(*window, text);
        press(*window, Qt::Key_Return);
    };
    type_limit(bypass);
    EXPECT_EQ(untaken(), 0);
    for (const char* none : {"-1", "much", ""}) {
        press(*window, Qt::Key_M, Qt::AltModifier);
        press(*window, Qt::Key_A, Qt::ControlModifier);
        press(*window, Qt::Key_Delete);
        type(*window, none);
        press(*window, Qt::Key_Tab);
        EXPECT_EQ(limit.text().toStdString(), bypass);
        EXPECT_EQ(untaken(), 0);
    }
    type_limit("0");
    EXPECT_EQ(untaken(), 1);
}

TEST_F(ReviewWindowTest, ALimitThatIsTypedHoldsForTheNextProject) {
    auto& limit = find<QLineEdit>("bypass_limit");
    limit.setFocus();
    press(*window, Qt::Key_A, Qt::ControlModifier);
    type(*window, "100");
    press(*window, Qt::Key_Return);
    change(6, {{Column::PREINLET1, ""}});
    bring_up_to_date();
    save();
    open();
    EXPECT_THAT(shown(), testing::Not(testing::Contains("Wrong R1")));
}

}  // namespace
}  // namespace gullymark::shell
