#include <gtest/gtest.h>

#include <cstdint>
#include <functional>

#include "platform/database.h"
#include "support/failure_text.h"
#include "support/outside_double.h"
#include "support/sqlite_file.h"

namespace {

using gullymark::platform::Connection;
using gullymark::platform::Row;
using gullymark::platform::RowSet;
using gullymark::testing_support::failure_text;
using gullymark::testing_support::run_sql;
using gullymark::testing_support::small_project;
using gullymark::testing_support::TempFolder;
using Texts = std::vector<std::string>;

constexpr const char* all_inlets = "SELECT * FROM INLET ORDER BY INLET_NUMBER";

/// Three inlets, stored in another order than that of their numbers: "1", "10", "2".
struct RowSetTest : testing::Test {
    TempFolder folder;
    std::string path = folder.path("road.gmk");
    Connection connection;
    RowSet inlets;

    RowSetTest() {
        run_sql(path, std::string(small_project) +
                          "INSERT INTO INLET VALUES ('2', '2+00', NULL, '10'), ('10', '10+00', '', '1'),"
                          "('1', '1+00', '-12.5', NULL)");
        connection.open(path);
        inlets.open(connection, all_inlets);
    }
    [[nodiscard]] std::string query(const std::string& statement) const { return run_sql(path, statement); }
    [[nodiscard]] std::string number() const { return inlets.value("INLET_NUMBER").value_or("NULL"); }
};

TEST_F(RowSetTest, OpensOnTheFirstRowInTheOrderOfTheTexts) {
    EXPECT_EQ(inlets.record_count(), 3U);
    EXPECT_EQ(inlets.columns(), (Texts{"INLET_NUMBER", "STATION", "OFFSET", "PREINLET1"}));
    EXPECT_EQ(inlets.all_values("INLET_NUMBER"), (Row{"1", "10", "2"}));
    EXPECT_EQ(number(), "1");
    EXPECT_FALSE(inlets.at_beginning());
    EXPECT_FALSE(inlets.at_end());
}

TEST_F(RowSetTest, ANullStaysApartFromAnEmptyText) {
    EXPECT_EQ(inlets.all_values("OFFSET"), (Row{"-12.5", "", std::nullopt}));
    EXPECT_EQ(inlets.row_at(1), (Row{"10", "10+00", "", "1"}));
    EXPECT_EQ(inlets.row_at(2), (Row{"2", "2+00", std::nullopt, "10"}));
}

TEST_F(RowSetTest, ComparesAndOrdersByCase) {
    run_sql(path, "DELETE FROM INLET; INSERT INTO INLET (INLET_NUMBER) VALUES ('a'), ('B'), ('A')");
    inlets.requery();
    EXPECT_EQ(inlets.all_values("INLET_NUMBER"), (Row{"A", "B", "a"}));
    inlets.find("INLET_NUMBER = 'b'");
    EXPECT_TRUE(inlets.at_end());
}

TEST_F(RowSetTest, TakesTheAliasesOfTheStatement) {
    inlets.open(connection,
                "SELECT INLET_NUMBER AS [INLET_ID],STATION, OFFSET  FROM INLET ORDER BY INLET_NUMBER");
    EXPECT_EQ(inlets.columns(), (Texts{"INLET_ID", "STATION", "OFFSET"}));
    inlets.find("INLET_ID = '10'");
    EXPECT_EQ(inlets.row(), (Row{"10", "10+00", ""}));
    inlets.save({"11", "10+00", ""});
    EXPECT_EQ(query("SELECT group_concat(INLET_NUMBER) FROM INLET"), "2,11,1");
}

TEST_F(RowSetTest, TakesTheConditionOfTheStatement) {
    inlets.open(connection, "select INLET_NUMBER,PREINLET1 from INLET WHERE PREINLET1 = '10'");
    EXPECT_EQ(inlets.record_count(), 1U);
    EXPECT_EQ(inlets.row(), (Row{"2", "10"}));
}

TEST_F(RowSetTest, AFaultyStatementFailsInTheEnginesWords) {
    EXPECT_EQ(failure_text([&] { inlets.open(connection, "SELECT * FROM OUTLET"); }),
              "no such table: OUTLET");
    EXPECT_EQ(failure_text([&] { inlets.open(connection, "SELECT RUNOFF_AREA FROM INLET"); }),
              "no such column: RUNOFF_AREA");
    EXPECT_EQ(
        failure_text([&] { inlets.open(connection, "SELECT * FROM INLET WHERE INLET_NUMBER = 'o'clock'"); }),
        "near \"clock\": syntax error");
    EXPECT_EQ(failure_text([&] {
                  inlets.open(connection, "SELECT * FROM INLET WHERE INLET_NUMBER = 'x'; DELETE FROM INLET");
              }),
              "there is text after the end of the statement");
}

TEST_F(RowSetTest, AStatementOfAnotherKindIsRefused) {
    EXPECT_EQ(failure_text([&] { inlets.open(connection, "DELETE FROM INLET"); }),
              "the statement returns no rows");
    EXPECT_EQ(failure_text([&] { inlets.open(connection, "SELECT count(*) FROM INLET"); }),
              "a row set holds columns of one table only");
    EXPECT_EQ(
        failure_text([&] { inlets.open(connection, "SELECT INLET_NUMBER, UNITS FROM INLET, PROJECT"); }),
        "a row set holds columns of one table only");
    EXPECT_EQ(query("SELECT count(*) FROM INLET"), "3");
}

TEST_F(RowSetTest, AFailedOpenLeavesTheSetAsItWas) {
    inlets.move_next();
    EXPECT_EQ(failure_text([&] { inlets.open(connection, "SELECT"); }), "incomplete input");
    EXPECT_EQ(number(), "10");
}

TEST_F(RowSetTest, ASetThatIsNotOpenRefusesEverything) {
    inlets.close();
    EXPECT_FALSE(inlets.is_open());
    inlets.close();
    EXPECT_EQ(failure_text([&] { static_cast<void>(inlets.record_count()); }), "the row set is not open");
    EXPECT_EQ(failure_text([&] { inlets.requery(); }), "the row set is not open");
    EXPECT_EQ(failure_text([&] { inlets.cancel(); }), "the row set is not open");
    EXPECT_EQ(failure_text([&] { inlets.open(Connection(), all_inlets); }), "the connection is not open");
}

TEST_F(RowSetTest, ASetWhoseConnectionClosedRefusesEverything) {
    connection.close();
    for (const auto& use : std::vector<std::function<void()>>{
             [&] { static_cast<void>(inlets.record_count()); }, [&] { static_cast<void>(inlets.columns()); },
             [&] { static_cast<void>(inlets.at_end()); }, [&] { inlets.move_first(); },
             [&] { inlets.requery(); }, [&] { static_cast<void>(inlets.row()); },
             [&] { inlets.find("STATION = '1'"); }, [&] { inlets.add_new(); }, [&] { inlets.save(Row(4)); },
             [&] { inlets.remove(); }}) {
        EXPECT_EQ(failure_text(use), "the connection is not open");
    }
    connection.open(path);
    EXPECT_EQ(failure_text([&] { static_cast<void>(inlets.row()); }), "the connection is not open");
}

TEST_F(RowSetTest, MovesStopAtTheEndMarkers) {
    inlets.move(2);
    EXPECT_EQ(number(), "2");
    inlets.move(100);
    EXPECT_TRUE(inlets.at_end());
    inlets.move_next();
    EXPECT_TRUE(inlets.at_end());
    inlets.move(-1);
    EXPECT_EQ(number(), "2");
    inlets.move(INT64_MIN);
    EXPECT_TRUE(inlets.at_beginning());
    EXPECT_FALSE(inlets.at_end());
    inlets.move(1);
    EXPECT_EQ(number(), "1");
    inlets.move(INT64_MAX);
    EXPECT_TRUE(inlets.at_end());
    inlets.move_last();
    EXPECT_EQ(number(), "2");
    inlets.move_first();
    EXPECT_EQ(number(), "1");
}

TEST_F(RowSetTest, AnEndMarkerIsNoRow) {
    inlets.move(3);
    EXPECT_EQ(failure_text([&] { static_cast<void>(inlets.row()); }), "there is no current row");
    EXPECT_EQ(failure_text([&] { static_cast<void>(inlets.value("STATION")); }), "there is no current row");
    EXPECT_EQ(failure_text([&] { static_cast<void>(inlets.bookmark()); }), "there is no current row");
    EXPECT_EQ(failure_text([&] { inlets.save(Row(4)); }), "there is no current row");
    EXPECT_EQ(failure_text([&] { inlets.remove(); }), "there is no current row");
    EXPECT_EQ(failure_text([&] { static_cast<void>(inlets.row_at(3)); }), "there is no row 3");
}

TEST_F(RowSetTest, AnEmptySetIsAtItsBeginningAndItsEnd) {
    inlets.open(connection, "SELECT * FROM INLET WHERE INLET_NUMBER = '3'");
    for (const auto& step : std::vector<std::function<void()>>{
             [] {}, [&] { inlets.move_first(); }, [&] { inlets.move_last(); }, [&] { inlets.move_next(); },
             [&] { inlets.move(-1); }, [&] { inlets.find("STATION = ''"); }}) {
        step();
        EXPECT_EQ(inlets.record_count(), 0U);
        EXPECT_TRUE(inlets.at_beginning());
        EXPECT_TRUE(inlets.at_end());
    }
    EXPECT_TRUE(inlets.all_values("STATION").empty());
}

TEST_F(RowSetTest, FindGoesForwardFromTheCurrentRowAndIncludesIt) {
    inlets.find("INLET_NUMBER = '10'");
    EXPECT_EQ(number(), "10");
    inlets.find("INLET_NUMBER = '10'");
    EXPECT_EQ(number(), "10");
    inlets.find("INLET_NUMBER = '1'");
    EXPECT_TRUE(inlets.at_end());
    inlets.move_first();
    inlets.move(-1);
    inlets.find("INLET_NUMBER = '1'");
    EXPECT_EQ(number(), "1");
}

TEST_F(RowSetTest, FindTakesTheFirstOfSeveralInTheOrderOfTheSet) {
    run_sql(path, "UPDATE INLET SET STATION = 'same'");
    inlets.find("STATION = 'same'");
    EXPECT_EQ(number(), "1");
    inlets.move_next();
    inlets.find("STATION = 'same'");
    EXPECT_EQ(number(), "10");
}

TEST_F(RowSetTest, FindTellsAnEmptyTextFromANull) {
    inlets.find("OFFSET = ''");
    EXPECT_EQ(number(), "10");
    inlets.move_next();
    inlets.find("OFFSET = ''");
    EXPECT_TRUE(inlets.at_end());
}

TEST_F(RowSetTest, FindComparesTextsAndNotNumbers) {
    inlets.find("INLET_NUMBER = '1.0'");
    EXPECT_TRUE(inlets.at_end());
}

TEST_F(RowSetTest, FindRefusesAnyOtherCondition) {
    EXPECT_EQ(failure_text([&] { inlets.find("INLET_NUMBER = 'o'clock'"); }),
              "a condition has the form COLUMN = 'text': INLET_NUMBER = 'o'clock'");
    EXPECT_EQ(failure_text([&] { inlets.find("INLET_ID = '1'"); }), "no such column: INLET_ID");
    EXPECT_EQ(number(), "1");
}

TEST_F(RowSetTest, ABookmarkFindsItsRowAgainAfterARequery) {
    inlets.move_next();
    const auto mark = inlets.bookmark();
    run_sql(path, "INSERT INTO INLET (INLET_NUMBER) VALUES ('0')");
    inlets.requery();
    EXPECT_EQ(number(), "0");
    inlets.go_to(mark);
    EXPECT_EQ(number(), "10");
    run_sql(path, "DELETE FROM INLET WHERE INLET_NUMBER = '10'");
    inlets.requery();
    EXPECT_EQ(failure_text([&] { inlets.go_to(mark); }), "the bookmarked row is no longer in the set");
    EXPECT_EQ(number(), "0");
}

TEST_F(RowSetTest, TheCurrentRowStaysAsItWasReadUntilTheSetMoves) {
    EXPECT_EQ(inlets.value("STATION"), "1+00");
    run_sql(path, "UPDATE INLET SET STATION = 'new' WHERE INLET_NUMBER = '1'");
    EXPECT_EQ(inlets.value("STATION"), "1+00");
    EXPECT_EQ(inlets.row_at(0)[1], "new");
    inlets.move_first();
    EXPECT_EQ(inlets.value("STATION"), "new");
}

TEST_F(RowSetTest, AWordThatIsNoColumnIsAFailure) {
    EXPECT_EQ(failure_text([&] { static_cast<void>(inlets.value("QCARRY")); }), "no such column: QCARRY");
    EXPECT_EQ(failure_text([&] { static_cast<void>(inlets.all_values("QCARRY")); }),
              "no such column: QCARRY");
}

TEST_F(RowSetTest, TheSetStaysAsItIsWhileTheFileChanges) {
    run_sql(path,
            "DELETE FROM INLET WHERE INLET_NUMBER = '10'; INSERT INTO INLET (INLET_NUMBER) VALUES ('9')");
    EXPECT_EQ(inlets.record_count(), 3U);
    run_sql(path, "DELETE FROM INLET");
    EXPECT_EQ(inlets.all_values("INLET_NUMBER"), Row(3));
    EXPECT_EQ(failure_text([&] { static_cast<void>(inlets.row()); }), "the row is no longer in the file");
    inlets.requery();
    EXPECT_EQ(inlets.record_count(), 0U);
}

TEST_F(RowSetTest, ANewRowComesBehindTheLastAndIsCurrent) {
    inlets.move_last();
    inlets.add_new();
    EXPECT_TRUE(inlets.adding());
    EXPECT_EQ(inlets.record_count(), 3U);
    EXPECT_EQ(inlets.row(), Row(4));
    EXPECT_FALSE(inlets.at_end());
    EXPECT_EQ(failure_text([&] { static_cast<void>(inlets.bookmark()); }), "there is no current row");
    EXPECT_EQ(failure_text([&] { inlets.remove(); }), "there is no current row");
    inlets.save({"15", "", std::nullopt, "o'clock"});
    EXPECT_FALSE(inlets.adding());
    EXPECT_EQ(inlets.record_count(), 4U);
    EXPECT_EQ(inlets.all_values("INLET_NUMBER"), (Row{"1", "10", "2", "15"}));
    EXPECT_EQ(inlets.row(), (Row{"15", "", std::nullopt, "o'clock"}));
    EXPECT_EQ(query("SELECT * FROM INLET WHERE INLET_NUMBER = '15'"), "15||NULL|o'clock");
    inlets.requery();
    EXPECT_EQ(inlets.all_values("INLET_NUMBER"), (Row{"1", "10", "15", "2"}));
}

TEST_F(RowSetTest, ColumnsLeftNullTakeTheTablesDefaults) {
    RowSet projects;
    projects.open(connection, "SELECT * from PROJECT Order by PROJECT_ID");
    projects.add_new();
    projects.save({"P1", std::nullopt, "ENGLISH"});
    EXPECT_EQ(projects.row(), (Row{"P1", "GULLYMARKAL", "ENGLISH"}));
    projects.add_new();
    projects.save(Row(3));
    EXPECT_EQ(query("SELECT * FROM PROJECT"), "P1|GULLYMARKAL|ENGLISH\nNULL|GULLYMARKAL|NULL");
}

TEST_F(RowSetTest, CancelGoesBackToTheRowBefore) {
    inlets.move_next();
    inlets.add_new();
    inlets.cancel();
    EXPECT_FALSE(inlets.adding());
    EXPECT_EQ(number(), "10");
    inlets.cancel();
    EXPECT_EQ(number(), "10");
    EXPECT_EQ(query("SELECT count(*) FROM INLET"), "3");
}

TEST_F(RowSetTest, CancelOnAnEmptySetLeavesItEmpty) {
    RowSet projects;
    projects.open(connection, "SELECT * from PROJECT Order by PROJECT_ID");
    projects.add_new();
    projects.cancel();
    EXPECT_TRUE(projects.at_end());
    EXPECT_TRUE(projects.at_beginning());
}

TEST_F(RowSetTest, AMoveARequeryAndASecondNewRowDropThePendingOne) {
    for (const auto& leave : std::vector<std::function<void()>>{
             [&] { inlets.move_first(); }, [&] { inlets.find("INLET_NUMBER = '1'"); },
             [&] { inlets.requery(); }, [&] { inlets.add_new(), inlets.cancel(); }}) {
        inlets.add_new();
        leave();
        EXPECT_FALSE(inlets.adding());
        EXPECT_EQ(inlets.record_count(), 3U);
        EXPECT_EQ(number(), "1");
    }
}

TEST_F(RowSetTest, ASaveWritesOnlyTheColumnsThatChanged) {
    const Row row = inlets.row();
    run_sql(path, "UPDATE INLET SET STATION = 'elsewhere' WHERE INLET_NUMBER = '1'");
    Row changed = row;
    changed[2] = std::nullopt;
    changed[3] = "it's";
    inlets.save(changed);
    EXPECT_EQ(query("SELECT * FROM INLET WHERE INLET_NUMBER = '1'"), "1|elsewhere|NULL|it's");
    EXPECT_EQ(query("SELECT count(*) FROM INLET WHERE OFFSET IS NULL"), "2");
}

TEST_F(RowSetTest, ASavedRowCountsAsLoaded) {
    inlets.save({"1", "a", "", ""});
    run_sql(path, "UPDATE INLET SET STATION = 'b' WHERE INLET_NUMBER = '1'");
    inlets.save({"1", "a", "c", ""});
    EXPECT_EQ(query("SELECT STATION, OFFSET FROM INLET WHERE INLET_NUMBER = '1'"), "b|c");
}

TEST_F(RowSetTest, ANumberLikeTextStaysTheTextThatItIs) {
    for (const char* text : {"10", "010", "1.50", "1e3", "+5", " 7 ", "0x10", ".5"}) {
        inlets.save({text, "", "", ""});
        inlets.move_first();
        EXPECT_EQ(inlets.value("INLET_NUMBER"), text);
        EXPECT_EQ(query("SELECT DISTINCT typeof(INLET_NUMBER) FROM INLET"), "text");
    }
}

TEST_F(RowSetTest, TextsOfAnyContentComeBackAsTheyWere) {
    const std::string bytes("a\0b \xC3\xBC 'x'; -- \n", 16);
    inlets.save({"1", bytes, "", ""});
    inlets.move_first();
    EXPECT_EQ(inlets.value("STATION"), bytes);
}

TEST_F(RowSetTest, ASaveOfARowThatIsGoneIsAFailure) {
    Row row = inlets.row();
    run_sql(path, "DELETE FROM INLET WHERE INLET_NUMBER = '1'");
    EXPECT_EQ(failure_text([&] { inlets.save(row); }), "the row is no longer in the file");
    row[1] = "changed";
    EXPECT_EQ(failure_text([&] { inlets.save(row); }), "the row is no longer in the file");
    EXPECT_EQ(failure_text([&] { inlets.remove(); }), "the row is no longer in the file");
}

TEST_F(RowSetTest, ARowOfAnotherLengthIsAFailure) {
    EXPECT_EQ(failure_text([&] { inlets.save({"1", "2"}); }), "a row has a value for each column");
    EXPECT_EQ(query("SELECT * FROM INLET WHERE INLET_NUMBER = '1'"), "1|1+00|-12.5|NULL");
}

TEST_F(RowSetTest, AFailedSaveKeepsTheNewRowPending) {
    run_sql(path, "CREATE UNIQUE INDEX one_each ON INLET(INLET_NUMBER)");
    inlets.add_new();
    EXPECT_EQ(failure_text([&] {
                  inlets.save({"2", "", "", ""});
              }),
              "UNIQUE constraint failed: INLET.INLET_NUMBER");
    EXPECT_TRUE(inlets.adding());
    inlets.save({"3", "", "", ""});
    EXPECT_EQ(query("SELECT count(*) FROM INLET"), "4");
}

TEST_F(RowSetTest, RemoveDeletesTheCurrentRowAloneAndStandsOnTheNext) {
    run_sql(path, "UPDATE INLET SET INLET_NUMBER = 'same'");
    inlets.move_next();
    inlets.remove();
    EXPECT_EQ(inlets.record_count(), 2U);
    EXPECT_EQ(inlets.value("STATION"), "2+00");
    EXPECT_EQ(query("SELECT group_concat(STATION) FROM INLET"), "2+00,1+00");
    inlets.remove();
    EXPECT_TRUE(inlets.at_end());
    inlets.move_first();
    inlets.remove();
    EXPECT_TRUE(inlets.at_beginning());
    EXPECT_TRUE(inlets.at_end());
}

TEST_F(RowSetTest, ARequeryTakesColumnsThatWereAdded) {
    connection.execute("ALTER TABLE INLET ADD INTENSITY TEXT(10), INTENSITY2 TEXT(10)");
    inlets.requery();
    EXPECT_EQ(inlets.columns().size(), 6U);
    EXPECT_EQ(inlets.value("INTENSITY"), std::nullopt);
}

TEST_F(RowSetTest, TwoSetsOnOneFileDoNotHinderEachOther) {
    Connection second;
    second.open(path);
    RowSet grid;
    grid.open(second, all_inlets);
    inlets.save({"1", "first", "", ""});
    grid.save({"1", "second", "", ""});
    inlets.remove();
    grid.requery();
    EXPECT_EQ(grid.record_count(), 2U);
}

TEST_F(RowSetTest, AMovedSetGoesOnWhereItWas) {
    inlets.move_next();
    RowSet taken = std::move(inlets);
    EXPECT_EQ(taken.value("INLET_NUMBER"), "10");
    inlets = std::move(taken);
    EXPECT_EQ(number(), "10");
}

}  // namespace
