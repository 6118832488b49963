// A project file as a reviewer's program takes it in.

#include "review/read_project.h"

#include <gtest/gtest.h>

#include "support/failure_text.h"
#include "support/outside_double.h"
#include "support/sqlite_file.h"

namespace gullymark::review {
namespace {

using engine::Column;
using testing_support::failure_text;
using testing_support::read_file;
using testing_support::run_sql;
using testing_support::TempFolder;

const std::string kept_files = std::string(GULLYMARK_TEST_DIR) + "/files/";

/// The failure without the path that it ends with; "" when there is none.
std::string refusal(const std::string& path) {
    const auto text = failure_text([&] { static_cast<void>(read_project(path)); });
    EXPECT_TRUE(text == "(no failure)" || text.ends_with(" - " + path)) << text;
    return text == "(no failure)" ? "" : text.substr(0, text.rfind(" - " + path));
}

struct ReadProjectTest : testing::Test {
    TempFolder folder;
    std::string path = folder.path("road.gmk");

    ReadProjectTest() { std::filesystem::copy_file(GULLYMARK_TEMPLATE, path); }
};

TEST_F(ReadProjectTest, DetailsAndInletsStandAsInTheFile) {
    run_sql(
        path,
        "INSERT INTO PROJECT (PROJECT_ID, PROJECT_NAME, COUNTY, STATE, DESIGNER, UNITS)"
        " VALUES ('P-1', 'Mill Road', 'Mobile', 'Alabama', 'R. Vane', 'ENGLISH');"
        "INSERT INTO INLET (INLET_NUMBER, STATION, QINT) VALUES ('B', '10+00', ''), ('A', ' 9+50 ', NULL)");
    const auto project = read_project(path);
    EXPECT_EQ(project.id, "P-1");
    EXPECT_EQ(project.name, "Mill Road");
    EXPECT_EQ(project.county, "Mobile");
    EXPECT_EQ(project.state, "Alabama");
    EXPECT_EQ(project.designer, "R. Vane");
    EXPECT_EQ(project.units, "ENGLISH");
    ASSERT_EQ(project.inlets.size(), 2U);
    EXPECT_EQ(project.inlets[0].text(Column::INLET_NUMBER), "B");
    EXPECT_EQ(project.inlets[0].value(Column::QINT), "");
    EXPECT_EQ(project.inlets[1].text(Column::STATION), " 9+50 ");
    EXPECT_TRUE(project.inlets[1].is_null(Column::QINT));
    EXPECT_FALSE(project.inlets[1].changed());
}

TEST_F(ReadProjectTest, AProjectWithoutDetailsAndInletsIsEmpty) {
    const auto project = read_project(path);
    EXPECT_EQ(project.units, "");
    EXPECT_TRUE(project.inlets.empty());
}

TEST_F(ReadProjectTest, InletsWithoutUnitsAreRefused) {
    run_sql(path, "INSERT INTO INLET (INLET_NUMBER) VALUES ('A')");
    EXPECT_EQ(refusal(path), "no project details are saved, and so no units of its inlets");
    run_sql(path, "INSERT INTO PROJECT (PROJECT_ID) VALUES ('P-1')");
    EXPECT_EQ(refusal(path), "the details of the project hold no units");
}

TEST_F(ReadProjectTest, AFileWithoutATableOfInletsIsRefused) {
    run_sql(path, "DROP TABLE INLET");
    EXPECT_EQ(refusal(path), "no such table: INLET");
}

TEST_F(ReadProjectTest, TenThousandInletsAreReadWhole) {
    run_sql(path,
            "INSERT INTO PROJECT (UNITS) VALUES ('ENGLISH');"
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 10000)"
            " INSERT INTO INLET (INLET_NUMBER, STATION) SELECT i, i || '+00' FROM n");
    const auto project = read_project(path);
    ASSERT_EQ(project.inlets.size(), 10000U);
    EXPECT_EQ(project.inlets.back().text(Column::STATION), "10000+00");
}

TEST(KeptFilesReadTest, OldReleasesAreReadAndNotBroughtUpToDate) {
    const TempFolder folder;
    for (const char* name : {"august_2007.gmk", "augustl_2007.gmk", "other_product.gmk", "metric.gmk"}) {
        const auto path = folder.path(name);
        std::filesystem::copy_file(kept_files + name, path);
        const auto before = read_file(path);
        const auto project = read_project(path);
        ASSERT_EQ(project.inlets.size(), 2U) << name;
        EXPECT_EQ(project.inlets[0].text(Column::INLET_NUMBER), "CB-2");
        EXPECT_EQ(project.units, name == std::string("metric.gmk") ? "METRIC" : "ENGLISH") << name;
        EXPECT_TRUE(read_file(path) == before) << name;
    }
    EXPECT_TRUE(read_project(folder.path("august_2007.gmk")).inlets[0].is_null(Column::RUNOFF_AREA));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 4);
}

TEST(KeptFilesReadTest, WhatIsNoProjectOrDamagedIsRefused) {
    EXPECT_EQ(refusal(kept_files + "other_program.gmk"), "this is not a Gullymark project file");
    EXPECT_EQ(refusal(kept_files + "truncated.gmk"), "database disk image is malformed");
    EXPECT_EQ(refusal(kept_files + "garbled.gmk"), "database disk image is malformed");
    EXPECT_EQ(refusal(kept_files + "empty.gmk"), "this is not a Gullymark project file");
    EXPECT_EQ(refusal(kept_files + "text.gmk"), "file is not a database");
    EXPECT_EQ(refusal(kept_files), "unable to open database file: it is not an ordinary file");
    EXPECT_EQ(refusal(kept_files + "missing.gmk"), "unable to open database file");
    EXPECT_EQ(refusal(""), "unable to open database file");
}

}  // namespace
}  // namespace gullymark::review
