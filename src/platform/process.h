#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace gullymark::platform {

inline constexpr int no_file = -1;

/// What a started program has for its three streams: a file that is open here, or nothing to read and nowhere to write.
struct Streams {
    int input = no_file;
    int output = no_file;
    int errors = no_file;
};

/// Starts a program, the first text of `command` its path and the others its arguments, in a session and process group of its own: an
/// interrupt that is meant for us does not reach it, and it lives on when we have ended. Its number, by which the caller
/// waits for its end; -1 when it cannot be started.
pid_t start_program(std::vector<std::string> command, const Streams& streams);

}  // namespace gullymark::platform
