/// gullymark-review: shows or tells the findings of a project, which it only reads. Only its window knows the toolkit.

#include <cstddef>
#include <cstdio>
#include <exception>
#include <functional>
#include <span>
#include <string>

#include "platform/failure.h"
#include "platform/files.h"
#include "platform/project_copy.h"
#include "review/finding_lines.h"
#include "review/findings.h"
#include "review/inlet_table.h"
#include "review/read_project.h"
#include "review/review_file.h"
#include "shell/review/command_line.h"
#include "shell/review/start_review.h"

namespace {

using namespace gullymark;
using review::CommandLine;

constexpr int nothing_found = 0;
constexpr int something_found = 1;
constexpr int failed = 2;

/// A script that gets half of something must not take it for all.
void write_out(const std::string& text) {
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size() || std::fflush(stdout) != 0) {
        throw platform::Failure("nothing more can be written to standard output");
    }
}

void tell(const std::string& text) {
    static_cast<void>(std::fputs(("gullymark-review: " + text + "\n").c_str(), stderr));
}

int check(const CommandLine& line) {
    const auto project = review::read_project(line.file);
    const auto findings = review::judge(project, {.bypass = line.bypass_limit});
    write_out(line.as_json ? review::finding_json(findings) : review::finding_lines(findings));
    tell(review::finding_counts(findings, project.inlets.size()));
    return findings.empty() ? nothing_found : something_found;
}

/// Writes what is made of a project to a file or to the standard output; the findings are counted on standard error.
int write(const CommandLine& line, const std::function<std::string(const review::Reviewed&)>& make) {
    const bool to_standard_output = line.out == "-";
    if (!to_standard_output) {
        platform::refuse_project(line.out);
    }
    const auto reviewed = review::review_file(line.file, {.bypass = line.bypass_limit});
    const std::string made = make(*reviewed);
    if (to_standard_output) {
        write_out(made);
    } else {
        platform::replace_file(line.out, made);
    }
    tell(review::finding_counts(reviewed->findings, reviewed->project.inlets.size()));
    return reviewed->findings.empty() ? nothing_found : something_found;
}

int run(int argc, char** argv) {
    const std::span all(argv, static_cast<std::size_t>(argc));
    const CommandLine line = review::read_command_line(all.subspan(all.empty() ? 0 : 1));
    switch (line.task) {
        case CommandLine::Task::help:
            write_out(review::help_text);
            return nothing_found;
        case CommandLine::Task::version:
            write_out("gullymark-review " GULLYMARK_VERSION "\n");
            return nothing_found;
        case CommandLine::Task::check:
            return check(line);
        case CommandLine::Task::pdf:
            return write(line, [&](const auto& reviewed) {
                return shell::make_book(argc, argv, reviewed, line.file);
            });
        case CommandLine::Task::csv:
            return write(line, [](const auto& reviewed) {
                return review::as_csv(
                    review::make_inlet_table(reviewed.project, reviewed.findings, reviewed.fresh));
            });
        case CommandLine::Task::window:
            break;
    }
    shell::run_review(argc, argv, line.file);
    return nothing_found;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        tell(error.what());
        return failed;
    }
}
