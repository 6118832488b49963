#include "project_level.h"

namespace gullymark::store {
namespace {

/// A file that cannot be opened as a project is told at every step that needs it, and the program goes on.
class BadFile : public ProjectLevel {
  protected:
    /// Opens what stands at the path and expects the road that every such file takes.
    void expect_failures_and_the_workspace(const std::string& name) {
        open_project(name);
        EXPECT_EQ(steps.front(), "file dialog");
        EXPECT_EQ(steps.back(), "workspace");
        // Opening; reading the row; then the form's load reads it again and attaches to it.
        ASSERT_EQ(user.boxes.size(), 5U);
        for (const std::size_t at : {0U, 1U, 3U, 4U}) {
            EXPECT_EQ(user.boxes[at].kind, BoxKind::plain);
            EXPECT_EQ(user.boxes[at].title, "GullymarkAL");
        }
        EXPECT_TRUE(user.boxes[0].text.ends_with(" - " + folder.path(name))) << user.boxes[0].text;
        EXPECT_EQ(user.boxes[2],
                  (Box{BoxKind::warning, "No Project Found.  Please Add Project Details", "Tarnel Brook"}));
        EXPECT_FALSE(project_store.connection.is_open());
        EXPECT_EQ(session.projectName, "");
        EXPECT_FALSE(frmsoftwaremain.visible);
        EXPECT_EQ(menu_state(), "off off on on");
        expect_the_next_project_opens();
    }

    [[nodiscard]] std::string description() const { return user.boxes.at(0).text; }

  private:
    void expect_the_next_project_opens() {
        make_project("good.gmk");
        const Boxes told = user.boxes;
        mnucloseProj_Click();
        forget_steps();
        open_project("good.gmk");
        EXPECT_EQ(user.boxes, (Boxes{{BoxKind::information, "Project Name: Mill Road", "Tarnel Brook"}}));
        EXPECT_EQ(session.projectName, "Mill Road");
        user.boxes = told;
    }
};

TEST_F(BadFile, NotADatabase) {
    testing_support::write_file(folder.path("bad.gmk"), std::string(5000, 'x'));
    expect_failures_and_the_workspace("bad.gmk");
    EXPECT_TRUE(description().starts_with("file is not a database")) << description();
}

TEST_F(BadFile, Empty) {
    testing_support::write_file(folder.path("bad.gmk"), "");
    expect_failures_and_the_workspace("bad.gmk");
    EXPECT_TRUE(description().starts_with("this is not a Gullymark project file")) << description();
    EXPECT_EQ(testing_support::read_file(folder.path("bad.gmk")), "");
}

TEST_F(BadFile, Truncated) {
    const std::string whole = testing_support::read_file(make_project("bad.gmk"));
    testing_support::write_file(folder.path("bad.gmk"), whole.substr(0, 600));
    expect_failures_and_the_workspace("bad.gmk");
}

TEST_F(BadFile, AFolder) {
    std::filesystem::create_directory(folder.path("bad.gmk"));
    expect_failures_and_the_workspace("bad.gmk");
    EXPECT_TRUE(description().starts_with("unable to open database file")) << description();
}

TEST_F(BadFile, GoneMeanwhile) {
    expect_failures_and_the_workspace("bad.gmk");
    EXPECT_TRUE(description().starts_with("unable to open database file")) << description();
    EXPECT_FALSE(platform::file_exists(folder.path("bad.gmk")));
}

TEST_F(BadFile, InAFolderThatIsGoneEndsTheFlowBeforeItIsOpened) {
    open_project("gone/bad.gmk");
    ASSERT_EQ(user.boxes.size(), 1U);
    EXPECT_EQ(user.boxes[0],
              (Box{BoxKind::warning, "No such file or directory: " + folder.path("gone"), "GullymarkAL"}));
    EXPECT_EQ(session.projectFilePath, "");
    EXPECT_EQ(menu_state(), "on on on off");
    EXPECT_TRUE(frmsoftwaremain.visible);
}

TEST_F(BadFile, WithAnotherSchemaTellsWhatIsMissing) {
    make_project("bad.gmk");
    run("bad.gmk", "DROP TABLE PROJECT");
    open_project("bad.gmk");
    ASSERT_GE(user.boxes.size(), 1U);
    EXPECT_EQ(user.boxes[0], (Box{BoxKind::plain, "no such table: PROJECT", "GullymarkAL"}));
    EXPECT_EQ(steps.back(), "workspace");
}

TEST_F(BadFile, TheDetailsOfAFileThatIsNotOpenCannotBeSaved) {
    testing_support::write_file(folder.path("bad.gmk"), "no database");
    in_details_form = [this] {
        EXPECT_EQ(frmProject.units.text, "ENGLISH");
        user.boxes.clear();
        type("state", "AL");
        type("project_id", "P-1");
        mnuprojsave_Click();
        ASSERT_EQ(user.boxes.size(), 1U);
        EXPECT_EQ(user.boxes[0].kind, BoxKind::plain);
        EXPECT_TRUE(frmProject.visible);
        user.answers = {Answer::yes};
        mnuprojexit_Click();
    };
    open_project("bad.gmk");
    EXPECT_EQ(steps.back(), "workspace");
    EXPECT_EQ(testing_support::read_file(folder.path("bad.gmk")), "no database");
}

}  // namespace
}  // namespace gullymark::store
