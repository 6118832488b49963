#include "platform/text_rows.h"

#include "row_set_test.h"

namespace gullymark::row_set_test {
namespace {

using platform::TextRows;

TEST(TextRows, HasTheTextsThatWereAdded) {
    TextRows rows(2);
    EXPECT_EQ(rows.count(), 0U);
    for (const char* text : {"A1", "10+00", "", "11+00"}) {
        rows.add(text);
    }
    EXPECT_EQ(rows.count(), 2U);
    EXPECT_EQ(rows.text(0, 0), "A1");
    EXPECT_EQ(rows.text(0, 1), "10+00");
    EXPECT_EQ(rows.text(1, 0), "");
    EXPECT_EQ(rows.text(1, 1), "11+00");
}

TEST(TextRows, ArePutInAnyOrder) {
    TextRows rows(2);
    for (const char* text : {"A1", "10+00", "A2", "11+00", "A3", "12+00"}) {
        rows.add(text);
    }
    rows.put_in_order({2, 0, 7, 0});
    EXPECT_EQ(rows.count(), 4U);
    EXPECT_EQ(rows.text(0, 1), "12+00");
    EXPECT_EQ(rows.text(1, 0), "A1");
    EXPECT_EQ(rows.text(2, 0), "") << "never added";
    EXPECT_EQ(rows.text(3, 1), "10+00");
    EXPECT_EQ(rows.text(4, 0), "");
}

TEST(TextRows, ACellThatIsNotThereIsEmpty) {
    TextRows rows(2);
    rows.add("A1");
    rows.add("10+00");
    EXPECT_EQ(rows.text(1, 0), "");
    EXPECT_EQ(rows.text(0, 2), "");
    EXPECT_EQ(TextRows().text(0, 0), "");
    EXPECT_EQ(TextRows().count(), 0U);
}

TEST_F(RowSetTest, AllTextsAreReadInTheOrderOfTheSet) {
    const TextRows texts = inlets.read_texts();
    ASSERT_EQ(texts.count(), 3U);
    EXPECT_EQ(texts.text(0, 0), "1");
    EXPECT_EQ(texts.text(1, 0), "10");
    EXPECT_EQ(texts.text(2, 0), "2");
    EXPECT_EQ(texts.text(0, 2), "-12.5");
    EXPECT_EQ(texts.text(1, 3), "1");
    EXPECT_EQ(texts.text(2, 2), "") << "a null";
}

TEST_F(RowSetTest, TextsStayAsTheyWereRead) {
    const TextRows texts = inlets.read_texts();
    run_sql(path, "UPDATE INLET SET STATION = 'new'; DELETE FROM INLET WHERE INLET_NUMBER = '10'");
    EXPECT_EQ(texts.text(0, 1), "1+00");
    EXPECT_EQ(texts.text(1, 0), "10");
}

TEST_F(RowSetTest, ARowThatIsGoneHasEmptyTextsAndTheOthersStayInTheirPlaces) {
    run_sql(path,
            "DELETE FROM INLET WHERE INLET_NUMBER = '10'; INSERT INTO INLET (INLET_NUMBER) VALUES ('0')");
    const TextRows texts = inlets.read_texts();
    ASSERT_EQ(texts.count(), 3U);
    EXPECT_EQ(texts.text(0, 0), "1");
    EXPECT_EQ(texts.text(1, 0), "");
    EXPECT_EQ(texts.text(2, 0), "2");
}

TEST_F(RowSetTest, TwoSetsHaveTheSameRowsUntilSomethingIsStored) {
    RowSet others;
    EXPECT_FALSE(inlets.has_same_rows(others)) << "not open";
    others.open(connection, all_inlets);
    EXPECT_TRUE(others.has_same_rows(inlets));
    run_sql(path, "UPDATE INLET SET STATION = 'new' WHERE INLET_NUMBER = '10'");
    others.requery();
    EXPECT_FALSE(others.has_same_rows(inlets));
    inlets.requery();
    EXPECT_TRUE(others.has_same_rows(inlets));
    connection.execute("UPDATE INLET SET STATION = 'newer' WHERE INLET_NUMBER = '10'");
    others.requery();
    EXPECT_FALSE(others.has_same_rows(inlets));
}

TEST_F(RowSetTest, ReadingTextsHoldsNoLock) {
    const TextRows texts = inlets.read_texts();
    EXPECT_EQ(run_sql(path, "BEGIN EXCLUSIVE; UPDATE INLET SET STATION = ''; COMMIT; SELECT 'done'"), "done");
}

TEST_F(RowSetTest, ARowThatAnotherProgramGaveToAnotherInletIsNotRemoved) {
    inlets.move(1);
    EXPECT_EQ(number(), "10");
    run_sql(path, "UPDATE INLET SET INLET_NUMBER = '11' WHERE INLET_NUMBER = '10'");
    EXPECT_EQ(failure_text([&] { inlets.remove(); }), "the row was changed by another program");
    EXPECT_EQ(query("SELECT count(*) FROM INLET"), "3");
}

}  // namespace
}  // namespace gullymark::row_set_test
