// The details form on a project that could not be read when the form opened.

#include "project_level.h"

namespace gullymark::store {
namespace {

const Box unread{BoxKind::plain,
                 "The project was not read from its file.  Please close this window and open it again",
                 "GullymarkAL"};

Box plain(const std::string& text) {
    return {BoxKind::plain, text, "GullymarkAL"};
}

using UnreadDetails = ProjectLevel;

TEST_F(UnreadDetails, AreNotSavedOverThoseInTheFile) {
    session.projectFilePath = make_project("a.gmk");
    open_database();
    testing_support::run_sql(session.projectFilePath, "ALTER TABLE PROJECT RENAME TO GONE");
    load_details_form();
    testing_support::run_sql(session.projectFilePath, "ALTER TABLE GONE RENAME TO PROJECT");
    EXPECT_EQ(user.boxes,
              (Boxes{plain("no such table: PROJECT"), plain("nothing was read from the project file")}));
    user.boxes.clear();
    frmProject.state.text = "AL";
    frmProject.project_id.text = "P-1";
    mnuprojsave_Click();
    EXPECT_EQ(user.boxes, Boxes{unread});
    EXPECT_EQ(stored("a.gmk")["PROJECT_NAME"], "Mill Road");
    EXPECT_EQ(stored("a.gmk")["DESCRIPTION"], "Widening");
}

TEST_F(UnreadDetails, AreReadWhenTheFormOpensAgain) {
    session.projectFilePath = make_project("a.gmk");
    open_database();
    testing_support::run_sql(session.projectFilePath, "ALTER TABLE PROJECT RENAME TO GONE");
    load_details_form();
    testing_support::run_sql(session.projectFilePath, "ALTER TABLE GONE RENAME TO PROJECT");
    unload_details_form();
    user.boxes.clear();
    load_details_form();
    EXPECT_EQ(user.boxes, Boxes{});
    EXPECT_EQ(frmProject.project_name.text, "Mill Road");
}

TEST_F(UnreadDetails, LeaveTheUnitsOfTheProjectAsTheyWere) {
    make_project("a.gmk", {{"UNITS", "METRIC"}});
    open_project("a.gmk");
    EXPECT_EQ(session.projectUnits, "METRIC");
    frmProject = {};
    testing_support::run_sql(session.projectFilePath, "ALTER TABLE PROJECT RENAME TO GONE");
    mnuupdateProj_Click();
    EXPECT_EQ(session.projectUnits, "METRIC");
}

TEST_F(UnreadDetails, LeaveNothingOfTheProjectOpen) {
    make_project("a.gmk");
    testing_support::run_sql(folder.path("a.gmk"), "ALTER TABLE PROJECT RENAME TO GONE");
    open_project("a.gmk");
    EXPECT_EQ(user.boxes.front(), plain("no such table: PROJECT"));
    EXPECT_FALSE(project_store.connection.is_open());
    EXPECT_EQ(session.projectUnits, "");
}

}  // namespace
}  // namespace gullymark::store
