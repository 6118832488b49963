#include "shell/review/command_line.h"

#include <cstddef>

#include "platform/failure.h"
#include "platform/number_text.h"

namespace gullymark::review {
namespace {

using platform::Failure;

/// The arguments one after the other.
class Arguments {
  public:
    explicit Arguments(std::span<char* const> all) : all_(all) {}

    [[nodiscard]] bool at_end() const { return next_ == all_.size(); }
    std::string take() { return all_[next_++]; }
    std::string take_value(const std::string& option, const std::string& what) {
        if (at_end()) {
            throw Failure(option + " needs " + what);
        }
        return take();
    }

  private:
    std::span<char* const> all_;
    std::size_t next_ = 0;
};

std::string read_limit(const std::string& text) {
    const auto read = platform::read_number(text);
    if (read.fault != platform::NumberFault::none || read.number < 0) {
        throw Failure("the limit of a bypass is a number that is not negative, not \"" + text + "\"");
    }
    return text;
}

}  // namespace

const char* const help_text =
    R"(Usage: gullymark-review [FILE]
       gullymark-review --check FILE [--bypass-limit Q] [--json]
       gullymark-review --help | --version

Reads a project, solves its inlets anew and tells what is wrong, beyond what is
allowed, or doubtful. The file is only read.

  FILE                open a window with this project; without FILE, an empty
                      window
  --check FILE        tell the findings of this project on standard output,
                      one on a line: severity, rule, inlet, text and advice,
                      with a tab between them; their counts on standard error
  --bypass-limit Q    a bypass that no inlet takes is a finding above Q, in the
                      unit of flow of the project (0)
  --json              the findings as a JSON array
  --help              tell this
  --version           tell the version

Exit status: 0 nothing found, or the window was closed, 1 findings, 2 the
project could not be read, there is no display for a window, or the command
line is not one of these.
)";

CommandLine read_command_line(std::span<char* const> arguments) {
    CommandLine line;
    Arguments left(arguments);
    bool only_for_check = false;
    bool has_file = false;
    while (!left.at_end()) {
        const std::string argument = left.take();
        if (argument == "--help") {
            return {.task = CommandLine::Task::help};
        }
        if (argument == "--version") {
            return {.task = CommandLine::Task::version};
        }
        if (argument == "--check" && !has_file) {
            line.file = left.take_value(argument, "a file");
            line.task = CommandLine::Task::check;
            has_file = true;
        } else if (argument == "--bypass-limit") {
            line.bypass_limit = read_limit(left.take_value(argument, "a flow"));
            only_for_check = true;
        } else if (argument == "--json") {
            line.as_json = true;
            only_for_check = true;
        } else if (!has_file && !argument.empty() && argument.front() != '-') {
            line.file = argument;
            has_file = true;
        } else {
            throw Failure("there is no place for the argument " + argument);
        }
    }
    if (line.task == CommandLine::Task::window && only_for_check) {
        throw Failure("--check with a file is missing");
    }
    return line;
}

}  // namespace gullymark::review
