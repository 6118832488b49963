#include "platform/process.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>

#include "support/outside_double.h"

namespace gullymark::platform {
namespace {

using testing_support::read_file;
using testing_support::write_file;

/// The exit status of a program that was started; -1 when it did not end by itself.
int wait_for(pid_t program) {
    int status = 0;
    return waitpid(program, &status, 0) == program && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

pid_t start_shell(const std::string& line, const Streams& streams) {
    return start_program({"/bin/sh", "-c", line}, streams);
}

struct Process : testing::Test {
    testing_support::TempFolder folder;

    [[nodiscard]] int open_file(const std::string& name) const {
        return open(folder.path(name).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    }
};

TEST_F(Process, ReadsAndWritesTheFilesThatItWasGiven) {
    write_file(folder.path("in"), "one\n");
    const int in = open_file("in");
    const int out = open_file("out");
    const int errors = open_file("errors");
    EXPECT_EQ(wait_for(start_shell("read line; echo \"$line two\"; echo three >&2; exit 7",
                                   {.input = in, .output = out, .errors = errors})),
              7);
    EXPECT_EQ(read_file(folder.path("out")), "one two\n");
    EXPECT_EQ(read_file(folder.path("errors")), "three\n");
    for (const int file : {in, out, errors}) {
        close(file);
    }
}

TEST_F(Process, WithoutFilesHasNothingToReadAndWritesNowhere) {
    const std::string line =
        "read line && exit 1; cd /proc/self/fd; "
        "for stream in 0 1 2; do [ $stream -ef /dev/null ] || exit 2; done";
    EXPECT_EQ(wait_for(start_shell(line, {})), 0);
}

TEST_F(Process, IsLeaderOfASessionAndAGroupOfItsOwn) {
    std::array<int, 2> ends = {};
    ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    const pid_t program = start_shell("read line", {.input = ends[0]});
    EXPECT_EQ(getsid(program), program);
    EXPECT_EQ(getpgid(program), program);
    close(ends[0]);
    close(ends[1]);
    EXPECT_EQ(wait_for(program), 1) << "the end of its input ends it";
}

TEST_F(Process, ThatCannotBeStartedHasNoNumber) {
    EXPECT_EQ(start_program({folder.path("none")}, {}), -1);
    write_file(folder.path("text"), "no program");
    EXPECT_EQ(start_program({folder.path("text")}, {}), -1);
}

}  // namespace
}  // namespace gullymark::platform
