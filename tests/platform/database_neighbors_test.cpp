// What stands beside a project when it is opened: journals, logs, and what only looks like one.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <map>

#include "platform/database.h"
#include "platform/row_set.h"
#include "support/cut_short.h"
#include "support/failure_text.h"
#include "support/outside_double.h"
#include "support/sqlite_file.h"

namespace {

using gullymark::platform::Connection;
using gullymark::platform::RowSet;
using gullymark::testing_support::become_unprivileged;
using gullymark::testing_support::ChildProcess;
using gullymark::testing_support::cut_a_save_short;
using gullymark::testing_support::failure_text;
using gullymark::testing_support::read_file;
using gullymark::testing_support::run_sql;
using gullymark::testing_support::small_project;
using gullymark::testing_support::TempFolder;
using gullymark::testing_support::write_file;

constexpr const char* journal_start = "\xd9\xd5\x05\xf9\x20\xa1\x63\xd7";

std::string four_bytes(std::uint32_t value) {
    std::string bytes;
    for (const int shift : {24, 16, 8, 0}) {
        bytes += static_cast<char>((value >> static_cast<unsigned>(shift)) & 0xffU);
    }
    return bytes;
}

/// Taken for a super-journal it names one journal that is not there, so that the engine would delete it.
const std::string other_file("a designer's other file\0", 24);

/// The record by which a journal names a super-journal.
std::string super_journal_record(const std::string& name) {
    std::uint32_t sum = 0;
    for (const char letter : name) {
        sum += static_cast<std::uint32_t>(static_cast<int>(static_cast<signed char>(letter)));
    }
    return four_bytes(0x40000000 / 4096 + 1) + name + four_bytes(static_cast<std::uint32_t>(name.size())) +
           four_bytes(sum) + journal_start;
}

struct NeighborsTest : testing::Test {
    TempFolder folder;
    std::string path = folder.path("road.gmk");
    std::string journal = path + "-journal";

    NeighborsTest() {
        run_sql(path, small_project);
        run_sql(path, "INSERT INTO INLET (INLET_NUMBER, STATION) VALUES ('1', 'whole'), ('2', 'whole')");
    }

    /// Every name in the folder with its content.
    [[nodiscard]] std::map<std::string, std::string> all_files() const {
        std::map<std::string, std::string> files;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.path())) {
            const bool plain = std::filesystem::is_regular_file(entry.symlink_status());
            files[entry.path().filename()] = plain ? read_file(entry.path()) : "no file";
        }
        return files;
    }

    [[nodiscard]] std::string open_failure() const {
        const auto text = failure_text([&] {
            Connection connection;
            connection.open(path);
        });
        const auto end = text.rfind(" - " + path);
        return end == std::string::npos ? text : text.substr(0, end);
    }

    void expect_refused_untouched(const std::string& description) const {
        const auto before = all_files();
        EXPECT_EQ(open_failure(), description);
        EXPECT_TRUE(all_files() == before) << "a file was written, made or deleted";
    }
};

TEST_F(NeighborsTest, AJournalThatNamesAnotherFileDeletesNothing) {
    cut_a_save_short(path);
    write_file(folder.path("other.txt"), other_file);
    for (const std::string& name : {folder.path("other.txt"), folder.path("missing"), std::string("x")}) {
        const std::string whole = read_file(journal);
        write_file(journal, whole + super_journal_record(name));
        expect_refused_untouched(
            "the journal beside the file names another file to delete: road.gmk-journal");
        write_file(journal, whole);
    }
    EXPECT_EQ(open_failure(), "(no failure)");
    EXPECT_EQ(run_sql(path, "SELECT DISTINCT STATION FROM INLET"), "whole");
}

TEST_F(NeighborsTest, AJournalThatNothingButNamesAnotherFileDeletesNothing) {
    write_file(folder.path("other.txt"), other_file);
    const std::string header =
        journal_start + four_bytes(0) + four_bytes(0) + four_bytes(1) + four_bytes(512) + four_bytes(4096);
    write_file(journal, header + std::string(512 - header.size(), '\0') +
                            super_journal_record(folder.path("other.txt")));
    expect_refused_untouched("the journal beside the file names another file to delete: road.gmk-journal");
}

TEST_F(NeighborsTest, ASuperJournalThatComesAfterTheLookIsNotOpened) {
    Connection connection;
    connection.open(path);
    cut_a_save_short(path);
    const std::string whole = read_file(journal);
    write_file(folder.path("other.txt"), other_file);
    write_file(journal, whole + super_journal_record(folder.path("other.txt")));
    EXPECT_NE(failure_text([&] { connection.execute("UPDATE INLET SET OFFSET = '5'"); }), "(no failure)");
    EXPECT_TRUE(std::filesystem::exists(folder.path("other.txt")));
}

TEST_F(NeighborsTest, WhatIsNoJournalIsNotTakenForOne) {
    const std::string refusal = "what stands beside the file is no journal of it: road.gmk-journal";
    write_file(journal, "notes on the journal of this road\n");
    expect_refused_untouched(refusal);
    std::filesystem::remove(journal);

    write_file(folder.path("other.txt"), other_file);
    std::filesystem::create_symlink(folder.path("other.txt"), journal);
    expect_refused_untouched(refusal);
    std::filesystem::remove(journal);

    std::filesystem::create_symlink(folder.path("missing"), journal);
    expect_refused_untouched(refusal);
    std::filesystem::remove(journal);

    std::filesystem::create_hard_link(folder.path("other.txt"), journal);
    expect_refused_untouched(refusal);
    std::filesystem::remove(journal);

    std::filesystem::create_directory(journal);
    expect_refused_untouched(refusal);
}

TEST_F(NeighborsTest, APipeInTheJournalsPlaceIsNotWaitedFor) {
    ASSERT_EQ(mkfifo(journal.c_str(), 0666), 0);
    expect_refused_untouched("what stands beside the file is no journal of it: road.gmk-journal");
}

TEST_F(NeighborsTest, APipeThatComesInTheJournalsPlaceLaterFailsTheSaveAndIsNotWaitedFor) {
    Connection connection;
    connection.open(path);
    ASSERT_EQ(mkfifo(journal.c_str(), 0666), 0);
    EXPECT_NE(failure_text([&] { connection.execute("UPDATE INLET SET OFFSET = '5'"); }), "(no failure)");
    std::filesystem::remove(journal);
    write_file(folder.path("other.txt"), std::string(20, '\0'));
    std::filesystem::create_hard_link(folder.path("other.txt"), journal);
    EXPECT_NE(failure_text([&] { connection.execute("UPDATE INLET SET OFFSET = '5'"); }), "(no failure)");
    EXPECT_EQ(read_file(folder.path("other.txt")), std::string(20, '\0'));
    std::filesystem::remove(journal);
    connection.execute("UPDATE INLET SET OFFSET = '5'");
    EXPECT_EQ(run_sql(path, "SELECT DISTINCT OFFSET FROM INLET"), "5");
}

TEST_F(NeighborsTest, AProjectThatIsAPipeOrADeviceIsNotOpened) {
    std::filesystem::remove(path);
    ASSERT_EQ(mkfifo(path.c_str(), 0666), 0);
    expect_refused_untouched("unable to open database file: it is not an ordinary file");
    std::filesystem::remove(path);
    std::filesystem::create_symlink("/dev/zero", path);
    expect_refused_untouched("unable to open database file: it is not an ordinary file");
}

TEST_F(NeighborsTest, ASaveThatWasCutShortIsUndoneAlsoThroughALink) {
    cut_a_save_short(path);
    ASSERT_TRUE(std::filesystem::exists(journal));
    std::filesystem::create_symlink(path, folder.path("link.gmk"));
    Connection connection;
    connection.open(folder.path("link.gmk"));
    RowSet inlets;
    inlets.open(connection, "SELECT DISTINCT STATION FROM INLET");
    EXPECT_EQ(inlets.value("STATION"), "whole");
    EXPECT_FALSE(std::filesystem::exists(journal));
}

TEST_F(NeighborsTest, AnotherProgramsFileWithAHotJournalStaysAsItIs) {
    run_sql(path, "PRAGMA application_id = 7");
    cut_a_save_short(path);
    expect_refused_untouched("this is not a Gullymark project file");
}

TEST_F(NeighborsTest, AProjectOfWhichASchemaIsRefusedStaysAsItIsWithItsHotJournal) {
    run_sql(path, "CREATE VIEW V AS SELECT 1");
    cut_a_save_short(path);
    expect_refused_untouched("the file holds what no project has, the view V");
}

TEST_F(NeighborsTest, AnEmptyFileKeepsTheJournalBesideIt) {
    cut_a_save_short(path);
    write_file(path, "");
    expect_refused_untouched("this is not a Gullymark project file");
    write_file(path, "a text\n");
    expect_refused_untouched("file is not a database");
}

TEST_F(NeighborsTest, TheJournalOfALaterStateIsNotWorkedIntoAnOlderCopy) {
    const std::string copy = read_file(path);
    run_sql(path, "UPDATE INLET SET STATION = 'later'");
    run_sql(path, "UPDATE INLET SET STATION = 'later still'");
    run_sql(path, "UPDATE INLET SET STATION = 'last'");
    cut_a_save_short(path);
    write_file(path, copy);
    expect_refused_untouched("the journal beside the file belongs to another file: road.gmk-journal");
}

TEST_F(NeighborsTest, TheJournalOfAFileWithAsManySavesIsToldByItsHeader) {
    const std::string other = folder.path("other.gmk");
    run_sql(other,
            "PRAGMA application_id = 1196247857; CREATE TABLE INLET (INLET_NUMBER TEXT, STATION TEXT);"
            "INSERT INTO INLET VALUES (hex(zeroblob(9000)), ''); INSERT INTO INLET VALUES ('2', '')");
    cut_a_save_short(other);
    std::filesystem::rename(other + "-journal", journal);
    expect_refused_untouched("the journal beside the file belongs to another file: road.gmk-journal");
}

TEST_F(NeighborsTest, AJournalThatWouldDamageTheFileIsNotWorkedIntoIt) {
    // One save less than the project, so that only what comes out tells the two apart.
    const std::string other = folder.path("other.gmk");
    run_sql(other,
            "PRAGMA application_id = 1196247857;"
            "BEGIN; CREATE TABLE A (A TEXT); INSERT INTO A VALUES (hex(zeroblob(9000)));"
            "CREATE TABLE INLET (INLET_NUMBER TEXT, STATION TEXT); COMMIT;"
            "INSERT INTO INLET VALUES ('1', '')");
    cut_a_save_short(other);
    std::filesystem::rename(other + "-journal", journal);
    expect_refused_untouched("the journal beside the file belongs to another file: it would damage this one");
}

TEST_F(NeighborsTest, AnEmptyJournalAndAZeroedOneAreNoHindrance) {
    write_file(journal, "");
    EXPECT_EQ(open_failure(), "(no failure)");
    write_file(journal, std::string(512, '\0'));
    Connection connection;
    connection.open(path);
    connection.execute("UPDATE INLET SET OFFSET = '5'");
    EXPECT_EQ(run_sql(path, "SELECT DISTINCT OFFSET FROM INLET"), "5");
    EXPECT_FALSE(std::filesystem::exists(journal));
}

TEST_F(NeighborsTest, AJournalWhoseMarkWasHalfStoredIsNoHindrance) {
    const std::string mark = journal_start;
    const std::string behind =
        four_bytes(0) + four_bytes(7) + four_bytes(3) + four_bytes(512) + four_bytes(4096);
    for (std::size_t stored = 1; stored < mark.size(); ++stored) {
        const std::string torn = mark.substr(0, stored) + std::string(mark.size() - stored, '\0') + behind;
        write_file(journal, torn + std::string(512 - torn.size(), '\0'));
        EXPECT_EQ(open_failure(), "(no failure)") << stored;
        EXPECT_FALSE(std::filesystem::exists(journal)) << stored;
        EXPECT_EQ(run_sql(path, "SELECT count(*) FROM INLET WHERE STATION = 'whole'"), "2") << stored;
    }
}

TEST_F(NeighborsTest, AJournalThatTellsOfAnEndlessFileIsRefused) {
    const std::string header = journal_start + four_bytes(1) + four_bytes(0) + four_bytes(0xffffffff) +
                               four_bytes(512) + four_bytes(65536);
    write_file(journal, header + std::string(512 - header.size(), '\0') + std::string(70000, '\1'));
    expect_refused_untouched("the journal beside the file belongs to another file: road.gmk-journal");
}

TEST_F(NeighborsTest, ALogBesideAFileThatKeepsNoneIsNotWorkedIntoIt) {
    const std::string other = folder.path("other.gmk");
    run_sql(other, small_project);
    sqlite3* open_elsewhere = nullptr;
    sqlite3_open(other.c_str(), &open_elsewhere);
    sqlite3_exec(open_elsewhere, "PRAGMA journal_mode = WAL; CREATE TABLE FOREIGN_ROWS (A TEXT)", nullptr,
                 nullptr, nullptr);
    std::filesystem::copy_file(other + "-wal", path + "-wal");
    sqlite3_close(open_elsewhere);
    expect_refused_untouched("what stands beside the file is no log of it: road.gmk-wal");
}

TEST_F(NeighborsTest, AFileInWriteAheadModeTakesItsLogAndBecomesOneFile) {
    ChildProcess other([&] {
        sqlite3* file = nullptr;
        sqlite3_open(path.c_str(), &file);
        sqlite3_exec(file, "PRAGMA journal_mode = WAL; UPDATE INLET SET STATION = 'in the log'", nullptr,
                     nullptr, nullptr);
        _exit(0);
    });
    ASSERT_TRUE(other.wait());
    ASSERT_GT(std::filesystem::file_size(path + "-wal"), 0U);
    EXPECT_EQ(open_failure(), "(no failure)");
    EXPECT_EQ(all_files().size(), 1U);
    EXPECT_EQ(run_sql(path, "SELECT DISTINCT STATION FROM INLET"), "in the log");
}

TEST_F(NeighborsTest, AnotherProgramsFileInWriteAheadModeKeepsItsLog) {
    ChildProcess other([&] {
        sqlite3* file = nullptr;
        sqlite3_open(path.c_str(), &file);
        sqlite3_exec(file, "PRAGMA journal_mode = WAL; PRAGMA application_id = 7", nullptr, nullptr, nullptr);
        _exit(0);
    });
    ASSERT_TRUE(other.wait());
    expect_refused_untouched("this is not a Gullymark project file");
}

TEST_F(NeighborsTest, ALogThatIsNoneIsRefused) {
    run_sql(path, "PRAGMA journal_mode = WAL");
    write_file(path + "-wal", "notes");
    expect_refused_untouched("what stands beside the file is no log of it: road.gmk-wal");
    std::filesystem::remove(path + "-wal");
    ASSERT_EQ(mkfifo((path + "-shm").c_str(), 0666), 0);
    expect_refused_untouched("what stands beside the file is no journal of it: road.gmk-shm");
}

TEST_F(NeighborsTest, ANameThatLeavesNoRoomForTheJournalsIsToldAtTheOpen) {
    const std::string content = read_file(path);
    for (const std::size_t length : {247U, 248U, 255U}) {
        path = folder.path(std::string(length - 4, 'r') + ".gmk");
        write_file(path, content);
        if (length == 247U) {
            EXPECT_EQ(open_failure(), "(no failure)");
        } else {
            expect_refused_untouched("the file's name is too long to save in it: 247 bytes are the most");
        }
        std::filesystem::remove(path);
    }
}

TEST_F(NeighborsTest, APathThatLeavesNoRoomForTheJournalsIsToldAtTheOpen) {
    std::string deep = folder.path();
    while (deep.size() < 480) {
        deep += "/" + std::string(std::min<std::size_t>(200, 490 - deep.size()), 'f');
    }
    std::filesystem::create_directories(deep);
    const std::string content = read_file(path);
    for (const std::size_t length : {504U, 505U}) {
        path = deep + "/" + std::string(length - deep.size() - 1, 'r');
        write_file(path, content);
        EXPECT_EQ(open_failure(),
                  length == 504U ? "(no failure)" : "the file's path is too long: 504 bytes are the most");
    }
}

TEST_F(NeighborsTest, AFileOfTheOldEngineIsNamedAsThat) {
    for (const char* words : {"Standard Jet DB", "Standard ACE DB"}) {
        write_file(path, std::string("\0\1\0\0", 4) + words + std::string(4000, '\0'));
        expect_refused_untouched("this is a file of the old database engine, which this program cannot read");
    }
    write_file(path, std::string("\0\1\0\0", 4) + "Standard" + std::string(4000, '\0'));
    expect_refused_untouched("file is not a database");
}

}  // namespace
