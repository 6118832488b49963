#include "store/main_window.h"

#include "project_level.h"
#include "store/help.h"
#include "store/main_menu.h"
#include "store/workspace_entry.h"

namespace gullymark::store {
namespace {

class MainWindowLevel : public ProjectLevel {};

TEST_F(MainWindowLevel, TheLoadSetsTitleReleaseAndMenu) {
    session.workingDirectory = "left over";
    session.productName = "left over";
    frmsoftwaremain = {};
    load_main_window();
    EXPECT_EQ(frmsoftwaremain.caption, "Gullymark");
    EXPECT_EQ(frmsoftwaremain.message_title, "Tarnel Brook");
    EXPECT_EQ(session.workingDirectory, "");
    EXPECT_EQ(session.productName, "");
    EXPECT_EQ(session.targetMajorRelease, "1");
    EXPECT_EQ(session.targetMinorRelease, "00");
    EXPECT_EQ(session.targetReleaseDate, "MAY 2010");
    EXPECT_EQ(menu_state(), "on on on off");
}

TEST_F(MainWindowLevel, TheMenuHasTheseItemsInThisOrder) {
    Steps lines;
    for (const MainMenuItem& item : main_menu) {
        if (item.caption != platform::menu_separator) {
            lines.push_back(std::string(item.menu) + "/" + std::string(item.name) + ": " +
                            std::string(item.caption));
        }
    }
    EXPECT_EQ(lines, (Steps{
                         "/mnuFile: &File",
                         "mnuFile/mnucreateProj: &Create New Project",
                         "mnuFile/mnuopenProj: &Open Project",
                         "mnuFile/mnuupdateProj: &Update Project Details",
                         "mnuFile/mnuInlet: Design Inlet",
                         "mnuFile/mnucloseProj: Close Project",
                         "mnuFile/mnuExit: E&xit",
                         "/mnuHelp: &Help",
                         "mnuHelp/mnusubHelp: &Help",
                         "mnuHelp/mnuabout: About TarnelBrook",
                     }));
}

TEST_F(MainWindowLevel, ThreeSeparatorsStandInTheFileMenu) {
    Steps names;
    for (const MainMenuItem& item : main_menu) {
        if (item.caption == platform::menu_separator) {
            names.emplace_back(item.name);
            EXPECT_EQ(item.menu, "mnuFile");
            EXPECT_EQ(item.action, nullptr);
        }
    }
    EXPECT_EQ(names, (Steps{"mnusep0", "mnusep1", "mnusep2"}));
}

// The enable rules, row by row: Create, Open, Update, Close.

TEST_F(MainWindowLevel, AfterCreateOnlyUpdateAndCloseAreOn) {
    create_project("a.gmk");
    EXPECT_EQ(menu_state(), "off off on on");
}

TEST_F(MainWindowLevel, AfterOpenOnlyUpdateAndCloseAreOn) {
    make_project("a.gmk");
    open_project("a.gmk");
    EXPECT_EQ(menu_state(), "off off on on");
}

TEST_F(MainWindowLevel, UpdateLeavesItselfAsItWasAndTurnsCloseOn) {
    make_project("a.gmk");
    open_project("a.gmk");
    for (const bool update : {true, false}) {
        frmsoftwaremain.mnucreateProj.enabled = true;
        frmsoftwaremain.mnuopenProj.enabled = true;
        frmsoftwaremain.mnuupdateProj.enabled = update;
        frmsoftwaremain.mnucloseProj.enabled = false;
        mnuupdateProj_Click();
        EXPECT_EQ(menu_state(), update ? "off off on on" : "off off off on");
    }
}

TEST_F(MainWindowLevel, AfterCloseCreateAndOpenAreOn) {
    make_project("a.gmk");
    open_project("a.gmk");
    mnucloseProj_Click();
    EXPECT_EQ(menu_state(), "on on off off");
}

TEST_F(MainWindowLevel, UpdateOfAProjectWithoutDetailsWarnsAndShowsTheFormForANewRow) {
    create_project("a.gmk");
    session.detailsUpdateMode = true;
    frmsoftwaremain.mnuopenProj.enabled = true;
    forget_steps();
    in_details_form = [] {
        EXPECT_FALSE(session.detailsUpdateMode);
        EXPECT_TRUE(frmProject.adding);
        EXPECT_TRUE(frmProject.project_id.enabled);
        mnuprojexit_Click();
    };
    mnuupdateProj_Click();
    EXPECT_EQ(steps, (Steps{"box No Project Found.  Please Add Project Details", "normal pointer",
                            "details form", "focus on"}));
    EXPECT_EQ(user.boxes,
              (Boxes{{BoxKind::warning, "No Project Found.  Please Add Project Details", "Tarnel Brook"}}));
    EXPECT_EQ(menu_state(), "off on on on");
}

TEST_F(MainWindowLevel, UpdateOpensTheFormOnTheRowThatExists) {
    make_project("a.gmk", {{"PROJECT_NAME", "Old"}});
    open_project("a.gmk");
    forget_steps();
    in_details_form = [] {
        EXPECT_TRUE(session.detailsUpdateMode);
        EXPECT_EQ(frmProject.project_name.text, "Old");
        EXPECT_TRUE(frmProject.mnuprojcancel.enabled);
        EXPECT_FALSE(frmProject.project_id.enabled);
        EXPECT_EQ(frmProject.project_id.color, Color::gray);
        EXPECT_FALSE(frmProject.units.enabled);
        EXPECT_EQ(frmProject.units.color, Color::gray);
        mnuprojexit_Click();
    };
    session.projectUnits = "something else";
    mnuupdateProj_Click();
    EXPECT_EQ(session.projectUnits, "ENGLISH");
    EXPECT_EQ(steps, (Steps{"details form", "focus on"}));
}

TEST_F(MainWindowLevel, DesignInletWithoutAProjectWarns) {
    mnuInlet_Click();
    EXPECT_EQ(user.boxes,
              (Boxes{{BoxKind::warning, "Please Select Current Working Project!", "Tarnel Brook"}}));
    EXPECT_EQ(steps.size(), 1U);
    EXPECT_TRUE(frmsoftwaremain.visible);
}

TEST_F(MainWindowLevel, DesignInletGoesBackToTheWorkspaceOfTheOpenProject) {
    make_project("a.gmk");
    open_project("a.gmk");
    frmsoftwaremain.visible = true;
    forget_steps();
    look = [](const std::string& step) {
        EXPECT_EQ(step, "workspace");
        EXPECT_FALSE(frmsoftwaremain.visible);
    };
    mnuInlet_Click();
    EXPECT_EQ(steps, (Steps{"workspace"}));
}

TEST_F(MainWindowLevel, DesignInletWithAFileOfAnotherProductEndsTheProgramAfterTheMessage) {
    make_project("a.gmk", {{"PRODUCT_NAME", "GULLYMARKTN"}});
    open_project("a.gmk");
    frmsoftwaremain.visible = true;
    forget_steps();
    EXPECT_THROW(mnuInlet_Click(), ProgramEnded);
    EXPECT_EQ(user.boxes,
              (Boxes{{BoxKind::warning,
                      "This is an Incompatible Project Database! Please use correct version of the database",
                      "Tarnel Brook"}}));
    EXPECT_EQ(steps.size(), 2U);
    EXPECT_EQ(steps.back(), "end program");
    EXPECT_TRUE(frmsoftwaremain.visible);
    EXPECT_TRUE(project_store.connection.is_open());
}

TEST_F(MainWindowLevel, TheProductsNameCountsToTheLetter) {
    for (const std::string name : {"", "gullymarkal", "GULLYMARKAL "}) {
        session.productName = name;
        EXPECT_THROW(open_designform(), ProgramEnded) << name;
    }
    session.productName = "GULLYMARKAL";
    open_designform();
    EXPECT_EQ(steps.back(), "workspace");
}

TEST_F(MainWindowLevel, ExitClosesTheConnectionAndEndsTheProgram) {
    make_project("a.gmk");
    open_project("a.gmk");
    frmsoftwaremain.visible = true;
    forget_steps();
    EXPECT_THROW(mnuExit_Click(), ProgramEnded);
    EXPECT_FALSE(project_store.connection.is_open());
    EXPECT_FALSE(frmsoftwaremain.visible);
    EXPECT_EQ(steps, (Steps{"end program"}));
}

TEST_F(MainWindowLevel, ExitWithNoProjectOpenShowsNothing) {
    EXPECT_THROW(mnuExit_Click(), ProgramEnded);
    EXPECT_EQ(steps, (Steps{"end program"}));
}

TEST_F(MainWindowLevel, CloseAndThenExitShowsNothingMore) {
    make_project("a.gmk");
    open_project("a.gmk");
    mnucloseProj_Click();
    forget_steps();
    EXPECT_THROW(mnuExit_Click(), ProgramEnded);
    EXPECT_EQ(steps, (Steps{"end program"}));
}

TEST_F(MainWindowLevel, OnlyTheSystemMenusCloseExits) {
    for (const int mode : {1, 2, 3, 4, 5}) {
        Form_QueryUnload(mode);
        EXPECT_TRUE(steps.empty()) << mode;
    }
    EXPECT_THROW(Form_QueryUnload(0), ProgramEnded);
}

TEST_F(MainWindowLevel, HelpOpensTheFileBesideTheProgram) {
    show_help();
    EXPECT_EQ(user.help_paths, (Steps{platform::program_folder() + "/GullymarkAL.chm"}));
    platform::outside.open_help = nullptr;
    show_help();
}

TEST_F(MainWindowLevel, AboutShowsTheAboutBox) {
    show_about_box();
    EXPECT_EQ(steps, (Steps{"about box"}));
    EXPECT_EQ(about_text, "GullymarkAL\u00ae Ver. 1.00.07 - Alabama Edition");
}

}  // namespace
}  // namespace gullymark::store
