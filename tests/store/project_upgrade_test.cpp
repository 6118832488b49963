#include <algorithm>

#include "project_level.h"

namespace gullymark::store {
namespace {

const Steps inlet_columns = {"LDISCHARGE_OVERRIDE", "RDISCHARGE_OVERRIDE", "RUNOFF_AREA",
                             "RUNOFF_COEFF",        "INTENSITY",           "RUNOFF_AREA2",
                             "RUNOFF_COEFF2",       "INTENSITY2",          "INLETXSLOPE"};
const Steps project_columns = {"MINOR_RELEASE", "UDEF1", "UDEF2", "UDEF3", "UDEF4", "UDEF5"};

class UpgradeProject : public ProjectLevel {
  protected:
    /// A project of the older schema, as the release before this one left it.
    std::string make_old_project(const std::string& name, const Values& changes) {
        make_project(name, changes);
        std::string statements;
        for (const std::string& column : inlet_columns) {
            statements += "ALTER TABLE INLET DROP COLUMN " + column + ";";
        }
        for (const std::string& column : project_columns) {
            statements += "ALTER TABLE PROJECT DROP COLUMN " + column + ";";
        }
        run(name, statements);
        return folder.path(name);
    }

    [[nodiscard]] Steps columns(const std::string& name, const std::string& table) const {
        platform::Connection connection;
        connection.open(folder.path(name));
        platform::RowSet rows;
        rows.open(connection, "SELECT * FROM " + table);
        return rows.columns();
    }

    /// How many of the columns that the upgrade adds a file has.
    [[nodiscard]] std::size_t added_columns(const std::string& name) const {
        std::size_t count = 0;
        const auto add = [&](const Steps& wanted, const Steps& present) {
            for (const std::string& column : wanted) {
                count += std::ranges::count(present, column) > 0 ? 1U : 0U;
            }
        };
        add(inlet_columns, columns(name, "INLET"));
        add(project_columns, columns(name, "PROJECT"));
        return count;
    }

    void open_and_close(const std::string& name) {
        open_project(name);
        EXPECT_EQ(user.boxes, (Boxes{{BoxKind::information, "Project Name: Mill Road", "Tarnel Brook"}}));
        mnucloseProj_Click();
        forget_steps();
    }
};

TEST_F(UpgradeProject, SendsTheseStatementsToTheLetter) {
    const auto statements = upgrade_statements("1", "00");
    EXPECT_EQ(
        statements[0],
        "ALTER TABLE INLET ADD LDISCHARGE_OVERRIDE TEXT(3), RDISCHARGE_OVERRIDE TEXT(3), RUNOFF_AREA "
        "TEXT(10),RUNOFF_COEFF TEXT(10), INTENSITY TEXT(10), RUNOFF_AREA2 TEXT(10),RUNOFF_COEFF2 TEXT(10), "
        "INTENSITY2 TEXT(10), INLETXSLOPE TEXT(10)");
    EXPECT_EQ(statements[1],
              "ALTER TABLE PROJECT ADD MINOR_RELEASE TEXT(10), UDEF1 TEXT(50), UDEF2 TEXT(50), UDEF3 "
              "TEXT(50), UDEF4 "
              "TEXT(50), UDEF5 TEXT(50) ");
    EXPECT_EQ(statements[2],
              "UPDATE PROJECT SET MAJOR_RELEASE = '1', MINOR_FRELEASE = '00', RELEASE_DATE = 'MAY 2010'");
    EXPECT_EQ(statements[3], "UPDATE PROJECT SET MINOR_RELEASE = '00'");
}

TEST_F(UpgradeProject, OnlyTheMisspelledDateOfReleaseOneIsUpgraded) {
    struct Gate {
        std::optional<std::string> date, release;
        bool upgraded;
    };
    const std::vector<Gate> gates = {
        {"AUGUSTL 2007", "1.0", true}, {"AUGUST 2007", "1.0", false},         {"AUGUSTL 2007", "1", false},
        {"AUGUSTL 2007", "", false},   {"AUGUSTL 2007", std::nullopt, false}, {"augustl 2007", "1.0", false},
        {"MAY 2010", "1.0", false},    {"AUGUSTL 2007 ", "1.0", false},       {"", "1.0", false},
    };
    int number = 0;
    for (const auto& [date, release, upgraded] : gates) {
        const std::string name = std::to_string(++number) + ".gmk";
        make_old_project(name, {{"RELEASE_DATE", date}, {"MAJOR_RELEASE", release}});
        ASSERT_EQ(added_columns(name), 0U);
        open_and_close(name);
        EXPECT_EQ(added_columns(name), upgraded ? 15U : 0U) << *date << " of " << release.value_or("null");
    }
}

TEST_F(UpgradeProject, TheCallersGateAndItsOwnAreTwo) {
    make_old_project("a.gmk", {{"RELEASE_DATE", "MAY 2010"}, {"MAJOR_RELEASE", "1.0"}});
    open_project("a.gmk");
    session.releaseDate = "AUGUST 2007";
    upgrade_project("1", "00");
    EXPECT_EQ(added_columns("a.gmk"), 0U);
    session.releaseDate = "AUGUSTL 2007";
    upgrade_project("1", "00");
    EXPECT_EQ(added_columns("a.gmk"), 15U);
}

TEST_F(UpgradeProject, ChangesOnlyTheMinorReleaseOfTheRowAndNothingOfTheSession) {
    make_old_project("a.gmk", {{"RELEASE_DATE", "AUGUSTL 2007"}, {"MAJOR_RELEASE", "1.0"}});
    open_project("a.gmk");
    EXPECT_EQ(session.releaseDate, "AUGUSTL 2007");
    EXPECT_EQ(session.majorRelease, "1.0");
    Values row = stored("a.gmk");
    EXPECT_EQ(row["MINOR_RELEASE"], "00");
    EXPECT_EQ(row["MAJOR_RELEASE"], "1.0");
    EXPECT_EQ(row["RELEASE_DATE"], "AUGUSTL 2007");
    EXPECT_EQ(row["UDEF5"], std::nullopt);
}

TEST_F(UpgradeProject, RunsAgainAtEveryOpenAndLeavesTheSameFile) {
    make_old_project("a.gmk", {{"RELEASE_DATE", "AUGUSTL 2007"}, {"MAJOR_RELEASE", "1.0"}});
    open_and_close("a.gmk");
    const Values row = stored("a.gmk");
    const Steps inlet = columns("a.gmk", "INLET");
    run("a.gmk", "UPDATE PROJECT SET MINOR_RELEASE = 'changed meanwhile'");
    open_and_close("a.gmk");
    EXPECT_EQ(stored("a.gmk"), row);
    EXPECT_EQ(columns("a.gmk", "INLET"), inlet);
}

TEST_F(UpgradeProject, AColumnThatExistsKeepsNoOtherFromBeingAdded) {
    make_old_project("a.gmk", {{"RELEASE_DATE", "AUGUSTL 2007"}, {"MAJOR_RELEASE", "1.0"}});
    run("a.gmk", "ALTER TABLE INLET ADD COLUMN INTENSITY TEXT(10)");
    open_and_close("a.gmk");
    EXPECT_EQ(added_columns("a.gmk"), 9U + 6U);
    EXPECT_EQ(stored("a.gmk")["MINOR_RELEASE"], "00");
}

TEST_F(UpgradeProject, CutShortInTheMiddleComesToItsEndAtTheNextOpen) {
    make_old_project("a.gmk", {{"RELEASE_DATE", "AUGUSTL 2007"}, {"MAJOR_RELEASE", "1.0"}});
    run("a.gmk",
        "ALTER TABLE INLET ADD COLUMN LDISCHARGE_OVERRIDE TEXT(3);"
        "ALTER TABLE INLET ADD COLUMN RDISCHARGE_OVERRIDE TEXT(3)");
    open_and_close("a.gmk");
    EXPECT_EQ(added_columns("a.gmk"), 9U + 6U);
}

TEST_F(UpgradeProject, OfTheKeptOldFilesTheMisspelledOneIsUpgraded) {
    for (const auto& [name, added] : {std::pair{"august_2007.gmk", 0U}, {"augustl_2007.gmk", 15U}}) {
        copy_kept_file(name);
        ASSERT_EQ(added_columns(name), 0U);
        const std::string inlets = "SELECT INLET_NUMBER, DISCHARGE1, QCARRY FROM INLET";
        const std::string before = testing_support::run_sql(folder.path(name), inlets);
        open_and_close(name);
        open_and_close(name);
        EXPECT_EQ(added_columns(name), added) << name;
        EXPECT_EQ(testing_support::run_sql(folder.path(name), inlets), before);
    }
}

TEST_F(UpgradeProject, WithoutAnOpenFileNothingIsTold) {
    session.releaseDate = "AUGUSTL 2007";
    session.majorRelease = "1.0";
    upgrade_project("1", "00");
    EXPECT_EQ(steps, Steps{});
}

}  // namespace
}  // namespace gullymark::store
