#include "row_set_test.h"

#include <functional>

namespace gullymark::row_set_test {
namespace {

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
    inlets.move(1);
    EXPECT_EQ(inlets.row(), (Row{"10", "10+00", "", "1"}));
    inlets.move(1);
    EXPECT_EQ(inlets.row(), (Row{"2", "2+00", std::nullopt, "10"}));
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
    EXPECT_EQ(failure_text([&] { static_cast<void>(inlets.record_count()); }),
              "nothing was read from the project file");
    EXPECT_EQ(failure_text([&] { inlets.requery(); }), "nothing was read from the project file");
    EXPECT_EQ(failure_text([&] { inlets.cancel(); }), "nothing was read from the project file");
    EXPECT_EQ(failure_text([&] { inlets.open(Connection(), all_inlets); }), "no project file is open");
}

TEST_F(RowSetTest, ASetWhoseConnectionClosedRefusesEverything) {
    connection.close();
    for (const auto& use : std::vector<std::function<void()>>{
             [&] { static_cast<void>(inlets.record_count()); }, [&] { static_cast<void>(inlets.columns()); },
             [&] { static_cast<void>(inlets.at_end()); }, [&] { inlets.move_first(); },
             [&] { inlets.requery(); }, [&] { static_cast<void>(inlets.row()); },
             [&] { inlets.find("STATION = '1'"); }, [&] { inlets.add_new(); }, [&] { inlets.save(Row(4)); },
             [&] { inlets.remove(); }}) {
        EXPECT_EQ(failure_text(use), "no project file is open");
    }
    connection.open(path);
    EXPECT_EQ(failure_text([&] { static_cast<void>(inlets.row()); }), "no project file is open");
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

TEST_F(RowSetTest, FindTakesApostrophesAsTheyAre) {
    run_sql(path, "INSERT INTO INLET (INLET_NUMBER) VALUES ('O''Brien'), ('O''''Neill')");
    inlets.requery();
    for (const std::string text : {"O'Brien", "O''Neill"}) {
        inlets.move_first();
        inlets.find("INLET_NUMBER = '" + text + "'");
        ASSERT_FALSE(inlets.at_end()) << text;
        EXPECT_EQ(number(), text);
    }
}

TEST_F(RowSetTest, AFindThatFailsLeavesTheSetAtItsEnd) {
    EXPECT_EQ(failure_text([&] { inlets.find("INLET_NUMBER = 'x' OR 1"); }),
              "a condition has the form COLUMN = 'text': INLET_NUMBER = 'x' OR 1");
    EXPECT_TRUE(inlets.at_end());
    inlets.move_first();
    EXPECT_EQ(failure_text([&] { inlets.find("INLET_ID = '1'"); }), "no such column: INLET_ID");
    EXPECT_TRUE(inlets.at_end());
}

TEST_F(RowSetTest, AFindThatALockStopsLeavesTheSetAtItsEndAndNothingIsSavedFromThere) {
    sqlite3* other = nullptr;
    sqlite3_open(path.c_str(), &other);
    sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    EXPECT_EQ(failure_text([&] { inlets.find("INLET_NUMBER = '10'"); }), "database is locked");
    sqlite3_close(other);
    EXPECT_TRUE(inlets.at_end());
    EXPECT_NE(failure_text([&] { inlets.save({"9", "", "", ""}); }), "(no failure)");
    EXPECT_EQ(query("SELECT group_concat(INLET_NUMBER) FROM INLET"), "2,10,1");
}

TEST_F(RowSetTest, ANewRowIsDroppedByAFindThatFails) {
    inlets.add_new();
    EXPECT_EQ(failure_text([&] { inlets.find("INLET_NUMBER"); }),
              "a condition has the form COLUMN = 'text': INLET_NUMBER");
    EXPECT_FALSE(inlets.adding());
    EXPECT_TRUE(inlets.at_end());
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
    EXPECT_EQ(failure_text([&] { inlets.go_to(mark); }), "the row is no longer in the project");
    EXPECT_EQ(number(), "0");
}

TEST_F(RowSetTest, TheCurrentRowStaysAsItWasReadUntilTheSetMoves) {
    EXPECT_EQ(inlets.value("STATION"), "1+00");
    run_sql(path, "UPDATE INLET SET STATION = 'new' WHERE INLET_NUMBER = '1'");
    EXPECT_EQ(inlets.value("STATION"), "1+00");
    EXPECT_EQ(inlets.read_texts().text(0, 1), "new");
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

TEST_F(RowSetTest, ARequerySeesEveryChangeOfTheFile) {
    RowSet others;
    others.open(connection, all_inlets);
    connection.execute("UPDATE INLET SET INLET_NUMBER = '9' WHERE INLET_NUMBER = '1'");
    inlets.requery();
    EXPECT_EQ(inlets.all_values("INLET_NUMBER"), (Row{"10", "2", "9"}));
    run_sql(path, "UPDATE INLET SET INLET_NUMBER = '0' WHERE INLET_NUMBER = '2'");
    inlets.requery();
    EXPECT_EQ(inlets.all_values("INLET_NUMBER"), (Row{"0", "10", "9"}));
    run_sql(path, "DELETE FROM INLET WHERE INLET_NUMBER = '10'");
    inlets.requery();
    EXPECT_EQ(inlets.record_count(), 2U);
    inlets.remove();
    EXPECT_EQ(inlets.record_count(), 1U);
    EXPECT_EQ(others.record_count(), 3U) << "a set keeps the rows that it read";
    others.requery();
    EXPECT_EQ(others.all_values("INLET_NUMBER"), Row{"9"});
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
}  // namespace gullymark::row_set_test
