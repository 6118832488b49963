#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/inlet_record.h"
#include "platform/files.h"
#include "platform/row_set.h"
#include "store/project_store.h"
#include "support/outside_double.h"
#include "support/sqlite_file.h"

namespace {

using gullymark::platform::Connection;
using gullymark::platform::Row;
using gullymark::platform::RowSet;
using gullymark::testing_support::run_sql;
using gullymark::testing_support::TempFolder;
using testing::EndsWith;

struct ProjectTemplateTest : testing::Test {
    TempFolder folder;
    std::string path = folder.path("new.gmk");
    Connection connection;

    ProjectTemplateTest() {
        gullymark::platform::copy_file(GULLYMARK_TEMPLATE, path);
        connection.open(path);
    }
};

TEST_F(ProjectTemplateTest, ACopyHoldsNoProjectAndNoInlet) {
    RowSet rows;
    rows.open(connection, gullymark::store::select_project);
    EXPECT_EQ(rows.record_count(), 0U);
    rows.open(connection, gullymark::store::select_inlets);
    EXPECT_EQ(rows.record_count(), 0U);
}

TEST_F(ProjectTemplateTest, ItsInletsHaveTheColumnsOfTheRecordInTheirOrder) {
    RowSet inlets;
    inlets.open(connection, gullymark::store::select_inlets);
    std::vector<std::string> columns;
    for (const auto column : gullymark::engine::all_columns) {
        columns.emplace_back(gullymark::engine::column_name(column));
    }
    EXPECT_EQ(inlets.columns(), columns);
}

TEST_F(ProjectTemplateTest, ItsProjectHasEveryColumnOfTheDetailsAndTheRelease) {
    RowSet project;
    project.open(connection, gullymark::store::select_project);
    EXPECT_EQ(
        project.columns(),
        (std::vector<std::string>{"PROJECT_ID", "PROJECT_NAME", "DESCRIPTION", "LOCATION", "COUNTY", "STATE",
                                  "DESIGNER", "UNITS", "PRODUCT_NAME", "MAJOR_RELEASE", "MINOR_RELEASE",
                                  "RELEASE_DATE", "UDEF1", "UDEF2", "UDEF3", "UDEF4", "UDEF5"}));
}

TEST_F(ProjectTemplateTest, ANewProjectIsMarkedWithProductAndRelease) {
    RowSet project;
    project.open(connection, gullymark::store::select_project);
    project.add_new();
    Row row(project.columns().size());
    row.at(0) = "P-1";
    project.save(row);
    EXPECT_EQ(run_sql(path, "SELECT PRODUCT_NAME, MAJOR_RELEASE, MINOR_RELEASE, RELEASE_DATE FROM PROJECT"),
              "GULLYMARKAL|1|00|MAY 2010");
}

TEST_F(ProjectTemplateTest, EveryColumnKeepsANumberAsTheTextThatItIs) {
    for (const char* statement : {gullymark::store::select_project, gullymark::store::select_inlets}) {
        RowSet rows;
        rows.open(connection, statement);
        rows.add_new();
        const Row texts(rows.columns().size(), "010.50");
        rows.save(texts);
        rows.requery();
        EXPECT_EQ(rows.row(), texts);
    }
}

TEST_F(ProjectTemplateTest, ListsAndSearchesByNumberNeedNotReadTheRows) {
    const auto plan = [&](const std::string& select) {
        return run_sql(path, "EXPLAIN QUERY PLAN " + select);
    };
    EXPECT_THAT(plan("SELECT rowid FROM INLET ORDER BY INLET_NUMBER"),
                EndsWith("COVERING INDEX INLET_BY_NUMBER"));
    for (const char* column : {"NUMBER", "PREINLET1", "PREINLET2"}) {
        const std::string name = column[0] == 'N' ? "INLET_NUMBER" : column;
        EXPECT_THAT(plan("SELECT rowid FROM INLET WHERE " + name + " = 'x'"),
                    EndsWith("COVERING INDEX INLET_BY_" + std::string(column) + " (" + name + "=?)"));
    }
}

}  // namespace
