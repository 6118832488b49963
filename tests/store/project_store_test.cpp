#include "store/project_store.h"

#include <gtest/gtest.h>

#include "platform/files.h"
#include "platform/row_set.h"
#include "store/project_session.h"
#include "support/failure_text.h"
#include "support/outside_double.h"
#include "support/sqlite_file.h"

namespace {

using gullymark::platform::Box;
using gullymark::platform::BoxKind;
using gullymark::platform::Row;
using gullymark::platform::RowSet;
using gullymark::store::CheckInletUsage;
using gullymark::store::project_store;
using gullymark::store::session;
using gullymark::testing_support::failure_text;
using gullymark::testing_support::OutsideDouble;
using gullymark::testing_support::run_sql;
using gullymark::testing_support::TempFolder;

/// A road of four inlets in a copy of the template: 1 flows on to 2, and 2 to both sides of the sumps 10 and 10A.
struct ProjectStoreTest : testing::Test {
    TempFolder folder;
    OutsideDouble outside;
    std::string path = folder.path("road.gmk");

    ProjectStoreTest() {
        session = {};
        project_store = {};
        gullymark::platform::copy_file(GULLYMARK_TEMPLATE, path);
        run_sql(path,
                "INSERT INTO INLET (INLET_NUMBER, PREINLET1, PREINLET2, STATION, OFFSET, QCARRY) VALUES"
                "('2', '1', '', '2+00', '5', '0.25'), ('10', '2', NULL, '10+00', NULL, ''),"
                "('1', NULL, NULL, '1+00', '', '0.5'), ('10A', '', '2', '', '', NULL)");
        project_store.connection.open(path);
    }
    ~ProjectStoreTest() override { project_store = {}; }
    ProjectStoreTest(const ProjectStoreTest&) = delete;
    ProjectStoreTest& operator=(const ProjectStoreTest&) = delete;

    static Row numbers(const std::string& statement, const std::string& column = "INLET_NUMBER") {
        RowSet rows;
        rows.open(project_store.connection, statement);
        return rows.all_values(column);
    }
};

TEST_F(ProjectStoreTest, EveryListHasItsNumbersInTheOrderOfTheirTexts) {
    const Row in_order{"1", "10", "10A", "2"};
    EXPECT_EQ(numbers(gullymark::store::select_inlets), in_order);
    EXPECT_EQ(numbers(gullymark::store::select_carryover), in_order);
    EXPECT_EQ(numbers(gullymark::store::select_grid, "INLET_ID"), in_order);
}

TEST_F(ProjectStoreTest, TheCarryoverListHoldsWhatAPreviousInletHandsOn) {
    RowSet carryover;
    carryover.open(project_store.connection, gullymark::store::select_carryover);
    carryover.find("INLET_NUMBER = '2'");
    EXPECT_EQ(carryover.row(), (Row{"2", "1", "", "0.25"}));
}

TEST_F(ProjectStoreTest, TheGridListShowsNumberStationAndOffset) {
    RowSet grid;
    grid.open(project_store.connection, gullymark::store::select_grid);
    EXPECT_EQ(grid.columns(), (std::vector<std::string>{"INLET_ID", "STATION", "OFFSET"}));
    grid.move(3);
    EXPECT_EQ(grid.row(), (Row{"2", "2+00", "5"}));
}

TEST_F(ProjectStoreTest, OneInletIsFoundByItsNumber) {
    EXPECT_EQ(numbers(gullymark::store::select_inlet("10")), Row{"10"});
    EXPECT_EQ(numbers(gullymark::store::select_inlet("1.0")), Row{});
}

TEST_F(ProjectStoreTest, StatementsAreSentToTheLetter) {
    EXPECT_EQ(gullymark::store::select_inlet("A 7"), "SELECT * FROM INLET WHERE INLET_NUMBER = 'A 7'");
    EXPECT_EQ(gullymark::store::select_number_usage("A 7"),
              "select INLET_NUMBER from INLET WHERE INLET_NUMBER = 'A 7'");
    EXPECT_EQ(gullymark::store::select_preinlet1_usage("A 7"),
              "select INLET_NUMBER,PREINLET1 from INLET WHERE PREINLET1 = 'A 7'");
    EXPECT_EQ(gullymark::store::select_preinlet2_usage("A 7"),
              "select INLET_NUMBER,PREINLET2 from INLET WHERE PREINLET2 = 'A 7'");
    EXPECT_EQ(gullymark::store::renumber_inlet("B", "A")[0],
              "UPDATE INLET SET INLET_NUMBER = 'B' WHERE INLET_NUMBER = 'A'");
    EXPECT_EQ(gullymark::store::renumber_inlet("B", "A")[1],
              "UPDATE INLET SET PREINLET1 = 'B' WHERE PREINLET1 = 'A'");
    EXPECT_EQ(gullymark::store::renumber_inlet("B", "A")[2],
              "UPDATE INLET SET PREINLET2 = 'B' WHERE PREINLET2 = 'A'");
}

TEST_F(ProjectStoreTest, RenumberingTakesTheLinksWithIt) {
    for (const auto& statement : gullymark::store::renumber_inlet("20", "2")) {
        project_store.connection.execute(statement);
    }
    EXPECT_EQ(run_sql(path, "SELECT INLET_NUMBER, PREINLET1, PREINLET2 FROM INLET ORDER BY INLET_NUMBER"),
              "1|NULL|NULL\n10|20|NULL\n10A||20\n20|1|");
}

TEST_F(ProjectStoreTest, AQuoteMarkInANumberBreaksTheStatement) {
    EXPECT_EQ(failure_text([] { numbers(gullymark::store::select_inlet("o'clock")); }),
              "near \"clock\": syntax error");
    EXPECT_EQ(failure_text([] {
                  project_store.connection.execute(gullymark::store::renumber_inlet("o'clock", "1")[0]);
              }),
              "near \"clock\": syntax error");
}

using CheckInletUsageTest = ProjectStoreTest;

TEST_F(CheckInletUsageTest, FindsAnInletByItsNumber) {
    EXPECT_TRUE(CheckInletUsage("10", "INLET_NUMBER"));
    EXPECT_FALSE(CheckInletUsage("100", "INLET_NUMBER"));
    EXPECT_FALSE(CheckInletUsage("10a", "INLET_NUMBER"));
    EXPECT_FALSE(CheckInletUsage("", "INLET_NUMBER"));
    EXPECT_TRUE(outside.boxes.empty());
}

TEST_F(CheckInletUsageTest, ANumberFoundTellsNoReferencingInlet) {
    session.ReferencingInletNumber = "7";
    EXPECT_TRUE(CheckInletUsage("10", "INLET_NUMBER"));
    EXPECT_EQ(session.ReferencingInletNumber, "7");
}

TEST_F(CheckInletUsageTest, TellsTheInletThatNamesThisOneOnEitherSide) {
    EXPECT_TRUE(CheckInletUsage("2", "PREINLET1"));
    EXPECT_EQ(session.ReferencingInletNumber, "10");
    EXPECT_TRUE(CheckInletUsage("2", "PREINLET2"));
    EXPECT_EQ(session.ReferencingInletNumber, "10A");
}

TEST_F(CheckInletUsageTest, OfSeveralThatNameItTheOneEnteredFirstIsTold) {
    run_sql(path, "INSERT INTO INLET (INLET_NUMBER, PREINLET1) VALUES ('9', 'X'), ('1', 'X')");
    EXPECT_TRUE(CheckInletUsage("X", "PREINLET1"));
    EXPECT_EQ(session.ReferencingInletNumber, "9");
}

TEST_F(CheckInletUsageTest, ForgetsTheReferencingInletOfTheCallBefore) {
    session.ReferencingInletNumber = "7";
    EXPECT_FALSE(CheckInletUsage("10", "PREINLET1"));
    EXPECT_EQ(session.ReferencingInletNumber, "");
    session.ReferencingInletNumber = "7";
    EXPECT_FALSE(CheckInletUsage("10", "PREINLET2"));
    EXPECT_EQ(session.ReferencingInletNumber, "");
}

TEST_F(CheckInletUsageTest, AReferencingInletWithoutANumberCountsAndReadsAsEmpty) {
    run_sql(path, "INSERT INTO INLET (PREINLET1) VALUES ('10A')");
    session.ReferencingInletNumber = "7";
    EXPECT_TRUE(CheckInletUsage("10A", "PREINLET1"));
    EXPECT_EQ(session.ReferencingInletNumber, "");
}

TEST_F(CheckInletUsageTest, AWordThatIsNoneOfTheThreeFindsNothing) {
    session.ReferencingInletNumber = "7";
    for (const char* word : {"", "preinlet1", "STATION", "PREINLET", "PREINLET1 "}) {
        EXPECT_FALSE(CheckInletUsage("2", word)) << word;
    }
    EXPECT_EQ(session.ReferencingInletNumber, "7");
    EXPECT_TRUE(outside.boxes.empty());
}

TEST_F(CheckInletUsageTest, AnApostropheInANumberShowsTheStoresError) {
    session.ReferencingInletNumber = "7";
    EXPECT_FALSE(CheckInletUsage("o'clock", "PREINLET2"));
    EXPECT_EQ(outside.boxes,
              (std::vector<Box>{{BoxKind::plain, "near \"clock\": syntax error", "GullymarkAL"}}));
    EXPECT_EQ(session.ReferencingInletNumber, "");
}

TEST_F(CheckInletUsageTest, AFileThatCannotBeReadIsNotTakenForOneWithoutTheRow) {
    using enum gullymark::store::InletUsage;
    using gullymark::store::find_inlet_usage;
    EXPECT_EQ(find_inlet_usage("10", "INLET_NUMBER"), a_row);
    EXPECT_EQ(find_inlet_usage("100", "INLET_NUMBER"), no_row);
    EXPECT_EQ(find_inlet_usage("o'clock", "INLET_NUMBER"), no_row);
    project_store.connection.close();
    EXPECT_EQ(find_inlet_usage("10", "INLET_NUMBER"), unread);
    EXPECT_EQ(find_inlet_usage("10", "PREINLET2"), unread);
}

TEST_F(CheckInletUsageTest, WithoutAnOpenConnectionItShowsThatAndFindsNothing) {
    project_store.connection.close();
    EXPECT_FALSE(CheckInletUsage("2", "INLET_NUMBER"));
    EXPECT_EQ(outside.boxes, (std::vector<Box>{{BoxKind::plain, "no project file is open", "GullymarkAL"}}));
}

}  // namespace
