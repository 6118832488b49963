// Files that cannot be opened as a project, or not now.

#include <gtest/gtest.h>

#include <chrono>

#include "platform/database.h"
#include "platform/row_set.h"
#include "support/child_process.h"
#include "support/failure_text.h"
#include "support/outside_double.h"
#include "support/sqlite_file.h"

namespace {

using gullymark::platform::Connection;
using gullymark::platform::Row;
using gullymark::platform::RowSet;
using gullymark::testing_support::ChildProcess;
using gullymark::testing_support::failure_text;
using gullymark::testing_support::Pipe;
using gullymark::testing_support::read_file;
using gullymark::testing_support::run_sql;
using gullymark::testing_support::run_unprivileged;
using gullymark::testing_support::small_project;
using gullymark::testing_support::TempFolder;
using gullymark::testing_support::write_file;

std::string open_failure(const std::string& path) {
    return failure_text([&] {
        Connection connection;
        connection.open(path);
    });
}

struct DatabaseFaultsTest : testing::Test {
    TempFolder folder;
    std::string path = folder.path("road.gmk");

    void make_project(int rows = 1) const {
        run_sql(path, small_project);
        run_sql(path, "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                          std::to_string(rows) +
                          ") INSERT INTO INLET SELECT i, hex(zeroblob(100)), '', '' FROM n");
    }
    void allow(const std::string& what, int mode) const {
        std::filesystem::permissions(what, static_cast<std::filesystem::perms>(mode));
    }
};

TEST_F(DatabaseFaultsTest, AMissingFileIsNotMade) {
    EXPECT_EQ(open_failure(path), "unable to open database file - " + path);
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(DatabaseFaultsTest, AFolderIsNoFile) {
    EXPECT_EQ(open_failure(folder.path()),
              "unable to open database file: it is not an ordinary file - " + folder.path());
}

TEST_F(DatabaseFaultsTest, AnEmptyPathIsNoFile) {
    EXPECT_EQ(open_failure(""), "unable to open database file - ");
}

TEST_F(DatabaseFaultsTest, AnEmptyFileIsNoProject) {
    write_file(path, "");
    EXPECT_EQ(open_failure(path), "this is not a Gullymark project file - " + path);
    EXPECT_EQ(read_file(path), "");
}

TEST_F(DatabaseFaultsTest, ATextFileIsNoDatabase) {
    const std::string text(5000, 'x');
    for (const std::string content : {"hello\n", text.c_str()}) {
        write_file(path, content);
        EXPECT_EQ(open_failure(path), "file is not a database - " + path);
        EXPECT_EQ(read_file(path), content);
    }
}

TEST_F(DatabaseFaultsTest, ADatabaseOfAnotherProgramIsRefusedUntouched) {
    run_sql(path,
            "PRAGMA journal_mode = WAL; PRAGMA application_id = 7; CREATE TABLE PROJECT (PROJECT_ID TEXT)");
    const std::string before = read_file(path);
    EXPECT_EQ(open_failure(path), "this is not a Gullymark project file - " + path);
    EXPECT_EQ(read_file(path), before);
}

TEST_F(DatabaseFaultsTest, ATruncatedFileIsDamaged) {
    make_project(1000);
    std::filesystem::resize_file(path, std::filesystem::file_size(path) / 2);
    EXPECT_EQ(open_failure(path), "database disk image is malformed - " + path);
    std::filesystem::resize_file(path, 50);
    EXPECT_EQ(open_failure(path), "database disk image is malformed - " + path);
}

TEST_F(DatabaseFaultsTest, ADamagedPageIsAFailureWhereItIsRead) {
    make_project(1000);
    std::string content = read_file(path);
    content.replace(content.size() / 2, 8192, 8192, '\x55');
    write_file(path, content);
    Connection connection;
    connection.open(path);
    RowSet inlets;
    EXPECT_EQ(failure_text([&] { inlets.open(connection, "SELECT * FROM INLET ORDER BY INLET_NUMBER"); }),
              "database disk image is malformed");
    EXPECT_FALSE(inlets.is_open());
}

TEST_F(DatabaseFaultsTest, ADamagedFileIsReadAndNeverWrittenOnceItWasChecked) {
    make_project(1000);
    std::string content = read_file(path);
    content.replace(content.size() - 4096, 4096, 4096, '\x55');
    write_file(path, content);
    Connection connection;
    connection.open(path);
    EXPECT_FALSE(connection.refuses_writes());
    EXPECT_EQ(failure_text([&] { connection.check(); }),
              "database disk image is malformed: nothing is stored in it");
    EXPECT_TRUE(connection.refuses_writes());
    RowSet inlets;
    inlets.open(connection, "SELECT * FROM INLET WHERE rowid = 1");
    EXPECT_EQ(failure_text([&] { inlets.save({"2", "", "", ""}); }), "attempt to write a readonly database");
    EXPECT_EQ(inlets.value("INLET_NUMBER"), "1");
    EXPECT_EQ(read_file(path), content);
}

TEST_F(DatabaseFaultsTest, AFileThatIsLockedWhenItIsCheckedIsNotTakenForDamaged) {
    make_project();
    Connection connection;
    connection.open(path);
    sqlite3* other = nullptr;
    sqlite3_open(path.c_str(), &other);
    sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    connection.check();
    sqlite3_close(other);
    EXPECT_FALSE(connection.refuses_writes());
}

TEST_F(DatabaseFaultsTest, ASoundFileIsWrittenAfterItWasChecked) {
    make_project();
    Connection connection;
    EXPECT_EQ(failure_text([&] { connection.check(); }), "no project file is open");
    connection.open(path);
    connection.check();
    EXPECT_FALSE(connection.refuses_writes());
    connection.execute("UPDATE INLET SET OFFSET = '5'");
    EXPECT_EQ(run_sql(path, "SELECT OFFSET FROM INLET"), "5");
}

TEST_F(DatabaseFaultsTest, AFileWithoutTheTablesOpensAndItsStatementsFail) {
    run_sql(path, "PRAGMA application_id = 1196247857; CREATE TABLE OTHER (A TEXT)");
    Connection connection;
    connection.open(path);
    EXPECT_EQ(failure_text([&] { RowSet().open(connection, "SELECT * from PROJECT Order by PROJECT_ID"); }),
              "no such table: PROJECT");
}

TEST_F(DatabaseFaultsTest, AnOrdinaryUserOpensAFileThatMayBeWritten) {
    make_project();
    allow(folder.path(), 0777);
    allow(path, 0666);
    const auto failure = run_unprivileged([&] { return open_failure(path); });
    if (failure.empty()) {
        GTEST_SKIP() << "no ordinary user on this machine";
    }
    EXPECT_EQ(failure, "(no failure)");
}

TEST_F(DatabaseFaultsTest, AReadOnlyFileIsRefused) {
    make_project();
    allow(folder.path(), 0777);
    allow(path, 0444);
    const auto failure = run_unprivileged([&] { return open_failure(path); });
    if (failure.empty()) {
        GTEST_SKIP() << "no ordinary user on this machine";
    }
    EXPECT_EQ(failure, "attempt to write a readonly database: the file is read-only - " + path);
}

TEST_F(DatabaseFaultsTest, AFileInAFolderWithoutWritePermissionIsRefused) {
    make_project();
    allow(folder.path(), 0555);
    allow(path, 0666);
    const auto failure = run_unprivileged([&] { return open_failure(path); });
    if (failure.empty()) {
        GTEST_SKIP() << "no ordinary user on this machine";
    }
    EXPECT_EQ(failure, "attempt to write a readonly database: no file can be made in its folder - " + path);
}

TEST_F(DatabaseFaultsTest, AnUnreadableFileIsRefused) {
    make_project();
    allow(folder.path(), 0777);
    allow(path, 0);
    const auto failure = run_unprivileged([&] { return open_failure(path); });
    if (failure.empty()) {
        GTEST_SKIP() << "no ordinary user on this machine";
    }
    EXPECT_EQ(failure, "unable to open database file - " + path);
}

TEST_F(DatabaseFaultsTest, AFileLockedByAnotherProcessIsRefusedAfterAShortWait) {
    make_project();
    const Pipe locked;
    const Pipe release;
    ChildProcess other([&] {
        sqlite3* file = nullptr;
        sqlite3_open(path.c_str(), &file);
        sqlite3_exec(file, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
        locked.write("locked");
        static_cast<void>(release.read());
        sqlite3_close(file);
    });
    ASSERT_EQ(locked.read(), "locked");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(open_failure(path), "database is locked - " + path);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
    release.write("go");
    EXPECT_TRUE(other.wait());
    EXPECT_EQ(open_failure(path), "(no failure)");
}

TEST_F(DatabaseFaultsTest, ASaveWhileAnotherConnectionWritesIsAFailureAndCanBeRepeated) {
    make_project();
    Connection connection;
    connection.open(path);
    RowSet inlets;
    inlets.open(connection, "SELECT * FROM INLET");
    sqlite3* other = nullptr;
    sqlite3_open(path.c_str(), &other);
    sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
    EXPECT_EQ(failure_text([&] { inlets.save({"2", "", "", ""}); }), "database is locked");
    sqlite3_close(other);
    inlets.save({"2", "", "", ""});
    EXPECT_EQ(run_sql(path, "SELECT INLET_NUMBER FROM INLET"), "2");
}

TEST_F(DatabaseFaultsTest, ANeighborMaySaveWhileARowSetIsOpen) {
    make_project(3);
    Connection connection;
    connection.open(path);
    RowSet inlets;
    inlets.open(connection, "SELECT * FROM INLET");
    static_cast<void>(inlets.row());
    inlets.find("INLET_NUMBER = '2'");
    EXPECT_EQ(
        run_sql(path, "PRAGMA busy_timeout = 0; BEGIN EXCLUSIVE; UPDATE INLET SET OFFSET = '5'; COMMIT"),
        "0");
}

TEST_F(DatabaseFaultsTest, AFileThatWasMovedAwayTakesNoMoreSaves) {
    make_project();
    Connection connection;
    connection.open(path);
    std::filesystem::rename(path, path + ".old");
    EXPECT_EQ(failure_text([&] { connection.execute("UPDATE INLET SET OFFSET = '5'"); }),
              "attempt to write a readonly database");
    EXPECT_EQ(run_sql(path + ".old", "SELECT OFFSET FROM INLET"), "");
}

}  // namespace
