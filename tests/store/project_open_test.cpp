#include <array>

#include "platform/file_dialog.h"
#include "project_level.h"

namespace gullymark::store {
namespace {

const Box no_project{BoxKind::warning, "No Project Found.  Please Add Project Details", "Tarnel Brook"};

class OpenProject : public ProjectLevel {};

TEST_F(OpenProject, TakesTheseStepsInThisOrder) {
    make_project("a.gmk");
    look = [](const std::string& step) {
        if (step == "wait pointer" || step == "normal pointer" || step.starts_with("box ")) {
            EXPECT_EQ(frmsoftwaremain.status_panels[0], "Opening Project Database.  Please wait...") << step;
            EXPECT_TRUE(frmsoftwaremain.visible);
        }
    };
    open_project("a.gmk");
    EXPECT_EQ(steps, (Steps{"file dialog", "wait pointer", "normal pointer", "box Project Name: Mill Road",
                            "workspace"}));
    EXPECT_EQ(user.boxes, (Boxes{{BoxKind::information, "Project Name: Mill Road", "Tarnel Brook"}}));
    EXPECT_EQ(frmsoftwaremain.status_panels[0], "Project Database - a.gmk");
    EXPECT_EQ(frmsoftwaremain.status_panels[1], "UNITS: ENGLISH");
    EXPECT_EQ(frmsoftwaremain.status_panels[2], "");
    EXPECT_FALSE(frmsoftwaremain.visible);
}

TEST_F(OpenProject, ReadsTheRowIntoTheSession) {
    make_project("a.gmk");
    open_project("a.gmk");
    EXPECT_EQ(session.projectFilePath, folder.path("a.gmk"));
    EXPECT_EQ(session.workingDirectory, folder.path());
    EXPECT_EQ(session.projectId, "P-1");
    EXPECT_EQ(session.projectName, "Mill Road");
    EXPECT_EQ(session.projectCounty, "Mobile");
    EXPECT_EQ(session.projectState, "AL");
    EXPECT_EQ(session.projectUnits, "ENGLISH");
    EXPECT_EQ(session.projectDesigner, "A. Smith");
    EXPECT_EQ(session.productName, "GULLYMARKAL");
    EXPECT_EQ(session.majorRelease, "1");
    EXPECT_EQ(session.releaseDate, "MAY 2010");
}

TEST_F(OpenProject, AsksTheDialogForAFileThatExists) {
    platform::printDlg.file_name = "left over";
    make_project("a.gmk");
    open_project("a.gmk");
    ASSERT_EQ(user.requests.size(), 1U);
    EXPECT_FALSE(user.requests[0].saving);
    EXPECT_TRUE(user.requests[0].must_exist);
    EXPECT_EQ(user.requests[0].title, "Open");
    EXPECT_EQ(user.requests[0].filter, "Gullymark files (*.gmk)|*.gmk");
    EXPECT_EQ(user.requests[0].file_name, "");
    EXPECT_EQ(user.requests[0].initial_folder, platform::program_folder());
    session.workingDirectory = folder.path();
    mnuopenProj_Click();
    EXPECT_EQ(user.requests[1].initial_folder, folder.path());
}

TEST_F(OpenProject, ACancelEndsTheFlowWithItsTextAndForgetsThePath) {
    session.projectFilePath = "left over";
    mnuopenProj_Click();
    EXPECT_EQ(user.boxes, (Boxes{{BoxKind::warning, "Cancel was selected.", "GullymarkAL"}}));
    EXPECT_EQ(steps.size(), 2U);
    EXPECT_EQ(session.projectFilePath, "");
    EXPECT_EQ(menu_state(), "on on on off");
    EXPECT_TRUE(platform::printDlg.cancel_is_error);
}

TEST_F(OpenProject, ADialogThatReturnsNoNameIsNothingChosen) {
    user.choices.emplace_back("");
    mnuopenProj_Click();
    EXPECT_EQ(user.boxes, (Boxes{{BoxKind::warning, "No project database selected!", "Tarnel Brook"}}));
    EXPECT_EQ(steps.size(), 2U);
    EXPECT_EQ(menu_state(), "on on on off");
}

TEST_F(OpenProject, AnEmptyProjectTableEndsInTheDetailsFormAndThenInTheWorkspace) {
    make_empty_project("a.gmk");
    session.detailsUpdateMode = true;
    in_details_form = [] {
        EXPECT_TRUE(frmProject.adding);
        EXPECT_FALSE(session.detailsUpdateMode);
        mnuprojexit_Click();
    };
    open_project("a.gmk");
    EXPECT_EQ(steps, (Steps{"file dialog", "wait pointer", "normal pointer",
                            "box No Project Found.  Please Add Project Details", "details form", "focus on",
                            "workspace"}));
    EXPECT_EQ(user.boxes, (Boxes{no_project}));
    EXPECT_EQ(session.projectName, "");
    EXPECT_FALSE(frmsoftwaremain.visible);
    EXPECT_EQ(frmsoftwaremain.status_panels[0], "Project Database - a.gmk");
    EXPECT_EQ(menu_state(), "off off on on");
}

TEST_F(OpenProject, ANullNameIsAFailureAndCountsAsNoDetails) {
    make_project("a.gmk", {{"PROJECT_NAME", std::nullopt}});
    open_project("a.gmk");
    const Box null_name{BoxKind::plain, "The column PROJECT_NAME of the project holds no value.",
                        "GullymarkAL"};
    // Once for the flow and once for the form's load.
    EXPECT_EQ(user.boxes, (Boxes{null_name, no_project, null_name}));
    EXPECT_EQ(session.projectId, "P-1");
    EXPECT_EQ(session.projectName, "");
    EXPECT_EQ(steps.back(), "workspace");
}

TEST_F(OpenProject, ANullLeavesItsValueAndAllLaterOnesUnread) {
    const Steps order = {"PROJECT_ID", "PROJECT_NAME", "COUNTY",      "STATE",
                         "UNITS",      "DESIGNER",     "RELEASE_DATE"};
    for (std::size_t null_at = 0; null_at < order.size(); ++null_at) {
        make_project("a.gmk", {{order[null_at], std::nullopt}});
        session = {};
        session.projectFilePath = folder.path("a.gmk");
        session.productName = "left over";
        forget_steps();
        open_database();
        get_project_records();
        EXPECT_EQ(user.boxes,
                  (Boxes{{BoxKind::plain, "The column " + order[null_at] + " of the project holds no value.",
                          "GullymarkAL"}}));
        const Steps read = {session.projectId,    session.projectName,  session.projectCounty,
                            session.projectState, session.projectUnits, session.projectDesigner,
                            session.releaseDate};
        for (std::size_t at = 0; at < order.size(); ++at) {
            EXPECT_EQ(read[at].empty(), at >= null_at) << order[at] << " with a null in " << order[null_at];
        }
        const bool read_so_far = order[null_at] == "RELEASE_DATE";
        EXPECT_EQ(session.productName, read_so_far ? "GULLYMARKAL" : "");
        EXPECT_EQ(session.majorRelease.has_value(), read_so_far);
    }
}

TEST_F(OpenProject, ANullProductIsAnEmptyTextAndANullReleaseStaysNull) {
    make_project("a.gmk", {{"PRODUCT_NAME", std::nullopt}, {"MAJOR_RELEASE", std::nullopt}});
    session.majorRelease = "left over";
    open_project("a.gmk");
    EXPECT_EQ(session.productName, "");
    EXPECT_EQ(session.majorRelease, std::nullopt);
    EXPECT_EQ(session.releaseDate, "MAY 2010");
    EXPECT_EQ(user.boxes, (Boxes{{BoxKind::information, "Project Name: Mill Road", "Tarnel Brook"}}));
}

TEST_F(OpenProject, OfSeveralRowsTheFirstByIdentifierCounts) {
    make_project("a.gmk", {{"PROJECT_ID", "2"}});
    run("a.gmk",
        "INSERT INTO PROJECT (PROJECT_ID, PROJECT_NAME, COUNTY, STATE, UNITS, DESIGNER, RELEASE_DATE) "
        "VALUES ('10', 'First', '', '', '', '', '')");
    open_project("a.gmk");
    EXPECT_EQ(session.projectName, "First");
}

TEST_F(OpenProject, AFileOfAnotherProductOpensIntoTheWorkspaceAndFailsAtDesignInlet) {
    make_project("a.gmk", {{"PRODUCT_NAME", "GULLYMARKTN"}});
    open_project("a.gmk");
    EXPECT_EQ(user.boxes, (Boxes{{BoxKind::information, "Project Name: Mill Road", "Tarnel Brook"}}));
    EXPECT_EQ(steps.back(), "workspace");
    EXPECT_THROW(mnuInlet_Click(), ProgramEnded);
}

class CloseProject : public ProjectLevel {};

TEST_F(CloseProject, ForgetsTheProjectAndKeepsTheRest) {
    make_project("a.gmk");
    open_project("a.gmk");
    frmsoftwaremain.status_panels[2] = "kept";
    session.detailsUpdateMode = true;
    load_details_form();
    forget_steps();
    mnucloseProj_Click();
    EXPECT_EQ(steps, (Steps{"box Current Project Is Closed!", "unload inlet editor"}));
    EXPECT_EQ(user.boxes, (Boxes{{BoxKind::information, "Current Project Is Closed!", "GullymarkAL"}}));
    EXPECT_FALSE(project_store.connection.is_open());
    EXPECT_FALSE(session.detailsUpdateMode);
    EXPECT_FALSE(frmProject.loaded);
    EXPECT_EQ(session.projectId, "");
    EXPECT_EQ(session.projectName, "");
    EXPECT_EQ(session.productName, "");
    EXPECT_EQ(session.projectFilePath, folder.path("a.gmk"));
    EXPECT_EQ(session.workingDirectory, folder.path());
    EXPECT_EQ(session.projectCounty, "Mobile");
    EXPECT_EQ(session.projectUnits, "ENGLISH");
    EXPECT_EQ(session.releaseDate, "MAY 2010");
    EXPECT_EQ(frmsoftwaremain.status_panels, (std::array<std::string, 3>{"", "", "kept"}));
    EXPECT_EQ(menu_state(), "on on off off");
}

TEST_F(CloseProject, AConnectionThatIsNotOpenIsToldAndTheMenuChangesAllTheSame) {
    session.projectName = "kept";
    session.productName = "forgotten";
    mnucloseProj_Click();
    EXPECT_EQ(user.boxes, (Boxes{{BoxKind::information, "Current Project Is Closed!", "GullymarkAL"},
                                 {BoxKind::plain, "database close error", "GullymarkAL"}}));
    EXPECT_EQ(session.projectName, "kept");
    EXPECT_EQ(session.productName, "");
    EXPECT_EQ(menu_state(), "on on off off");
}

TEST_F(CloseProject, AnotherProjectOpensAfterIt) {
    make_project("a.gmk");
    make_project("b.gmk", {{"PROJECT_NAME", "Other"}});
    open_project("a.gmk");
    mnucloseProj_Click();
    open_project("b.gmk");
    EXPECT_EQ(session.projectName, "Other");
}

}  // namespace
}  // namespace gullymark::store
