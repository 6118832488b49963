// Old, foreign and damaged files, each opened in a copy.

#include <gtest/gtest.h>

#include "platform/files.h"
#include "platform/row_set.h"
#include "store/project_store.h"
#include "support/failure_text.h"
#include "support/outside_double.h"
#include "support/sqlite_file.h"

namespace {

using gullymark::platform::Connection;
using gullymark::platform::Row;
using gullymark::platform::RowSet;
using gullymark::store::select_grid;
using gullymark::store::select_inlets;
using gullymark::store::select_project;
using gullymark::testing_support::failure_text;
using gullymark::testing_support::run_sql;
using gullymark::testing_support::TempFolder;

struct KeptFilesTest : testing::Test {
    TempFolder folder;
    std::string path = folder.path("road.gmk");
    Connection connection;

    void open(const std::string& name) {
        gullymark::platform::copy_file(std::string(GULLYMARK_TEST_DIR) + "/files/" + name, path);
        connection.open(path);
    }
    [[nodiscard]] std::string open_failure(const std::string& name) {
        return failure_text([&] { open(name); });
    }
    [[nodiscard]] RowSet rows(const std::string& statement) const {
        RowSet set;
        set.open(connection, statement);
        return set;
    }
};

TEST_F(KeptFilesTest, AnOldFileOpensWithTheColumnsThatItHas) {
    for (const auto& [name, date] :
         {std::pair{"august_2007.gmk", "AUGUST 2007"}, {"augustl_2007.gmk", "AUGUSTL 2007"}}) {
        open(name);
        const RowSet project = rows(select_project);
        EXPECT_EQ(project.record_count(), 1U);
        EXPECT_EQ(project.value("RELEASE_DATE"), date);
        EXPECT_EQ(project.value("MAJOR_RELEASE"), "1.0");
        EXPECT_EQ(project.columns().size(), 11U);
        const RowSet inlets = rows(select_inlets);
        EXPECT_EQ(inlets.all_values("INLET_NUMBER"), (Row{"CB-1", "CB-2"}));
        EXPECT_EQ(inlets.value("QCARRY"), "0.683");
        EXPECT_EQ(inlets.columns().size(), 69U);
        EXPECT_EQ(failure_text([&] { static_cast<void>(inlets.value("INTENSITY")); }),
                  "no such column: INTENSITY");
    }
}

TEST_F(KeptFilesTest, AnOldFileTakesTheNewColumnsWithoutLosingAValue) {
    open("augustl_2007.gmk");
    const std::string before = run_sql(path, "SELECT * FROM INLET");
    connection.execute(
        "ALTER TABLE INLET ADD LDISCHARGE_OVERRIDE TEXT(3), RDISCHARGE_OVERRIDE TEXT(3), RUNOFF_AREA "
        "TEXT(10),"
        "RUNOFF_COEFF TEXT(10), INTENSITY TEXT(10), RUNOFF_AREA2 TEXT(10),RUNOFF_COEFF2 TEXT(10), INTENSITY2 "
        "TEXT(10), "
        "INLETXSLOPE TEXT(10)");
    RowSet inlets = rows(select_inlets);
    EXPECT_EQ(inlets.columns().size(), 78U);
    EXPECT_EQ(inlets.value("INTENSITY"), std::nullopt);
    Row row = inlets.row();
    row.back() = "0.0200";
    inlets.save(row);
    EXPECT_EQ(run_sql(path, "SELECT INLETXSLOPE FROM INLET ORDER BY INLET_NUMBER"), "0.0200\nNULL");
    for (const char* column : {"LDISCHARGE_OVERRIDE", "RDISCHARGE_OVERRIDE", "RUNOFF_AREA", "RUNOFF_COEFF",
                               "INTENSITY", "RUNOFF_AREA2", "RUNOFF_COEFF2", "INTENSITY2", "INLETXSLOPE"}) {
        run_sql(path, std::string("ALTER TABLE INLET DROP COLUMN ") + column);
    }
    EXPECT_EQ(run_sql(path, "SELECT * FROM INLET"), before);
}

TEST_F(KeptFilesTest, AFileOfAnotherProductOpensAndTellsIt) {
    open("other_product.gmk");
    EXPECT_EQ(rows(select_project).value("PRODUCT_NAME"), "OTHERPRODUCT");
}

TEST_F(KeptFilesTest, AMetricFileTellsItsUnits) {
    open("metric.gmk");
    EXPECT_EQ(rows(select_project).value("UNITS"), "METRIC");
    EXPECT_EQ(rows(select_inlets).columns().size(), 78U);
}

TEST_F(KeptFilesTest, WhatIsNoWholeProjectFileIsRefused) {
    EXPECT_EQ(open_failure("other_program.gmk"), "this is not a Gullymark project file - " + path);
    EXPECT_EQ(open_failure("empty.gmk"), "this is not a Gullymark project file - " + path);
    EXPECT_EQ(open_failure("text.gmk"), "file is not a database - " + path);
    EXPECT_EQ(open_failure("truncated.gmk"), "database disk image is malformed - " + path);
    EXPECT_FALSE(connection.is_open());
}

TEST_F(KeptFilesTest, AGarbledFileShowsItsListsAndFailsAtTheInlet) {
    open("garbled.gmk");
    EXPECT_EQ(rows(select_project).value("PROJECT_NAME"), "Mill Road");
    RowSet grid = rows(select_grid);
    EXPECT_EQ(grid.record_count(), 2U);
    EXPECT_EQ(failure_text([&] { static_cast<void>(grid.row()); }), "database disk image is malformed");
    EXPECT_EQ(failure_text([&] { grid.remove(); }), "database disk image is malformed");
    EXPECT_EQ(grid.record_count(), 2U);
}

}  // namespace
