#pragma once

#include <span>
#include <string>

namespace gullymark::review {

/// What the command line asks for.
struct CommandLine {
    enum class Task : unsigned char { help, version, check, pdf, csv, window };

    Task task = Task::window;
    std::string file;  // of a window it may be empty
    std::string out;   // of a PDF book and of a table; "-" is the standard output
    std::string bypass_limit = "0";
    bool as_json = false;
};

/// The words of --help.
extern const char* const help_text;

/// Reads the arguments, the program's name not among them. Throws Failure, in one sentence, for a command line that asks
/// for what there is not.
CommandLine read_command_line(std::span<char* const> arguments);

}  // namespace gullymark::review
