// What tells that a project file has changed, without opening it as a database.

#include "platform/file_marks.h"

#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "support/outside_double.h"
#include "support/sqlite_file.h"

namespace gullymark::platform {
namespace {

using testing_support::run_sql;
using testing_support::small_project;
using testing_support::TempFolder;
namespace fs = std::filesystem;

struct FileMarksTest : testing::Test {
    TempFolder folder;
    std::string path = folder.path("road.gmk");

    FileMarksTest() { run_sql(path, small_project); }
};

TEST_F(FileMarksTest, AFileThatStaysHasOneState) {
    const auto state = look_at_state(path);
    EXPECT_EQ(look_at_state(path), state);
}

TEST_F(FileMarksTest, ASaveWithinOneTickOfTheClockAndOfTheSameSizeIsSeen) {
    run_sql(path, "INSERT INTO INLET (INLET_NUMBER) VALUES ('1')");
    const auto time = fs::last_write_time(path);
    const auto size = fs::file_size(path);
    const auto before = look_at_state(path);
    run_sql(path, "UPDATE INLET SET INLET_NUMBER = '2'");
    fs::last_write_time(path, time);
    ASSERT_EQ(fs::file_size(path), size);
    EXPECT_NE(look_at_state(path), before);
}

TEST_F(FileMarksTest, AnotherFileInItsPlaceIsSeen) {
    const auto before = look_at_state(path);
    fs::copy_file(path, path + ".new");
    fs::last_write_time(path + ".new", fs::last_write_time(path));
    fs::rename(path + ".new", path);
    EXPECT_NE(look_at_state(path), before);
}

TEST_F(FileMarksTest, AJournalBesideItIsSeen) {
    const auto before = look_at_state(path);
    std::ofstream(path + "-journal") << "half of a save";
    EXPECT_NE(look_at_state(path), before);
}

TEST_F(FileMarksTest, ALinkIsFollowed) {
    const std::string link = folder.path("link.gmk");
    fs::create_symlink(path, link);
    EXPECT_EQ(look_at_state(link), look_at_state(path));
}

TEST_F(FileMarksTest, WhatIsNoFileIsLookedAtWithoutWaiting) {
    EXPECT_EQ(look_at_state(folder.path("missing.gmk")), look_at_state(folder.path("nowhere/missing.gmk")));
    EXPECT_EQ(look_at_state(folder.path("")).back(), -1);
    const std::string pipe = folder.path("pipe.gmk");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(look_at_state(pipe).back(), -1);
    std::ofstream(folder.path("short.gmk")) << "SQLite format 3";
    EXPECT_EQ(look_at_state(folder.path("short.gmk")).back(), -1);
}

}  // namespace
}  // namespace gullymark::platform
