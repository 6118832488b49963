#include <utility>

#include "project_level.h"
#include "support/child_process.h"
#include "support/failure_text.h"

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

    [[nodiscard]] std::string told_first() const { return user.boxes.at(0).text; }

    void allow(const std::string& name, unsigned mode) const {
        std::filesystem::permissions(folder.path(name), static_cast<std::filesystem::perms>(mode));
    }

    /// What a user whom the permissions hold is told first when he opens "bad.gmk" and comes to the workspace.
    void expect_for_an_unprivileged_user(const std::string& description) {
        const auto told = testing_support::run_unprivileged([this] {
            open_project("bad.gmk");
            return steps.back() == "workspace" ? told_first() : "ended at " + steps.back();
        });
        if (told.empty()) {
            GTEST_SKIP() << "no ordinary user on this machine";
        }
        EXPECT_EQ(told, description + folder.path("bad.gmk"));
    }

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

TEST_F(BadFile, KeptOnes) {
    const std::vector<std::pair<std::string, std::string>> files = {
        {"text.gmk", "file is not a database - "},
        {"truncated.gmk", "database disk image is malformed - "},
        {"empty.gmk", "this is not a Gullymark project file - "},
        {"other_program.gmk", "this is not a Gullymark project file - "},
    };
    for (const auto& [name, description] : files) {
        copy_kept_file(name);
        const std::string content = testing_support::read_file(folder.path(name));
        expect_failures_and_the_workspace(name);
        EXPECT_EQ(told_first(), description + folder.path(name));
        EXPECT_EQ(testing_support::read_file(folder.path(name)), content);
        mnucloseProj_Click();
        frmsoftwaremain.visible = true;
        forget_steps();
    }
}

TEST_F(BadFile, LockedByAnotherProcess) {
    make_project("bad.gmk");
    const testing_support::Pipe locked;
    const testing_support::Pipe enough;
    const testing_support::ChildProcess other([&] {
        platform::Connection connection;
        connection.open(folder.path("bad.gmk"));
        connection.execute("BEGIN EXCLUSIVE");
        locked.write("locked");
        (void)enough.read();
    });
    ASSERT_EQ(locked.read(), "locked");
    expect_failures_and_the_workspace("bad.gmk");
    EXPECT_EQ(told_first(), "database is locked - " + folder.path("bad.gmk"));
    enough.write("enough");
}

TEST_F(BadFile, ReadOnly) {
    make_project("bad.gmk");
    allow("bad.gmk", 0444);
    allow("", 0777);
    expect_for_an_unprivileged_user("attempt to write a readonly database: the file is read-only - ");
}

TEST_F(BadFile, InAFolderWithoutWritePermission) {
    make_project("bad.gmk");
    allow("bad.gmk", 0666);
    allow("", 0555);
    expect_for_an_unprivileged_user(
        "attempt to write a readonly database: no file can be made in its folder - ");
}

TEST_F(BadFile, Garbled) {
    copy_kept_file("garbled.gmk");
    open_project("garbled.gmk");
    // Only its inlets are beyond reading; nothing is written on top of what is left.
    EXPECT_EQ(
        user.boxes,
        (Boxes{{BoxKind::plain, "database disk image is malformed: nothing is stored in it", "GullymarkAL"},
               {BoxKind::information, "Project Name: Mill Road", "Tarnel Brook"}}));
    EXPECT_EQ(steps.back(), "workspace");
    EXPECT_TRUE(project_store.connection.refuses_writes());
    EXPECT_EQ(testing_support::failure_text(
                  [] { project_store.connection.execute("UPDATE PROJECT SET STATE = 'GA'"); }),
              "attempt to write a readonly database");
}

TEST_F(BadFile, AFolder) {
    std::filesystem::create_directory(folder.path("bad.gmk"));
    expect_failures_and_the_workspace("bad.gmk");
    EXPECT_TRUE(told_first().starts_with("unable to open database file")) << told_first();
}

TEST_F(BadFile, GoneMeanwhile) {
    expect_failures_and_the_workspace("bad.gmk");
    EXPECT_TRUE(told_first().starts_with("unable to open database file")) << told_first();
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
