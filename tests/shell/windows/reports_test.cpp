#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QTableView>

#include "platform/spreadsheet.h"
#include "shell/new_road.h"

/// The two report commands, from the key to the small program that reaches the spreadsheet. A script plays that.
namespace gullymark::shell {
namespace {

using namespace testing_support;  // NOLINT(google-build-using-namespace): the user of the whole file
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::string report_template(const std::string& name) {
    return std::string(GULLYMARK_SOURCE_DIR) + "/resources/reports/" + name;
}

/// A project with one saved inlet, and the program's folder with both templates.
struct RoadToPrint : NewRoad {
    std::string said = folder.path("said");

    RoadToPrint() {
        for (const std::string name : {"INLET_REPORTAL.xlr", "INLETDESIGNFORMAL.xlr"}) {
            platform::copy_file(report_template(name), folder.path("program/" + name));
        }
        save_a_curb_inlet();
        robot.boxes.clear();
        robot.file_titles.clear();
    }
    ~RoadToPrint() {
        leave();
        platform::spreadsheet = {};
    }
    RoadToPrint(const RoadToPrint&) = delete;
    RoadToPrint& operator=(const RoadToPrint&) = delete;

    /// The small program keeps what it is told in the file `said`, and answers after a while.
    void play_office(const std::string& seconds) const {
        const std::string program = folder.path("program/gullymark-office");
        std::ofstream(program) << "#!/bin/sh\nwhile IFS= read -r line; do echo \"$line\" >>" << said
                               << "; case $line in open*) sleep " << seconds
                               << "; echo opened;; show) echo shown; esac; done\n";
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    }
};

TEST(Reports, PrintReportFillsACopyOfItsTemplateWithTheCurrentInlet) {
    RoadToPrint road;
    road.play_office("0");
    road.robot.files.emplace_back(road.folder.path("first"));
    press(workspace(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_THAT(road.robot.file_titles, ElementsAre("Enter New File Name for Inlet Report"));
    EXPECT_THAT(road.robot.boxes, IsEmpty());
    const std::string target = road.folder.path("first.xls");
    EXPECT_TRUE(read_file(target) == read_file(report_template("INLET_REPORTAL.xlr")));  // too long to show
    EXPECT_THAT(read_file(road.said), HasSubstr("open\t" + target + "\tfirst\t" + platform::program_folder() +
                                                "/INLET_REPORTAL.xlr\n"));
    EXPECT_THAT(read_file(road.said), HasSubstr("\ntext\t8\t2\tI-1\n"));
    EXPECT_THAT(read_file(road.said), HasSubstr("\ntext\t9\t2\tCurb Inlet\n"));
    EXPECT_THAT(read_file(road.said), testing::EndsWith("\nshow\n"));
}

TEST(Reports, PrintReportPrintsTheInletThatIsPickedInTheGrid) {
    RoadToPrint road;
    road.play_office("0");
    run_sql(road.folder.path("road.gmk"), "INSERT INTO INLET (INLET_NUMBER) VALUES ('I-2'), ('I-3')");
    press(workspace(), Qt::Key_F5);
    QTableView& grid = *workspace().findChild<QTableView*>("flexgrid");
    click(*grid.viewport(), grid.visualRect(grid.model()->index(1, 0)).center());
    road.robot.files.emplace_back(road.folder.path("second"));
    press(workspace(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_THAT(read_file(road.said), HasSubstr("\ntext\t8\t2\tI-2\n"));
    EXPECT_THAT(read_file(road.said), testing::Not(HasSubstr("I-1")));
}

TEST(Reports, TheDesignFormFillsACopyOfItsTemplateWithAllInlets) {
    RoadToPrint road;
    road.play_office("0");
    road.robot.files.emplace_back(road.folder.path("form"));
    choose(workspace(), "mnufile", "mnuInletDesignForm");
    EXPECT_THAT(road.robot.file_titles, ElementsAre("Enter New File Name for Inlet Design Form"));
    EXPECT_THAT(road.robot.boxes, IsEmpty());
    const std::string target = road.folder.path("form.xls");
    EXPECT_TRUE(read_file(target) == read_file(report_template("INLETDESIGNFORMAL.xlr")));
    EXPECT_THAT(read_file(road.said), HasSubstr("open\t" + target + "\tactive\t" +
                                                platform::program_folder() + "/INLETDESIGNFORMAL.xlr\n"));
    EXPECT_THAT(read_file(road.said), HasSubstr("\ntext\t15\t1\tI-1\n"));
}

TEST(Reports, WithoutAnOfficeTheCopyIsMadeAndNothingIsShown) {
    RoadToPrint road;
    road.robot.files.emplace_back(road.folder.path("first"));
    press(workspace(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(std::filesystem::exists(road.folder.path("first.xls")));
    EXPECT_THAT(road.robot.boxes, IsEmpty());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

/// Counts what a widget paints.
struct Painted : QObject {
    int times = 0;
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        times += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

TEST(Reports, WhileTheOfficeIsWaitedForTheWindowPaintsUnderTheWaitPointerAndTakesNoInput) {
    RoadToPrint road;
    road.play_office("1");
    Painted painted;
    workspace().menuBar()->installEventFilter(&painted);
    Qt::CursorShape pointer = Qt::ArrowCursor;
    // The clock runs from when the small program was reached: it has written by then.
    QTimer meanwhile;
    QObject::connect(&meanwhile, &QTimer::timeout, [&] {
        if (!std::filesystem::exists(road.said)) {
            return;
        }
        meanwhile.stop();
        painted.times = 0;
        workspace().menuBar()->update();
        pointer = QApplication::overrideCursor()->shape();
        strike_key(*workspace().windowHandle(), Qt::Key_N, Qt::ControlModifier);
        strike_key(*workspace().windowHandle(), Qt::Key_PageDown, Qt::ControlModifier);
        QTest::mouseClick(workspace().menuBar(), Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
        workspace().windowHandle()->close();
    });
    meanwhile.start(10);
    road.robot.files.emplace_back(road.folder.path("first"));
    press(workspace(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_FALSE(meanwhile.isActive());
    EXPECT_EQ(pointer, Qt::WaitCursor);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_GT(painted.times, 0);
    settle();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(mode(), "VIEW");
    EXPECT_TRUE(workspace().isVisible());
    EXPECT_THAT(read_file(road.said), testing::EndsWith("\nshow\n"));
}

}  // namespace
}  // namespace gullymark::shell
