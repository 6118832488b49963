#include "platform/project_copy.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <map>
#include <utility>

#include "platform/database.h"
#include "support/child_process.h"
#include "support/cut_short.h"
#include "support/failure_text.h"
#include "support/kill_at_call.h"
#include "support/outside_double.h"
#include "support/sqlite_file.h"

namespace gullymark::platform {
namespace {

namespace fs = std::filesystem;
using testing_support::failure_text;
using testing_support::read_file;
using testing_support::run_sql;
using testing_support::write_file;

/// On many pages, so that a save of them all that is cut short has changed some of the file and not the rest.
constexpr const char* twenty_inlets =
    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 20)"
    " INSERT INTO INLET (INLET_NUMBER, STATION, OFFSET) SELECT i, 'whole', printf('%3000d', i) FROM n";
constexpr const char* count_whole = "SELECT count(*) FROM INLET WHERE STATION IS 'whole'";

struct CopyProject : testing::Test {
    testing_support::TempFolder folder;
    std::string source = folder.path("template");
    std::string path = folder.path("road.gmk");
    std::string journal = path + "-journal";

    CopyProject() { run_sql(source, testing_support::small_project); }

    void make_old_project() const {
        run_sql(path, testing_support::small_project);
        run_sql(path, twenty_inlets);
    }
    /// What a designer finds under the path: "new", "old", or what is wrong.
    [[nodiscard]] std::string found() const {
        Connection connection;
        connection.open(path);
        connection.check();
        connection.close();
        const std::string rows = run_sql(path, "SELECT count(*) FROM INLET");
        if (rows == "20" && run_sql(path, count_whole) == "20") {
            return "old";
        }
        return rows == "0" && read_file(path) == read_file(source) ? "new" : rows + " inlets";
    }
};

TEST_F(CopyProject, KilledAtAnyCallLeavesTheOldProjectOrTheNewOne) {
    make_old_project();
    testing_support::cut_a_save_short(path);
    const std::string old_file = read_file(path);
    const std::string old_journal = read_file(journal);
    fs::remove(journal);
    ASSERT_NE(run_sql(path, count_whole), "20") << "without its journal the old project is not whole";
    std::map<std::pair<std::string, std::string>, std::string>
        judged;  // the two files: most calls change neither
    int new_found = 0;
    bool killed = true;
    for (int call = 1; killed; ++call) {
        write_file(path, old_file);
        write_file(journal, old_journal);
        killed = testing_support::kill_at_call(call, [&] { copy_project(source, path); });
        auto& what = judged[{read_file(path), read_file(journal)}];
        what = what.empty() ? found() : what;
        ASSERT_TRUE(what == "old" || what == "new") << what << " when killed at call " << call;
        new_found += what == "new" ? 1 : 0;
    }
    RecordProperty("states", static_cast<int>(judged.size()));
    EXPECT_GT(judged.size(), 20U);
    EXPECT_GT(new_found, 1);
}

TEST_F(CopyProject, IsNotUndoneByAJournalWhoseProjectIsGone) {
    make_old_project();
    testing_support::cut_a_save_short(path);
    fs::remove(path);
    copy_project(source, path);
    EXPECT_EQ(found(), "new");
    EXPECT_FALSE(fs::exists(journal));
}

TEST_F(CopyProject, IsNotOverwrittenByTheLogOfAnOldProject) {
    testing_support::ChildProcess crash([&] {
        sqlite3* file = nullptr;
        sqlite3_open(path.c_str(), &file);
        sqlite3_exec(file, testing_support::small_project, nullptr, nullptr, nullptr);
        sqlite3_exec(file, "PRAGMA journal_mode = WAL", nullptr, nullptr, nullptr);
        sqlite3_exec(file, twenty_inlets, nullptr, nullptr, nullptr);
        _exit(0);
    });
    ASSERT_TRUE(crash.wait());
    ASSERT_GT(fs::file_size(path + "-wal"), 0U);
    copy_project(source, path);
    EXPECT_EQ(found(), "new");
    EXPECT_FALSE(fs::exists(path + "-wal"));
}

TEST_F(CopyProject, RemovesAJournalThatIsSpent) {
    make_old_project();
    for (const std::string& spent : {std::string(), std::string(512, '\0')}) {
        write_file(journal, spent);
        copy_project(source, path);
        EXPECT_EQ(found(), "new");
        EXPECT_FALSE(fs::exists(journal));
    }
}

TEST_F(CopyProject, LeavesAProjectThatAnotherProgramChanges) {
    struct Change {
        const char* statements;
        std::string told;
    };
    const std::array<Change, 2> changes{{
        {"BEGIN IMMEDIATE; UPDATE INLET SET STATION = 'half'", "database is locked: " + path},
        {"BEGIN EXCLUSIVE; UPDATE INLET SET STATION = 'half'",
         "its last save cannot be undone: database is locked - " + path},
    }};
    make_old_project();
    for (const Change& change : changes) {
        const testing_support::Pipe ready;
        testing_support::ChildProcess other([&] {
            sqlite3* file = nullptr;
            sqlite3_open(path.c_str(), &file);
            sqlite3_exec(file, change.statements, nullptr, nullptr, nullptr);
            ready.write("saving");
            pause();
        });
        ASSERT_EQ(ready.read(), "saving");
        EXPECT_EQ(failure_text([&] { copy_project(source, path); }), change.told);
        other.kill();
        other.wait();
        EXPECT_EQ(found(), "old");
    }
}

TEST_F(CopyProject, ReplacesAFileThatIsNoProject) {
    write_file(path, "notes");
    copy_project(source, path);
    EXPECT_EQ(found(), "new");
}

TEST_F(CopyProject, LeavesAFolderThatHasTheJournalsName) {
    fs::create_directory(journal);
    EXPECT_EQ(failure_text([&] { copy_project(source, path); }), "Is a directory: " + journal);
    EXPECT_FALSE(fs::exists(path));
}

TEST_F(CopyProject, RefusesANameThatLeavesNoRoomForTheJournals) {
    const std::string long_path = folder.path(std::string(248, 'r'));
    EXPECT_EQ(failure_text([&] { copy_project(source, long_path); }),
              "File name too long: " + long_path + "-journal");
    EXPECT_FALSE(fs::exists(long_path));
}

}  // namespace
}  // namespace gullymark::platform
