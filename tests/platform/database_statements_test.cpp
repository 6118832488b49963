#include "platform/database_statements.h"

#include <gtest/gtest.h>

namespace {

using gullymark::platform::Condition;
using gullymark::platform::has_comment;
using gullymark::platform::keys_statement;
using gullymark::platform::read_condition;
using gullymark::platform::split_alter;
using Texts = std::vector<std::string>;

TEST(SplitAlter, OneStatementForEachColumn) {
    EXPECT_EQ(split_alter("ALTER TABLE INLET ADD A TEXT(3), B TEXT(10),C TEXT(10)"),
              (Texts{"ALTER TABLE INLET ADD A TEXT(3)", "ALTER TABLE INLET ADD B TEXT(10)",
                     "ALTER TABLE INLET ADD C TEXT(10)"}));
}

TEST(SplitAlter, ABlankAtTheEndChangesNothing) {
    EXPECT_EQ(split_alter("ALTER TABLE PROJECT ADD A TEXT(3), B TEXT(50) "),
              (Texts{"ALTER TABLE PROJECT ADD A TEXT(3)", "ALTER TABLE PROJECT ADD B TEXT(50) "}));
}

TEST(SplitAlter, ACommaWithinParenthesesOrQuotesIsNoSeparator) {
    EXPECT_EQ(split_alter("alter table [t,u] add a NUMERIC(10,2) DEFAULT 'it''s, well', \"b,c\" TEXT"),
              (Texts{"alter table [t,u] add a NUMERIC(10,2) DEFAULT 'it''s, well'",
                     "alter table [t,u] add \"b,c\" TEXT"}));
}

TEST(SplitAlter, AnyOtherStatementComesBackAsItIs) {
    for (const char* statement :
         {"UPDATE PROJECT SET A = '1', B = '2'", "ALTER TABLE t RENAME TO u, v", "ALTER TABLE", "", " ",
          "ALTERTABLE t ADD a, b", "ALTER TABLE ( ADD a, b"}) {
        EXPECT_EQ(split_alter(statement), Texts{statement});
    }
}

TEST(SplitAlter, AnEmptyPlaceBetweenCommasStaysAFaultyStatement) {
    EXPECT_EQ(split_alter("ALTER TABLE t ADD a,, b"),
              (Texts{"ALTER TABLE t ADD a", "ALTER TABLE t ADD ", "ALTER TABLE t ADD b"}));
    EXPECT_EQ(split_alter("ALTER TABLE t ADD"), Texts{"ALTER TABLE t ADD "});
}

TEST(SplitAlter, AParenthesisThatNeverClosesKeepsTheStatementWhole) {
    EXPECT_EQ(split_alter("ALTER TABLE t ADD a TEXT(3, b TEXT(4)").size(), 1U);
    EXPECT_EQ(split_alter("ALTER TABLE t ADD a TEXT DEFAULT 'x, b TEXT(4)").size(), 1U);
}

TEST(KeysStatement, TheListGivesWayToTheKeys) {
    EXPECT_EQ(keys_statement("SELECT * from PROJECT Order by PROJECT_ID"),
              "SELECT rowid FROM PROJECT ORDER BY PROJECT_ID");
    EXPECT_EQ(
        keys_statement("SELECT INLET_NUMBER AS [INLET_ID],STATION, OFFSET  FROM INLET ORDER BY INLET_NUMBER"),
        "SELECT rowid FROM INLET ORDER BY INLET_NUMBER");
}

TEST(KeysStatement, AFromWithinANameOrAQueryWithinTheListIsPassedOver) {
    EXPECT_EQ(keys_statement("SELECT a AS [COME FROM], (SELECT b FROM c), 'x FROM y', FROM_HERE FROM t"),
              "SELECT rowid FROM T");
}

TEST(KeysStatement, WhatStandsBetweenQuoteMarksStaysAsItIsWritten) {
    EXPECT_EQ(keys_statement("SELECT * FROM [my table]  WHERE\n\"Name\"='O''b  c'"),
              "SELECT rowid FROM [my table] WHERE \"Name\"='O''b  c'");
}

TEST(KeysStatement, NothingForAStatementWithoutASource) {
    EXPECT_EQ(keys_statement("SELECT 1"), std::nullopt);
    EXPECT_EQ(keys_statement("UPDATE t SET a = 1"), std::nullopt);
    EXPECT_EQ(keys_statement(""), std::nullopt);
}

TEST(ReadCondition, AColumnEqualsAText) {
    EXPECT_EQ(read_condition("INLET_NUMBER = 'CB-7'"), (Condition{"INLET_NUMBER", "CB-7"}));
    EXPECT_EQ(read_condition("A='x'"), (Condition{"A", "x"}));
    EXPECT_EQ(read_condition("  A  =  ''  "), (Condition{"A", ""}));
    EXPECT_EQ(read_condition("[INLET ID] = ' 1 '"), (Condition{"INLET ID", " 1 "}));
    EXPECT_EQ(read_condition("\"A\" = '%_*'"), (Condition{"A", "%_*"}));
}

TEST(ReadCondition, TheTextReachesFromTheFirstQuoteMarkToTheLast) {
    EXPECT_EQ(read_condition("A = 'O'Brien'"), (Condition{"A", "O'Brien"}));
    EXPECT_EQ(read_condition("A = 'o''clock' "), (Condition{"A", "o''clock"}));
    EXPECT_EQ(read_condition("A = '''"), (Condition{"A", "'"}));
    EXPECT_EQ(read_condition("A = 'x' OR B = 'y'"), (Condition{"A", "x' OR B = 'y"}));
}

TEST(ReadCondition, NothingForAnyOtherForm) {
    for (const char* condition :
         {"", "A", "A =", "A = ", "= 'x'", "A = x", "A = 'x", "A = '", "A <> 'x'", "A == 'x'", "A = \"x\"",
          "A B = 'x'", "[] = 'x'", "A = 'x';", "A = 'x' OR B"}) {
        EXPECT_EQ(read_condition(condition), std::nullopt) << condition;
    }
}

TEST(HasComment, TwoMarksOutsideOfQuotes) {
    for (const char* statement : {"-- a remark", "UPDATE t SET a = '5'--' WHERE a = '1'", "SELECT/**/1",
                                  "UPDATE t SET a = 1 /* all", "a--b", "SELECT 'it''s' --", "5--"}) {
        EXPECT_TRUE(has_comment(statement)) << statement;
    }
}

TEST(HasComment, NotBetweenQuoteMarksAndNotApart) {
    for (const char* statement : {"", "SELECT 1 - -1", "SELECT 8 / 2 * 3",
                                  "UPDATE t SET a = '5--', [b--c] = '/*' WHERE \"--\" = `/*`",
                                  "SELECT 'it''s --'", "SELECT 'no end --"}) {
        EXPECT_FALSE(has_comment(statement)) << statement;
    }
}

}  // namespace
