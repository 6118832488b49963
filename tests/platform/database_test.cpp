#include "platform/database.h"
#include "platform/row_set.h"

#include <gtest/gtest.h>

#include "support/failure_text.h"
#include "support/outside_double.h"
#include "support/sqlite_file.h"

namespace {

using gullymark::platform::Connection;
using gullymark::platform::RowSet;
using gullymark::testing_support::failure_text;
using gullymark::testing_support::run_sql;
using gullymark::testing_support::small_project;
using gullymark::testing_support::TempFolder;

struct ConnectionTest : testing::Test {
    TempFolder folder;
    std::string path = folder.path("road.gmk");
    Connection connection;

    ConnectionTest() {
        run_sql(path, small_project);
        connection.open(path);
    }
    [[nodiscard]] std::string query(const std::string& statement) const { return run_sql(path, statement); }
};

TEST_F(ConnectionTest, ItIsOpenUntilItIsClosed) {
    EXPECT_TRUE(connection.is_open());
    connection.close();
    EXPECT_FALSE(connection.is_open());
}

TEST_F(ConnectionTest, AClosedOneRefusesEverything) {
    connection.close();
    EXPECT_EQ(failure_text([&] { connection.close(); }), "no project file is open");
    EXPECT_EQ(failure_text([&] { connection.execute("DELETE FROM INLET"); }), "no project file is open");
}

TEST_F(ConnectionTest, ASecondOpenTakesThePlaceOfTheFirst) {
    const std::string other = folder.path("other.gmk");
    run_sql(other, small_project);
    connection.open(other);
    connection.execute("INSERT INTO INLET (INLET_NUMBER) VALUES ('1')");
    EXPECT_EQ(query("SELECT count(*) FROM INLET"), "0");
    EXPECT_EQ(run_sql(other, "SELECT count(*) FROM INLET"), "1");
}

TEST_F(ConnectionTest, AssignedAnewItClosesTheOldFile) {
    Connection other;
    other.open(path);
    connection = Connection();
    EXPECT_FALSE(connection.is_open());
    connection = std::move(other);
    EXPECT_TRUE(connection.is_open());
}

TEST_F(ConnectionTest, AStatementRunsAsItStands) {
    connection.execute("INSERT INTO INLET (INLET_NUMBER, STATION) VALUES ('10', '1+00') ");
    connection.execute("UPDATE INLET SET INLET_NUMBER = '11' WHERE INLET_NUMBER = '10';");
    EXPECT_EQ(query("SELECT INLET_NUMBER, STATION, OFFSET, typeof(INLET_NUMBER) FROM INLET"),
              "11|1+00|NULL|text");
}

TEST_F(ConnectionTest, NothingBehindTheEndOfAStatementRuns) {
    EXPECT_EQ(failure_text([&] { connection.execute("DELETE FROM INLET; DROP TABLE INLET"); }),
              "there is text after the end of the statement");
    EXPECT_EQ(failure_text([&] { connection.execute(std::string("DELETE FROM INLET\0x", 19)); }),
              "there is text after the end of the statement");
    EXPECT_EQ(query("SELECT count(*) FROM INLET"), "0");
}

TEST_F(ConnectionTest, AStatementThatIsNoneIsAFailure) {
    EXPECT_EQ(failure_text([&] { connection.execute(""); }), "there is no statement to run");
}

TEST_F(ConnectionTest, AStatementThatReturnsRowsIsAFailure) {
    EXPECT_EQ(failure_text([&] { connection.execute("SELECT * FROM INLET"); }), "the statement returns rows");
}

TEST_F(ConnectionTest, AnApostropheBreaksTheStatement) {
    EXPECT_EQ(failure_text([&] { connection.execute("UPDATE INLET SET PREINLET1 = 'o'clock'"); }),
              "near \"clock\": syntax error");
}

TEST_F(ConnectionTest, AStatementWithACommentIsRefused) {
    constexpr const char* refusal = "-- and /* cannot stand in a statement outside of quote marks";
    connection.execute("INSERT INTO INLET (INLET_NUMBER) VALUES ('1'), ('2')");
    EXPECT_EQ(failure_text([&] {
                  connection.execute("UPDATE INLET SET INLET_NUMBER = '5'--' WHERE INLET_NUMBER = '1'");
              }),
              refusal);
    EXPECT_EQ(failure_text([&] { connection.execute("UPDATE INLET SET INLET_NUMBER = '5' /*"); }), refusal);
    EXPECT_EQ(failure_text([&] { connection.execute("-- a remark"); }), refusal);
    RowSet inlets;
    EXPECT_EQ(failure_text(
                  [&] { inlets.open(connection, "SELECT * FROM INLET WHERE INLET_NUMBER = '1' OR 1 --'"); }),
              refusal);
    connection.execute("UPDATE INLET SET INLET_NUMBER = '5--/*' WHERE INLET_NUMBER = '1'");
    EXPECT_EQ(query("SELECT group_concat(INLET_NUMBER) FROM INLET"), "5--/*,2");
}

TEST_F(ConnectionTest, DoubleQuotesHoldNamesOnly) {
    EXPECT_EQ(failure_text([&] { connection.execute("UPDATE INLET SET STATION = \"abc\""); }),
              "no such column: abc");
}

TEST_F(ConnectionTest, AnUnknownColumnRejectsTheWholeUpdate) {
    connection.execute("INSERT INTO PROJECT (PROJECT_ID) VALUES ('P')");
    EXPECT_EQ(failure_text(
                  [&] { connection.execute("UPDATE PROJECT SET PROJECT_ID = 'Q', MINOR_FRELEASE = '00'"); }),
              "no such column: MINOR_FRELEASE");
    EXPECT_EQ(query("SELECT PROJECT_ID FROM PROJECT"), "P");
}

TEST_F(ConnectionTest, AlterAddsColumnByColumn) {
    connection.execute("INSERT INTO INLET (INLET_NUMBER) VALUES ('1')");
    connection.execute(
        "ALTER TABLE INLET ADD RUNOFF_AREA TEXT(10),RUNOFF_COEFF TEXT(10), INTENSITY TEXT(10) ");
    connection.execute("UPDATE INLET SET INTENSITY = 4.5");
    EXPECT_EQ(query("SELECT RUNOFF_AREA, RUNOFF_COEFF, INTENSITY, typeof(INTENSITY) FROM INLET"),
              "NULL|NULL|4.5|text");
}

TEST_F(ConnectionTest, AlterAddsEachColumnThatItCanAndTellsTheFirstFailure) {
    EXPECT_EQ(
        failure_text([&] {
            connection.execute("ALTER TABLE INLET ADD A TEXT(3), STATION TEXT(3), B TEXT(3), OFFSET TEXT(3)");
        }),
        "duplicate column name: STATION");
    EXPECT_EQ(query("SELECT group_concat(name) FROM pragma_table_info('INLET')"),
              "INLET_NUMBER,STATION,OFFSET,PREINLET1,A,B");
}

TEST_F(ConnectionTest, NoOtherFileCanBeAttached) {
    EXPECT_EQ(failure_text([&] { connection.execute("ATTACH '" + folder.path("x.db") + "' AS x"); }),
              "too many attached databases - max 0");
}

TEST_F(ConnectionTest, TriggersOfTheFileDoNotRun) {
    connection.close();
    run_sql(path, "CREATE TRIGGER surprise AFTER INSERT ON INLET BEGIN DELETE FROM INLET; END");
    connection.open(path);
    connection.execute("INSERT INTO INLET (INLET_NUMBER) VALUES ('1')");
    EXPECT_EQ(query("SELECT INLET_NUMBER FROM INLET"), "1");
}

TEST_F(ConnectionTest, AFileInWriteAheadModeBecomesOneFileAgain) {
    connection.close();
    run_sql(path, "PRAGMA journal_mode = WAL");
    connection.open(path);
    connection.execute("INSERT INTO INLET (INLET_NUMBER) VALUES ('1')");
    EXPECT_EQ(query("PRAGMA journal_mode"), "delete");
    EXPECT_FALSE(std::filesystem::exists(path + "-wal"));
}

TEST_F(ConnectionTest, NothingStaysBesideTheFileAfterAStatement) {
    connection.execute("INSERT INTO INLET (INLET_NUMBER) VALUES ('1')");
    EXPECT_FALSE(std::filesystem::exists(path + "-journal"));
}

TEST_F(ConnectionTest, ARelativePathIsOneOfTheCurrentFolder) {
    std::filesystem::current_path(folder.path());
    run_sql(folder.path(":memory:"), small_project);
    connection.open(":memory:");
    connection.execute("INSERT INTO INLET (INLET_NUMBER) VALUES ('7')");
    EXPECT_EQ(run_sql(folder.path(":memory:"), "SELECT INLET_NUMBER FROM INLET"), "7");
}

}  // namespace
