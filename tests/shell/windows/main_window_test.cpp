#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QFileInfo>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QSettings>

#include "shell/running_program.h"
#include "shell/windows/splash.h"

namespace gullymark::shell {
namespace {

using platform::Box;
using platform::BoxKind;
using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::activate;
using testing_support::choose;
using testing_support::press;
using testing_support::RunningProgram;
using testing_support::settle;

std::string text_of(const QAction& action) {
    return action.isSeparator() ? "-" : action.text().toStdString();
}

std::vector<std::string> texts_of(const QMenu& menu) {
    std::vector<std::string> texts;
    for (const QAction* action : menu.actions()) {
        texts.push_back(text_of(*action));
    }
    return texts;
}

TEST(MainWindow, HasItsCaptionPictureAndMenu) {
    const RunningProgram program;
    EXPECT_EQ(RunningProgram::main().windowTitle(), "Gullymark");
    const auto* bar = RunningProgram::main().menuBar();
    EXPECT_EQ(text_of(*bar->actions().at(0)), "&File");
    EXPECT_EQ(text_of(*bar->actions().at(1)), "&Help");
    EXPECT_THAT(texts_of(*bar->findChild<QMenu*>("mnuFile")),
                ElementsAre("&Create New Project", "&Open Project", "-", "&Update Project Details",
                            "Design Inlet", "-", "Close Project", "-", "E&xit"));
    EXPECT_THAT(texts_of(*bar->findChild<QMenu*>("mnuHelp")), ElementsAre("&Help", "About TarnelBrook"));
    const QImage picture = RunningProgram::main().findChild<QWidget*>("fixed_picture")->grab().toImage();
    EXPECT_NE(picture.pixel(picture.rect().center()), picture.pixel(3, 3));
}

TEST(MainWindow, StartsWithCloseAloneSwitchedOff) {
    const RunningProgram program;
    const auto enabled = [](const char* name) {
        return RunningProgram::main().findChild<QAction*>(name)->isEnabled();
    };
    EXPECT_TRUE(enabled("mnucreateProj"));
    EXPECT_TRUE(enabled("mnuopenProj"));
    EXPECT_TRUE(enabled("mnuupdateProj"));
    EXPECT_TRUE(enabled("mnuInlet"));
    EXPECT_FALSE(enabled("mnucloseProj"));
    EXPECT_TRUE(enabled("mnuExit"));
}

TEST(MainWindow, ShowsDateAndTime) {
    const RunningProgram program;
    const auto today = QLocale().toString(QDate::currentDate(), QLocale::ShortFormat).toStdString();
    EXPECT_EQ(RunningProgram::panel(RunningProgram::main(), "StatusBar_date"), today);
    EXPECT_THAT(RunningProgram::panel(RunningProgram::main(), "StatusBar_time"),
                testing::ContainsRegex("[0-9]+:[0-9]+"));
}

TEST(MainWindow, AsksForAProjectBeforeInletsAreDesigned) {
    RunningProgram program;
    choose(RunningProgram::main(), "mnuFile", "mnuInlet");
    EXPECT_THAT(program.robot.boxes,
                ElementsAre(Box{BoxKind::warning, "Please Select Current Working Project!", "Tarnel Brook"}));
    EXPECT_TRUE(RunningProgram::main().isVisible());
}

TEST(MainWindow, CreatesAProjectByWayOfTheDetailsForm) {
    RunningProgram program;
    program.create_project("mill.gmk", [&](QWidget& form) {
        EXPECT_EQ(form.objectName(), "frmProject");
        EXPECT_EQ(RunningProgram::panel(RunningProgram::main(), "StatusBar_panel1"), "Create Project");
        choose(RunningProgram::details(), "mnuProjFile", "mnuprojexit");
    });
    EXPECT_THAT(program.robot.file_titles, ElementsAre("Enter New Project Database File Name"));
    EXPECT_THAT(program.robot.boxes,
                ElementsAre(Box{BoxKind::information,
                                "New Project Database has been created.  Please Add Project Details",
                                "Tarnel Brook"}));
    EXPECT_EQ(RunningProgram::panel(RunningProgram::main(), "StatusBar_panel1"),
              "Project Database - mill.gmk");
    EXPECT_FALSE(RunningProgram::details().isVisible());
    EXPECT_FALSE(RunningProgram::main().findChild<QAction*>("mnucreateProj")->isEnabled());
    EXPECT_TRUE(RunningProgram::main().findChild<QAction*>("mnucloseProj")->isEnabled());
}

TEST(MainWindow, KeepsAFileThatIsNotToBeOverwritten) {
    RunningProgram program;
    testing_support::write_file(program.folder.path("old.gmk"), "precious");
    program.robot.files.emplace_back(program.folder.path("old.gmk"));
    program.robot.answers = {QMessageBox::No};
    choose(RunningProgram::main(), "mnuFile", "mnucreateProj");
    EXPECT_THAT(program.robot.boxes, ElementsAre(Box{BoxKind::warning_question,
                                                     "File Already Exists!   Overwrite?", "GullymarkAL"}));
    EXPECT_EQ(testing_support::read_file(program.folder.path("old.gmk")), "precious");
}

TEST(MainWindow, APathTypedWithAQuoteGoesWhereItSays) {
    for (const auto& [typed, file] : {std::pair("the \"old\" road", "the \"old\" road.gmk"),
                                      {"\"half", "\"half.gmk"},
                                      {"6\" pipe.gmk", "6\" pipe.gmk"}}) {
        RunningProgram program;
        program.create_project(typed, [](QWidget& form) {
            activate(form);
            testing_support::type(form, "P-1");
            press(form, Qt::Key_Tab);
            testing_support::type(form, "Oak Street");
            press(form, Qt::Key_S, Qt::ControlModifier);
        });
        EXPECT_TRUE(QFileInfo::exists(QString::fromStdString(program.folder.path(file)))) << typed;
        press(RunningProgram::window("MDIInlet"), Qt::Key_Q, Qt::ControlModifier);
        activate(RunningProgram::main());
        choose(RunningProgram::main(), "mnuFile", "mnucloseProj");
        program.robot.boxes.clear();
        program.robot.files.emplace_back(program.folder.path(file));
        choose(RunningProgram::main(), "mnuFile", "mnuopenProj");
        EXPECT_EQ(store::session.projectFilePath, program.folder.path(file));
        EXPECT_EQ(store::session.projectName, "Oak Street");
    }
}

TEST(MainWindow, QuotesAroundAWholePathAreNoneOfIt) {
    RunningProgram program;
    program.robot.files.emplace_back('"' + program.folder.path("copied road.gmk") + '"');
    program.robot.in_window.emplace_back(
        [](QWidget& details) { press(details, Qt::Key_Q, Qt::ControlModifier); });
    choose(RunningProgram::main(), "mnuFile", "mnucreateProj");
    EXPECT_TRUE(QFileInfo::exists(QString::fromStdString(program.folder.path("copied road.gmk"))));
}

TEST(MainWindow, TellsACancelledOpen) {
    RunningProgram program;
    program.robot.files.emplace_back(std::nullopt);
    choose(RunningProgram::main(), "mnuFile", "mnuopenProj");
    EXPECT_THAT(program.robot.boxes,
                ElementsAre(Box{BoxKind::warning, "Cancel was selected.", "GullymarkAL"}));
}

TEST(MainWindow, OpensTheAboutBoxAndReturns) {
    RunningProgram program;
    program.robot.in_window.emplace_back([](QWidget& about) {
        EXPECT_EQ(about.windowTitle(), "About GullymarkAL");
        EXPECT_EQ(about.findChild<QLabel*>("fixed_program")->text(),
                  QString::fromUtf8("GullymarkAL® Ver. 1.00.07 - Alabama Edition"));
        EXPECT_EQ(about.findChild<QLabel*>("fixed_family")->text(), "Tarnel Brook");
        testing_support::click(*about.findChild<QPushButton*>("cmdOK"));
    });
    choose(RunningProgram::main(), "mnuHelp", "mnuabout");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(MainWindow, SaysWhichHelpFileIsMissing) {
    RunningProgram program;
    press(RunningProgram::main(), Qt::Key_F1);
    EXPECT_THAT(program.robot.boxes,
                ElementsAre(Box{BoxKind::warning,
                                "The help file is missing: " + program.folder.path("program/GullymarkAL.chm"),
                                "GullymarkAL"}));
}

TEST(MainWindow, SaysThatNothingOnTheDesktopOpensTheHelp) {
    RunningProgram program;
    const std::string help = program.folder.path("program/GullymarkAL.chm");
    testing_support::write_file(help, "a help that this desktop has no viewer for");
    press(RunningProgram::main(), Qt::Key_F1);
    EXPECT_THAT(
        program.robot.boxes,
        ElementsAre(Box{BoxKind::warning, "No help viewer is installed that opens " + help, "GullymarkAL"}));
}

TEST(MainWindow, EndsTheProgramByItsMenuItsKeyAndItsCloseButton) {
    for (const auto& way : std::vector<std::function<void()>>{
             [] { choose(RunningProgram::main(), "mnuFile", "mnuExit"); },
             [] { press(RunningProgram::main(), Qt::Key_Q, Qt::ControlModifier); },
             [] { RunningProgram::main().close(); },
         }) {
        RunningProgram program;
        way();
        EXPECT_TRUE(program.ended);
        EXPECT_FALSE(RunningProgram::main().isVisible());
        EXPECT_THAT(program.robot.boxes, IsEmpty());
    }
}

TEST(MainWindow, AFileDialogLeavesNoSettingsBehind) {
    RunningProgram program;
    choose(RunningProgram::main(), "mnuFile", "mnucreateProj");
    EXPECT_EQ(program.robot.file_titles.size(), 1U);
    EXPECT_FALSE(QFileInfo::exists(QSettings(QSettings::UserScope, "QtProject").fileName()));
}

TEST(Splash, StandsInTheMiddleOfTheScreenAndGoesByKeyOrClick) {
    for (const bool by_key : {true, false}) {
        RunningProgram program;
        Splash splash;
        splash.paint_now();
        const QPoint off = splash.frameGeometry().center() - splash.screen()->availableGeometry().center();
        EXPECT_LE(off.manhattanLength(), 2);
        if (by_key) {
            testing_support::press(splash, Qt::Key_Space);
        } else {
            testing_support::click(*splash.findChild<QFrame*>("fixed_frame"));
        }
        EXPECT_FALSE(splash.isVisible());
    }
}

}  // namespace
}  // namespace gullymark::shell
