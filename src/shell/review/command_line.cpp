#include "shell/review/command_line.h"

#include <cstddef>

#include "platform/failure.h"
#include "review/texts.h"

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
    if (number_of(text).value_or(-1.0) < 0.0) {
        throw Failure("the limit of a bypass is a number that is not negative, not \"" + text + "\"");
    }
    return text;
}

/// Throws Failure for options without their command.
void refuse_what_lacks(const CommandLine& line, bool has_file, bool has_limit) {
    using Task = CommandLine::Task;
    if ((line.as_json && line.task != Task::check) || (has_limit && line.task == Task::window)) {
        throw Failure("--check with a file is missing");
    }
    if ((line.task == Task::pdf || line.task == Task::csv) && !has_file) {
        throw Failure("the file of the project is missing");
    }
}

}  // namespace

const char* const help_text =
    R"(Usage: gullymark-review [FILE]
       gullymark-review --check FILE [--bypass-limit Q] [--json]
       gullymark-review --pdf OUT FILE [--bypass-limit Q]
       gullymark-review --csv OUT FILE [--bypass-limit Q]
       gullymark-review --help | --version

Reads a project, solves its inlets anew and tells what is wrong, beyond what is
allowed, or doubtful. The file is only read.

  FILE                open a window with this project; without FILE, an empty
                      window
  --check FILE        tell the findings of this project on standard output,
                      one on a line: severity, rule, inlet, text and advice,
                      with a tab between them; their counts on standard error
  --pdf OUT FILE      write a book of this project: findings, balance, the road,
                      the inlets, and the worked calculation of each; OUT is
                      replaced, unless it is a project, and - is standard output
  --csv OUT FILE      write the table of inlets as comma-separated values
  --bypass-limit Q    a bypass that no inlet takes is a finding above Q, in the
                      unit of flow of the project (0)
  --json              the findings as a JSON array
  --help              tell this
  --version           tell the version

Exit status: 0 nothing found, or the window was closed, 1 findings, 2 the
project could not be read, OUT not written, there is no display for a window,
or the command line is not one of these.
)";

CommandLine read_command_line(std::span<char* const> arguments) {
    CommandLine line;
    Arguments left(arguments);
    bool has_limit = false;
    bool has_file = false;
    while (!left.at_end()) {
        const std::string argument = left.take();
        if (argument == "--help") {
            return {.task = CommandLine::Task::help};
        }
        if (argument == "--version") {
            return {.task = CommandLine::Task::version};
        }
        const bool is_first = line.task == CommandLine::Task::window;
        if (argument == "--check" && is_first && !has_file) {
            line.task = CommandLine::Task::check;
            line.file = left.take_value(argument, "a file");
            has_file = true;
        } else if ((argument == "--pdf" || argument == "--csv") && is_first) {
            line.task = argument == "--pdf" ? CommandLine::Task::pdf : CommandLine::Task::csv;
            line.out = left.take_value(argument, "a file to write");
        } else if (argument == "--bypass-limit") {
            line.bypass_limit = read_limit(left.take_value(argument, "a flow"));
            has_limit = true;
        } else if (argument == "--json") {
            line.as_json = true;
        } else if (!has_file && !argument.empty() && argument.front() != '-') {
            line.file = argument;
            has_file = true;
        } else {
            throw Failure("there is no place for the argument " + argument);
        }
    }
    refuse_what_lacks(line, has_file, has_limit);
    return line;
}

}  // namespace gullymark::review
