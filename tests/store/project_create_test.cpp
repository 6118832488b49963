#include "platform/failure.h"
#include "platform/file_dialog.h"
#include "project_level.h"
#include "support/cut_short.h"
#include "support/failure_text.h"

namespace gullymark::store {
namespace {

const Box created{BoxKind::information, "New Project Database has been created.  Please Add Project Details",
                  "Tarnel Brook"};
const Box nothing_selected{BoxKind::warning, "No project database selected!", "Tarnel Brook"};
const Box overwrite{BoxKind::warning_question, "File Already Exists!   Overwrite?", "GullymarkAL"};

class CreateProject : public ProjectLevel {};

TEST_F(CreateProject, TakesTheseStepsInThisOrder) {
    in_details_form = [] {
        EXPECT_EQ(frmsoftwaremain.status_panels[0], "Create Project");
        type("project_id", "P-7");
        type("project_name", "Mill Road");
        mnuprojsave_Click();
        EXPECT_EQ(frmsoftwaremain.status_panels[0], "AL - Autauga: Mill Road");
    };
    create_project("a.gmk");
    EXPECT_EQ(steps, (Steps{
                         "file dialog",
                         "wait pointer",
                         "box New Project Database has been created.  Please Add Project Details",
                         "details form",
                         "box Project Details are Saved!",
                         "workspace",
                         "normal pointer",
                     }));
    EXPECT_EQ(user.boxes[0], created);
    EXPECT_EQ(frmsoftwaremain.status_panels[0], "Project Database - a.gmk");
    EXPECT_EQ(frmsoftwaremain.status_panels[1], "");
    EXPECT_EQ(frmsoftwaremain.status_panels[2], "UNITS: ENGLISH");
    EXPECT_FALSE(frmsoftwaremain.visible);
    EXPECT_EQ(session.projectFilePath, folder.path("a.gmk"));
    EXPECT_EQ(session.workingDirectory, folder.path());
    EXPECT_EQ(session.projectName, "Mill Road");
    EXPECT_EQ(stored("a.gmk")["PROJECT_NAME"], "Mill Road");
}

TEST_F(CreateProject, MakesAByteCopyOfTheTemplate) {
    create_project("a.gmk");
    EXPECT_EQ(testing_support::read_file(folder.path("a.gmk")),
              testing_support::read_file(platform::program_folder() + "/GullymarkAL10.rdb"));
}

TEST_F(CreateProject, IsNotUndoneByTheJournalThatACrashLeftOfAnOldFile) {
    make_project("a.gmk");
    const std::string path = folder.path("a.gmk");
    testing_support::cut_a_save_short(path);
    ASSERT_TRUE(platform::file_exists(path + "-journal"));
    user.answers = {Answer::yes};
    create_project("a.gmk");
    EXPECT_EQ(testing_support::read_file(path),
              testing_support::read_file(platform::program_folder() + "/GullymarkAL10.rdb"));
    EXPECT_FALSE(platform::file_exists(path + "-journal"));
    EXPECT_TRUE(project_store.connection.is_open());
}

TEST_F(CreateProject, LeftWithoutSavingKeepsTheProjectOpenWithoutARow) {
    session.detailsUpdateMode = true;
    create_project("a.gmk");
    EXPECT_EQ(user.boxes, (Boxes{created}));
    EXPECT_EQ(count_rows("a.gmk"), 0);
    EXPECT_EQ(session.projectName, "");
    EXPECT_FALSE(session.detailsUpdateMode);
    EXPECT_TRUE(project_store.connection.is_open());
    EXPECT_TRUE(frmsoftwaremain.visible);
    EXPECT_EQ(menu_state(), "off off on on");
}

TEST_F(CreateProject, AsksTheDialogForANewName) {
    platform::printDlg.file_name = "left over";
    create_project("a.gmk");
    ASSERT_EQ(user.requests.size(), 1U);
    EXPECT_TRUE(user.requests[0].saving);
    EXPECT_EQ(user.requests[0].title, "Enter New Project Database File Name");
    EXPECT_EQ(user.requests[0].filter, "Gullymark files (*.gmk)|*.gmk");
    EXPECT_EQ(user.requests[0].file_name, "");
    EXPECT_EQ(user.requests[0].initial_folder, platform::program_folder());
}

TEST_F(CreateProject, TheNextDialogStartsInTheFolderThatTheLastOneLeft) {
    create_project("a.gmk");
    create_project("b.gmk");
    EXPECT_EQ(user.requests[1].initial_folder, folder.path());
}

TEST_F(CreateProject, NothingChosenIsTold) {
    for (const std::string chosen : {"", "*.gmk"}) {
        forget_steps();
        user.choices.emplace_back(chosen.empty() ? chosen : folder.path(chosen));
        mnucreateProj_Click();
        EXPECT_EQ(user.boxes, (Boxes{nothing_selected})) << chosen;
        EXPECT_EQ(session.projectFilePath, chosen);
        EXPECT_EQ(menu_state(), "on on on off");
    }
}

TEST_F(CreateProject, ACancelBeforeAnyOpenIsNothingChosen) {
    session.projectFilePath = "left over";
    mnucreateProj_Click();
    EXPECT_EQ(user.boxes, (Boxes{nothing_selected}));
    EXPECT_EQ(session.projectFilePath, "");
}

TEST_F(CreateProject, ACancelAfterAnOpenIsAFailure) {
    mnuopenProj_Click();
    forget_steps();
    mnucreateProj_Click();
    EXPECT_EQ(user.boxes, (Boxes{{BoxKind::warning, "Cancel was selected.", "GullymarkAL"}}));
    EXPECT_EQ(session.projectFilePath, "");
}

TEST_F(CreateProject, NoAtTheOverwriteQuestionLeavesTheOldFileAndNoProjectOpen) {
    testing_support::write_file(folder.path("old.gmk"), "kept");
    user.answers = {Answer::no};
    create_project("old.gmk");
    EXPECT_EQ(user.boxes, (Boxes{overwrite}));
    EXPECT_EQ(testing_support::read_file(folder.path("old.gmk")), "kept");
    EXPECT_EQ(session.projectFilePath, folder.path("old.gmk"));
    EXPECT_EQ(session.workingDirectory, "");
    EXPECT_FALSE(project_store.connection.is_open());
    EXPECT_EQ(menu_state(), "on on on off");
}

TEST_F(CreateProject, YesAtTheOverwriteQuestionReplacesTheOldFile) {
    make_project("old.gmk");
    user.answers = {Answer::yes};
    create_project("old.gmk");
    EXPECT_EQ(user.boxes, (Boxes{overwrite, created}));
    EXPECT_EQ(count_rows("old.gmk"), 0);
}

TEST_F(CreateProject, AMissingTemplateEndsTheFlowWithItsDescription) {
    std::filesystem::remove(platform::program_folder() + "/GullymarkAL10.rdb");
    create_project("a.gmk");
    EXPECT_EQ(user.boxes,
              (Boxes{{BoxKind::warning,
                      "No such file or directory: " + platform::program_folder() + "/GullymarkAL10.rdb",
                      "GullymarkAL"}}));
    EXPECT_EQ(steps.size(), 2U);
    EXPECT_EQ(menu_state(), "on on on off");
    EXPECT_EQ(session.projectFilePath, folder.path("a.gmk"));
    EXPECT_EQ(session.workingDirectory, "");
}

TEST_F(CreateProject, APathThatCannotBeWrittenEndsTheFlow) {
    std::filesystem::create_directory(folder.path("a.gmk"));
    create_project("a.gmk");
    ASSERT_EQ(user.boxes.size(), 1U);
    EXPECT_EQ(user.boxes[0].kind, BoxKind::warning);
    EXPECT_EQ(user.boxes[0].title, "GullymarkAL");
    EXPECT_NE(user.boxes[0].text, "");
    EXPECT_EQ(menu_state(), "on on on off");
}

TEST_F(CreateProject, ACreatedProjectOpensAgainWithWhatWasSaved) {
    in_details_form = [] {
        type("project_id", "P-7");
        type("project_name", "Mill Road");
        mnuprojsave_Click();
    };
    create_project("a.gmk");
    mnucloseProj_Click();
    forget_steps();
    open_project("a.gmk");
    EXPECT_EQ(user.boxes, (Boxes{{BoxKind::information, "Project Name: Mill Road", "Tarnel Brook"}}));
    EXPECT_EQ(session.productName, "GULLYMARKAL");
    mnuInlet_Click();
    EXPECT_EQ(steps.back(), "workspace");
}

TEST(DisplayName, IsWhatStandsBehindTheFolder) {
    EXPECT_EQ(display_name("/road/ann/a.gmk", "/road/ann"), "a.gmk");
    EXPECT_EQ(display_name("/h\u00f6fe/stra\u00dfe.gmk", "/h\u00f6fe"), "stra\u00dfe.gmk");
}

TEST(DisplayName, IsOneCharacterShorterForAFileInTheRoot) {
    EXPECT_EQ(display_name("/a.gmk", "/"), ".gmk");
    EXPECT_EQ(display_name("/\u00e4.gmk", "/"), ".gmk");
}

TEST(DisplayName, AFolderLongerThanThePathIsAFailure) {
    EXPECT_EQ(display_name("/a", "/"), "");
    EXPECT_EQ(testing_support::failure_text([] { (void)display_name("a.gmk", "/road/ann"); }),
              "The file does not lie in the current folder: a.gmk");
}

}  // namespace
}  // namespace gullymark::store
