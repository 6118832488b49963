#include "platform/process.h"

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

namespace gullymark::platform {
namespace {

void give_stream(posix_spawn_file_actions_t& files, int file, int stream, int mode) {
    if (file == no_file) {
        posix_spawn_file_actions_addopen(&files, stream, "/dev/null", mode, 0);
    } else {
        posix_spawn_file_actions_adddup2(&files, file, stream);
    }
}

}  // namespace

pid_t start_program(std::vector<std::string> command, const Streams& streams) {
    std::vector<char*> arguments;
    for (std::string& argument : command) {
        arguments.push_back(argument.data());
    }
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    give_stream(files, streams.input, STDIN_FILENO, O_RDONLY);
    give_stream(files, streams.output, STDOUT_FILENO, O_WRONLY);
    give_stream(files, streams.errors, STDERR_FILENO, O_WRONLY);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
    pid_t started = 0;
    const int error =
        posix_spawn(&started, arguments.front(), &files, &attributes, arguments.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
    return error == 0 ? started : -1;
}

}  // namespace gullymark::platform
