#include "platform/files.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>

#include "support/child_process.h"
#include "support/failure_text.h"
#include "support/outside_double.h"

namespace gullymark::platform {
namespace {

namespace fs = std::filesystem;
using testing_support::failure_text;
using testing_support::read_file;
using testing_support::write_file;

struct CopyFile : testing::Test {
    testing_support::TempFolder folder;
    std::string source = folder.path("source");
    std::string target = folder.path("target");

    CopyFile() { write_file(source, "new"); }
    [[nodiscard]] std::ptrdiff_t file_count() const {
        return std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator());
    }
};

TEST_F(CopyFile, TakesThePlaceOfAnOldFileAndLeavesNothingBesideIt) {
    write_file(target, "old and longer");
    copy_file(source, target);
    EXPECT_EQ(read_file(target), "new");
    EXPECT_EQ(file_count(), 2);
}

TEST_F(CopyFile, OfAReadOnlyFileCanBeWritten) {
    fs::permissions(source, fs::perms::owner_read);
    copy_file(source, target);
    EXPECT_EQ(fs::status(target).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(CopyFile, KeepsThePermissionsOfTheFileThatItReplaces) {
    write_file(target, "old");
    fs::permissions(target, fs::perms::owner_all);
    copy_file(source, target);
    EXPECT_EQ(fs::status(target).permissions(), fs::perms::owner_all);
}

TEST_F(CopyFile, ReplacesWhatALinkLeadsToAndKeepsTheLink) {
    const std::string link = folder.path("link");
    write_file(target, "old");
    fs::create_symlink(target, link);
    copy_file(source, link);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(read_file(target), "new");
}

TEST_F(CopyFile, TakesAlongWhatBelongsToTheOldFile) {
    write_file(target + "-journal", "undo");
    write_file(target + "-notes", "mine");
    copy_file(source, target, {"-journal"});
    EXPECT_FALSE(file_exists(target + "-journal"));
    EXPECT_EQ(read_file(target + "-notes"), "mine");
}

TEST_F(CopyFile, ThatFindsNoRoomKeepsTheOldFile) {
    write_file(source, std::string(100'000, 'n'));
    write_file(target, "old");
    testing_support::ChildProcess child([&] {
        static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
        const rlimit limit{50'000, RLIM_INFINITY};
        setrlimit(RLIMIT_FSIZE, &limit);
        if (failure_text([&] { copy_file(source, target); }) != "File too large: " + target) {
            throw std::runtime_error("another failure");
        }
    });
    EXPECT_TRUE(child.wait());
    EXPECT_EQ(read_file(target), "old");
    EXPECT_EQ(file_count(), 2);
}

TEST_F(CopyFile, TellsWhichFileFailed) {
    EXPECT_EQ(failure_text([&] { copy_file(folder.path("none"), target); }),
              "No such file or directory: " + folder.path("none"));
    EXPECT_EQ(failure_text([&] { copy_file(source, folder.path("none/target")); }),
              "No such file or directory: " + folder.path("none/target"));
    fs::create_directory(target);
    EXPECT_EQ(failure_text([&] { copy_file(source, target); }), "Is a directory: " + target);
    EXPECT_EQ(file_count(), 2);
}

}  // namespace
}  // namespace gullymark::platform
