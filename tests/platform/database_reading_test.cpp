// A project opened only to be read: nothing of it or beside it changes, and what is read is of one moment.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <ctime>
#include <functional>
#include <map>
#include <thread>
#include <tuple>
#include <utility>

#include "platform/all_rows.h"
#include "platform/database.h"
#include "platform/failure.h"
#include "platform/row_set.h"
#include "support/cut_short.h"
#include "support/failure_text.h"
#include "support/outside_double.h"
#include "support/sqlite_file.h"

namespace {

using namespace gullymark::platform;
using namespace std::chrono_literals;
using gullymark::testing_support::ChildProcess;
using gullymark::testing_support::cut_a_save_short;
using gullymark::testing_support::failure_text;
using gullymark::testing_support::Pipe;
using gullymark::testing_support::read_file;
using gullymark::testing_support::run_sql;
using gullymark::testing_support::run_unprivileged;
using gullymark::testing_support::small_project;
using gullymark::testing_support::TempFolder;
using gullymark::testing_support::write_file;

/// Another program that does this to a project and keeps it so until it is told to end.
class Holder {
  public:
    Holder(const std::string& path, const std::string& statements)
        : child_([&] {
              sqlite3* file = nullptr;
              sqlite3_open(path.c_str(), &file);
              sqlite3_exec(file, statements.c_str(), nullptr, nullptr, nullptr);
              ready_.write("ready");
              static_cast<void>(end_.read());
          }) {
        static_cast<void>(ready_.read());
    }
    ~Holder() { end_.write("end"); }
    Holder(const Holder&) = delete;
    Holder& operator=(const Holder&) = delete;

  private:
    Pipe ready_;
    Pipe end_;
    ChildProcess child_;
};

struct ReadingTest : testing::Test {
    TempFolder folder;
    std::string path = folder.path("road.gmk");

    ReadingTest() {
        run_sql(path, small_project);
        run_sql(path, "INSERT INTO INLET (INLET_NUMBER, STATION) VALUES ('1', 'whole'), ('2', 'whole')");
    }
    ~ReadingTest() override {
        std::filesystem::permissions(folder.path(), std::filesystem::perms::owner_all);
    }
    ReadingTest(const ReadingTest&) = delete;
    ReadingTest& operator=(const ReadingTest&) = delete;
    ReadingTest(ReadingTest&&) = delete;
    ReadingTest& operator=(ReadingTest&&) = delete;

    /// Every name in the folder with its times and its content.
    [[nodiscard]] std::map<std::string, std::string> all_files() const {
        std::map<std::string, std::string> files;
        for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
            struct stat status {};
            lstat(entry.path().c_str(), &status);
            files[entry.path().filename()] = std::to_string(status.st_mtim.tv_sec) + " " +
                                             std::to_string(status.st_mtim.tv_nsec) + " " +
                                             (S_ISREG(status.st_mode) ? read_file(entry.path()) : "no file");
        }
        return files;
    }

    /// The stations of all inlets, or the failure without the path.
    [[nodiscard]] std::string stations() const {
        std::string found;
        const auto failure = failure_text([&] {
            Connection connection;
            connection.open_to_read(path);
            read_all_rows(connection, "SELECT STATION FROM INLET ORDER BY rowid",
                          [&](const auto& /*columns*/, const Row& row) {
                              found += row.at(0).value_or("(null)") + " ";
                          });
        });
        return failure == "(no failure)" ? found : failure.substr(0, failure.rfind(" - " + path));
    }

    /// In a folder that cannot be written to, by a user whom that holds, with nothing changed by it.
    void expect_whole_for_any_user() const {
        std::filesystem::permissions(folder.path(), std::filesystem::perms(0555));
        const auto before = all_files();
        EXPECT_EQ(run_unprivileged([&] { return stations(); }), "whole whole ");
        EXPECT_TRUE(all_files() == before) << "a file was written, made or deleted";
    }

    /// The stations, with nothing changed by the reading.
    [[nodiscard]] std::string stations_untouched() const {
        const auto before = all_files();
        std::string found = stations();
        EXPECT_TRUE(all_files() == before) << "a file was written, made or deleted";
        return found;
    }
};

TEST_F(ReadingTest, AProjectIsReadAndStaysAsItIs) {
    EXPECT_EQ(stations_untouched(), "whole whole ");
}

TEST_F(ReadingTest, EveryWriteThroughItFails) {
    const auto before = all_files();
    Connection connection;
    connection.open_to_read(path);
    EXPECT_TRUE(connection.refuses_writes());
    EXPECT_EQ(failure_text([&] { connection.execute("UPDATE INLET SET STATION = '5'"); }),
              "attempt to write a readonly database");
    EXPECT_TRUE(all_files() == before);
}

TEST_F(ReadingTest, AFileOfThisMomentIsReadWhateverIsSavedLater) {
    Connection connection;
    connection.open_to_read(path);
    run_sql(path, "UPDATE INLET SET STATION = 'later'");
    RowSet inlets;
    inlets.open(connection, "SELECT * FROM INLET");
    EXPECT_EQ(inlets.value("STATION"), "whole");
    EXPECT_EQ(stations(), "later later ");
}

TEST_F(ReadingTest, WhoeverSavesMayDoSoWhileTheProjectIsOpenForReading) {
    Connection connection;
    connection.open_to_read(path);
    EXPECT_NO_THROW(run_sql(path, "BEGIN EXCLUSIVE; UPDATE INLET SET STATION = 'saved'; COMMIT"));
}

TEST_F(ReadingTest, AReadOnlyFileInAReadOnlyFolderServes) {
    std::filesystem::permissions(path, std::filesystem::perms(0444));
    expect_whole_for_any_user();
}

TEST_F(ReadingTest, ASaveThatWasCutShortIsUndoneInACopyAlone) {
    cut_a_save_short(path);
    EXPECT_EQ(stations_untouched(), "whole whole ");
    for (const auto* ending : {"", "-journal"}) {
        std::filesystem::permissions(path + ending, std::filesystem::perms(0444));
    }
    expect_whole_for_any_user();
}

TEST_F(ReadingTest, ALogIsWorkedIntoACopyAlone) {
    const Holder designer(path, "PRAGMA journal_mode = WAL; UPDATE INLET SET STATION = 'logged'");
    ASSERT_GT(std::filesystem::file_size(path + "-wal"), 0U);
    EXPECT_EQ(stations_untouched(), "logged logged ");
}

TEST_F(ReadingTest, AFileInWriteAheadModeWithoutALogGetsNoneByReading) {
    run_sql(path, "PRAGMA journal_mode = WAL; UPDATE INLET SET STATION = 'logged'");
    EXPECT_EQ(stations_untouched(), "logged logged ");
}

TEST_F(ReadingTest, AFileThatAnotherProgramKeepsLockedIsAFailureInTime) {
    const Holder designer(path, "BEGIN EXCLUSIVE");
    const auto began = std::chrono::steady_clock::now();
    EXPECT_EQ(stations_untouched(), "database is locked");
    EXPECT_LT(std::chrono::steady_clock::now() - began, 2s);
}

TEST_F(ReadingTest, AFileIsReadWhileAnotherProgramPreparesASave) {
    const Holder designer(path, "BEGIN IMMEDIATE; UPDATE INLET SET STATION = 'not yet'");
    EXPECT_EQ(stations_untouched(), "whole whole ");
}

/// What is read while another program keeps the file locked for a tenth of a second, and how long it was.
std::pair<std::string, std::chrono::milliseconds> read_behind_a_lock(
    const std::string& path, const std::function<std::string()>& read) {
    using Clock = std::chrono::steady_clock;
    const Pipe from_designer;
    ChildProcess designer([&] {
        sqlite3* file = nullptr;
        sqlite3_open(path.c_str(), &file);
        sqlite3_exec(file, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
        from_designer.write("locked");
        std::this_thread::sleep_for(100ms);
        sqlite3_close(file);
    });
    static_cast<void>(from_designer.read());
    const auto began = Clock::now();
    auto found = read();
    designer.wait();
    return {found, std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - began)};
}

TEST_F(ReadingTest, AShortLockIsWaitedFor) {
    auto [found, waited] = read_behind_a_lock(path, [this] { return stations(); });
    // On a busy machine the other program may sleep longer than anyone waits for it.
    for (int again = 0; again < 20 && found != "whole whole " && waited > 250ms; ++again) {
        std::tie(found, waited) = read_behind_a_lock(path, [this] { return stations(); });
    }
    EXPECT_EQ(found, "whole whole ");
}

TEST_F(ReadingTest, WhatIsDoneWithARowIsNotTheTimeOfItsReading) {
    run_sql(path,
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 200)"
            " INSERT INTO INLET (INLET_NUMBER) SELECT i FROM n");
    Connection connection;
    connection.open_to_read(path);
    int rows = 0;
    read_all_rows(connection, "SELECT * FROM INLET", [&](const auto& /*columns*/, const Row& /*row*/) {
        constexpr auto longer_than_a_statement_may_take = CLOCKS_PER_SEC * 8 / 5;
        const auto began = std::clock();
        while (++rows == 1 && std::clock() - began < longer_than_a_statement_may_take) {
            rows = 0;
        }
    });
    EXPECT_EQ(rows, 202);
}

TEST_F(ReadingTest, WhatIsNoFileIsRefusedAtOnce) {
    for (const char* made : {"nothing", "folder", "pipe"}) {
        std::filesystem::remove(path);
        if (made == std::string("folder")) {
            std::filesystem::create_directory(path);
        } else if (made == std::string("pipe")) {
            ASSERT_EQ(mkfifo(path.c_str(), 0666), 0);
        }
        EXPECT_EQ(stations_untouched(), made == std::string("nothing")
                                            ? "unable to open database file"
                                            : "unable to open database file: it is not an ordinary file");
    }
}

TEST_F(ReadingTest, AFileThatMayNotBeReadIsRefused) {
    std::filesystem::permissions(folder.path(), std::filesystem::perms(0755));
    EXPECT_EQ(run_unprivileged([&] { return stations(); }), "whole whole ");
    std::filesystem::permissions(path, std::filesystem::perms(0));
    EXPECT_EQ(run_unprivileged([&] { return stations(); }), "unable to open database file");
}

TEST_F(ReadingTest, WhatStandsBesideAFileAndIsNoJournalIsRefused) {
    write_file(path + "-journal", "notes on the journal of this road\n");
    EXPECT_EQ(stations_untouched(), "what stands beside the file is no journal of it: road.gmk-journal");
}

TEST_F(ReadingTest, AJournalThatWouldDamageTheFileIsRefused) {
    // One save less than the project, so that only what comes out tells the two apart.
    const std::string other = folder.path("other.gmk");
    run_sql(other,
            "PRAGMA application_id = 1196247857;"
            "BEGIN; CREATE TABLE A (A TEXT); INSERT INTO A VALUES (hex(zeroblob(9000)));"
            "CREATE TABLE INLET (INLET_NUMBER TEXT, STATION TEXT); COMMIT;"
            "INSERT INTO INLET VALUES ('1', '')");
    cut_a_save_short(other);
    std::filesystem::rename(other + "-journal", path + "-journal");
    EXPECT_EQ(stations_untouched(),
              "the journal beside the file belongs to another file: it would damage this one");
}

TEST_F(ReadingTest, ANameTooLongToSaveInServes) {
    const std::string longest = folder.path(std::string(251, 'r') + ".gmk");
    std::filesystem::rename(path, longest);
    path = longest;
    EXPECT_EQ(stations_untouched(), "whole whole ");
}

TEST_F(ReadingTest, ADamagedFileIsRefused) {
    std::string bytes = read_file(path);
    bytes.replace(bytes.size() - 40, 40, 40, '\xff');
    write_file(path, bytes);
    EXPECT_EQ(stations_untouched(), "database disk image is malformed");
}

TEST_F(ReadingTest, RowsComeWithTheirNullsAndNames) {
    Connection connection;
    connection.open_to_read(path);
    int rows = 0;
    read_all_rows(connection, "SELECT OFFSET, INLET_NUMBER AS [A] FROM INLET WHERE INLET_NUMBER = '2'",
                  [&](const auto& columns, const Row& row) {
                      ++rows;
                      EXPECT_EQ(columns, (std::vector<std::string>{"OFFSET", "A"}));
                      EXPECT_EQ(row, (Row{std::nullopt, "2"}));
                  });
    EXPECT_EQ(rows, 1);
}

TEST_F(ReadingTest, RowsOfNothingAreAFailure) {
    const auto take = [](const auto& /*columns*/, const Row& /*row*/) { FAIL(); };
    Connection connection;
    EXPECT_EQ(failure_text([&] { read_all_rows(connection, "SELECT 1", take); }), "no project file is open");
    connection.open_to_read(path);
    EXPECT_EQ(failure_text([&] { read_all_rows(connection, "SELECT * FROM ROAD", take); }),
              "no such table: ROAD");
    EXPECT_EQ(failure_text([&] { read_all_rows(connection, "BEGIN", take); }),
              "the statement returns no rows");
    EXPECT_EQ(failure_text([&] { read_all_rows(connection, "SELECT 1 -- all", take); }),
              "-- and /* cannot stand in a statement outside of quote marks");
}

}  // namespace
