#include "row_set_test.h"

#include <functional>

namespace gullymark::row_set_test {
namespace {

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

TEST_F(RowSetTest, ATextThatAnotherProgramStoredIsNotOverwritten) {
    const Row row = inlets.row();
    run_sql(path, "UPDATE INLET SET STATION = 'elsewhere' WHERE INLET_NUMBER = '1'");
    Row changed = row;
    changed[1] = "here";
    EXPECT_EQ(failure_text([&] { inlets.save(changed); }), "the row was changed by another program");
    EXPECT_EQ(query("SELECT STATION FROM INLET WHERE INLET_NUMBER = '1'"), "elsewhere");
    inlets.requery();
    inlets.save(changed);
    EXPECT_EQ(query("SELECT STATION FROM INLET WHERE INLET_NUMBER = '1'"), "here");
}

TEST_F(RowSetTest, ANewRowUnderTheKeyOfADeletedOneIsNotOverwritten) {
    inlets.find("INLET_NUMBER = '10'");
    Row changed = inlets.row();
    const auto key = std::to_string(inlets.bookmark());
    run_sql(path, "DELETE FROM INLET WHERE rowid = " + key +
                      "; INSERT INTO INLET (rowid, INLET_NUMBER) VALUES (" + key + ", '77')");
    changed[3] = "new";
    EXPECT_EQ(failure_text([&] { inlets.save(changed); }), "the row was changed by another program");
    EXPECT_EQ(query("SELECT * FROM INLET WHERE rowid = " + key), "77|NULL|NULL|NULL");
}

TEST_F(RowSetTest, ABlobFromElsewhereCanBeSavedOver) {
    run_sql(path, "UPDATE INLET SET STATION = x'3130' WHERE INLET_NUMBER = '1'");
    inlets.requery();
    Row changed = inlets.row();
    EXPECT_EQ(changed[1], "10");
    changed[1] = "11";
    inlets.save(changed);
    EXPECT_EQ(query("SELECT STATION FROM INLET WHERE INLET_NUMBER = '1'"), "11");
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

}  // namespace
}  // namespace gullymark::row_set_test
