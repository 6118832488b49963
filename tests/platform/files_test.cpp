#include "platform/files.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include <cerrno>
#include <csignal>

#include "platform/failure.h"
#include "support/child_process.h"
#include "support/fail_call.h"
#include "support/failure_text.h"
#include "support/kill_at_call.h"
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

TEST_F(CopyFile, LeavesAFileOfTheUsersThatHasAPartsName) {
    write_file(target + ".part", "mine");
    copy_file(source, target);
    EXPECT_EQ(read_file(target + ".part"), "mine");
    EXPECT_EQ(file_count(), 3);
}

TEST_F(CopyFile, WritesThroughNoLinkThatWasPlantedUnderAPartsName) {
    const std::string other = folder.path("other");
    write_file(other, "mine");
    fs::create_symlink(other, target + ".part");
    copy_file(source, target);
    EXPECT_EQ(read_file(other), "mine");
    EXPECT_FALSE(fs::is_symlink(target));
}

TEST_F(CopyFile, WaitsForNoPipe) {
    const std::string pipe = folder.path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR), 0);
    EXPECT_EQ(failure_text([&] { copy_file(pipe, target); }), "This is no ordinary file: " + pipe);
    EXPECT_FALSE(fs::exists(target));
    EXPECT_EQ(failure_text([&] { copy_file(source, pipe); }), "This is no ordinary file: " + pipe);
    EXPECT_TRUE(fs::is_fifo(pipe));
    ASSERT_EQ(mkfifo((target + ".part").c_str(), S_IRUSR | S_IWUSR), 0);
    copy_file(source, target);
    EXPECT_EQ(read_file(target), "new");
}

TEST_F(CopyFile, RefusesADevice) {
    EXPECT_EQ(failure_text([&] { copy_file(source, "/dev/null"); }), "This is no ordinary file: /dev/null");
    EXPECT_EQ(failure_text([&] { copy_file("/dev/zero", target); }), "This is no ordinary file: /dev/zero");
}

TEST_F(CopyFile, RefusesToReplaceItsSource) {
    const std::string link = folder.path("link");
    fs::create_symlink(source, link);
    EXPECT_EQ(failure_text([&] { copy_file(source, source); }), "They are the same file: " + source);
    EXPECT_EQ(failure_text([&] { copy_file(source, link); }), "They are the same file: " + link);
    EXPECT_EQ(read_file(source), "new");
}

TEST_F(CopyFile, TakesTheLongestNameThatThereIs) {
    const std::string long_target = folder.path(std::string(255, 't'));
    copy_file(source, long_target);
    EXPECT_EQ(read_file(long_target), "new");
}

TEST_F(CopyFile, TakesANameInTheCurrentFolder) {
    set_current_folder(folder.path());
    copy_file("source", "target");
    EXPECT_EQ(read_file(target), "new");
}

TEST_F(CopyFile, KilledAtAnyCallLeavesTheOldFileOrTheNewOne) {
    int old_found = 0;
    bool killed = true;
    for (int call = 1; killed; ++call) {
        write_file(target, "old");
        killed = testing_support::kill_at_call(call, [&] { copy_file(source, target); });
        const std::string content = read_file(target);
        ASSERT_TRUE(content == "old" || content == "new") << content << " when killed at call " << call;
        old_found += content == "old" ? 1 : 0;
    }
    EXPECT_GT(old_found, 5);
    EXPECT_EQ(read_file(target), "new");
}

TEST_F(CopyFile, WhoseLastStepFailsKeepsTheOldFile) {
    write_file(target, "old");
    EXPECT_EQ(failure_text(
                  [&] { copy_file(source, target, [](const std::string&) { throw Failure("not now"); }); }),
              "not now");
    EXPECT_EQ(read_file(target), "old");
    EXPECT_EQ(file_count(), 2);
}

TEST_F(CopyFile, TellsThatItIsNotSureToBeOnTheDisk) {
    write_file(target, "old");
    testing_support::ChildProcess child([&] {
        testing_support::fail_call(__NR_fsync, EIO);
        if (failure_text([&] { copy_file(source, target); }) != "Input/output error: " + target) {
            throw std::runtime_error("another failure");
        }
    });
    EXPECT_TRUE(child.wait());
    EXPECT_EQ(read_file(target), "old");
    EXPECT_EQ(file_count(), 2);
}

TEST_F(CopyFile, BelievesAFileSystemThatCannotSynchronise) {
    testing_support::ChildProcess child([&] {
        testing_support::fail_call(__NR_fsync, EINVAL);
        copy_file(source, target);
    });
    EXPECT_TRUE(child.wait());
    EXPECT_EQ(read_file(target), "new");
}

TEST_F(CopyFile, TakesAFileSystemThatKnowsNoPermissions) {
    testing_support::ChildProcess child([&] {
        testing_support::fail_call(__NR_fchmod, EPERM);
        copy_file(source, target);
    });
    EXPECT_TRUE(child.wait());
    EXPECT_EQ(read_file(target), "new");
}

TEST_F(CopyFile, ThatCannotTakeTheOldFilesPlaceLeavesNothingBesideIt) {
    write_file(target, "old");
    testing_support::ChildProcess child([&] {
        testing_support::fail_call(__NR_rename, EIO);
        if (failure_text([&] { copy_file(source, target); }) != "Input/output error: " + target) {
            throw std::runtime_error("another failure");
        }
    });
    EXPECT_TRUE(child.wait());
    EXPECT_EQ(read_file(target), "old");
    EXPECT_EQ(file_count(), 2);
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

using ReplaceFile = CopyFile;

TEST_F(ReplaceFile, WritesANewFileOrTakesThePlaceOfAnOldOne) {
    replace_file(target, "first");
    EXPECT_EQ(read_file(target), "first");
    fs::permissions(target, fs::perms::owner_read | fs::perms::group_read);
    replace_file(target, "second");
    EXPECT_EQ(read_file(target), "second");
    EXPECT_EQ(fs::status(target).permissions(),
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    EXPECT_EQ(file_count(), 2);
}

TEST_F(ReplaceFile, ReplacesWhatALinkLeadsTo) {
    const std::string link = folder.path("link");
    write_file(target, "old");
    fs::create_symlink(target, link);
    replace_file(link, "new");
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(read_file(target), "new");
}

TEST_F(ReplaceFile, ThatFindsNoRoomKeepsTheOldFile) {
    write_file(target, "old");
    testing_support::ChildProcess child([&] {
        static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
        const rlimit limit{50'000, RLIM_INFINITY};
        setrlimit(RLIMIT_FSIZE, &limit);
        if (failure_text([&] { replace_file(target, std::string(100'000, 'n')); }) !=
            "File too large: " + target) {
            throw std::runtime_error("another failure");
        }
    });
    EXPECT_TRUE(child.wait());
    EXPECT_EQ(read_file(target), "old");
    EXPECT_EQ(file_count(), 2);
}

TEST_F(ReplaceFile, KilledAtAnyCallLeavesTheOldFileOrTheNewOne) {
    bool killed = true;
    for (int call = 1; killed; ++call) {
        write_file(target, "old");
        killed = testing_support::kill_at_call(call, [&] { replace_file(target, "new"); });
        const std::string content = read_file(target);
        ASSERT_TRUE(content == "old" || content == "new") << content << " when killed at call " << call;
    }
    EXPECT_EQ(read_file(target), "new");
}

TEST_F(ReplaceFile, TellsWhichFileFailed) {
    EXPECT_EQ(failure_text([&] { replace_file(folder.path("none/target"), "new"); }),
              "No such file or directory: " + folder.path("none/target"));
    fs::create_directory(target);
    EXPECT_EQ(failure_text([&] { replace_file(target, "new"); }), "Is a directory: " + target);
    EXPECT_EQ(failure_text([&] { replace_file("/dev/null", "new"); }), "This is no ordinary file: /dev/null");
    EXPECT_EQ(file_count(), 2);
}

}  // namespace
}  // namespace gullymark::platform
