#include "platform/spreadsheet_office.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>

#include "platform/failure.h"
#include "platform/files.h"
#include "platform/number_text.h"
#include "platform/office_lines.h"
#include "platform/outside.h"
#include "platform/process.h"
#include "platform/spreadsheet.h"

namespace gullymark::platform {
namespace {

using Clock = std::chrono::steady_clock;
using Fields = std::vector<std::string>;

constexpr std::chrono::seconds patience_with_helpers{5};
constexpr std::chrono::seconds patience_after_showing{1};
constexpr std::chrono::seconds patience_beyond_limit{2};  // the small program keeps the limit itself
constexpr int pause_between_paints = 20;                  // milliseconds

// The talk with the small program: from `open` until the workbook was shown.
struct Talk {
    OfficeSettings settings;
    int connection = -1;
    std::string heard;  // what has come and has no end of line yet
    SheetFile file;
    std::vector<pid_t> helpers;  // started and not yet seen to have ended

    ~Talk();
};

Talk talk;

// The end of the connection tells the small program to leave nothing behind. It is not waited for.
void hang_up() {
    if (talk.connection >= 0) {
        close(talk.connection);
        talk.connection = -1;
    }
    talk.heard.clear();
}

Talk::~Talk() {
    hang_up();
}

// An earlier helper may be ending the office that the next one would talk to. Waits for it, but not for one that
// waits for the office itself.
void let_helpers_end(std::chrono::seconds patience) {
    const Clock::time_point until = Clock::now() + patience;
    std::erase_if(talk.helpers, [&](pid_t helper) {
        while (waitpid(helper, nullptr, WNOHANG) == 0) {
            if (Clock::now() > until) {
                return false;
            }
            poll(nullptr, 0, pause_between_paints);
            keep_painting();
        }
        return true;
    });
}

void start_talk() {
    hang_up();
    let_helpers_end(patience_with_helpers);
    if (!file_exists(talk.settings.program)) {
        throw Failure("No spreadsheet program can be reached.");
    }
    std::array<int, 2> ends = {};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        throw Failure("No spreadsheet program can be reached.");
    }
    // An interrupt that is meant for us lets it tidy up.
    const pid_t helper = start_program({talk.settings.program},
                                       {.input = ends[1], .output = ends[1], .errors = STDERR_FILENO});
    close(ends[1]);
    talk.connection = ends[0];
    if (helper < 0) {
        hang_up();
        throw Failure("No spreadsheet program can be reached.");
    }
    talk.helpers.push_back(helper);
    fcntl(talk.connection, F_SETFL, O_NONBLOCK);
}

[[noreturn]] void break_off(const std::string& description) {
    hang_up();
    throw Failure(description);
}

// Waits until the connection can be written to or read from.
void wait_for(short event, Clock::time_point due) {
    pollfd waited = {.fd = talk.connection, .events = event, .revents = 0};
    while (poll(&waited, 1, pause_between_paints) <= 0) {
        if (Clock::now() > due) {
            break_off("The spreadsheet program does not answer.");
        }
        keep_painting();
    }
}

void say(std::string_view lines, Clock::time_point due) {
    while (!lines.empty()) {
        const ssize_t sent = send(talk.connection, lines.data(), lines.size(), MSG_NOSIGNAL);
        if (sent > 0) {
            lines.remove_prefix(static_cast<std::size_t>(sent));
        } else if (errno == EAGAIN || errno == EINTR) {
            wait_for(POLLOUT, due);
        } else {
            break;  // it has gone; what it said before comes with the answer
        }
    }
}

Fields next_line(Clock::time_point due) {
    std::size_t end = talk.heard.find('\n');
    while (end == std::string::npos) {
        wait_for(POLLIN, due);
        std::array<char, 65536> piece = {};
        const ssize_t count = recv(talk.connection, piece.data(), piece.size(), 0);
        if (count > 0) {
            talk.heard.append(piece.data(), static_cast<std::size_t>(count));
        } else if (count == 0 || (errno != EAGAIN && errno != EINTR)) {
            break_off("The spreadsheet program has ended.");
        }
        end = talk.heard.find('\n');
    }
    Fields fields = split_line(std::string_view(talk.heard).substr(0, end));
    talk.heard.erase(0, end + 1);
    return fields;
}

// Says the lines and gives what comes until the answer is there.
SheetContent ask_for(const std::string& answer, const std::string& lines) {
    const Clock::time_point due = Clock::now() + talk.settings.limit + patience_beyond_limit;
    say(lines, due);
    SheetContent content;
    for (;;) {
        const Fields fields = next_line(due);
        if (fields.front() == answer) {
            return content;
        }
        if (!read_content_line(fields, content)) {
            break_off(fields.front() == "failed" && fields.size() > 1
                          ? fields[1]
                          : "The spreadsheet program is not understood.");
        }
    }
}

Fields open_question(const SheetFile& file) {
    Fields question = {"open", file.path, file.sheet == SheetChoice::first ? "first" : "active"};
    if (!file.template_path.empty()) {
        question.push_back(file.template_path);
    }
    return question;
}

SheetContent open_in_office(const SheetFile& file) {
    start_talk();
    std::string lines;
    for (const Fields& question : talk.settings.first_questions) {
        lines += join_line(question);
    }
    const double seconds = std::chrono::duration<double>(talk.settings.limit).count();
    lines += join_line({"limit", number_text(seconds)});
    lines += join_line(open_question(file));
    talk.file = file;
    return ask_for("opened", lines);
}

std::string filling_lines(const SheetFile& file, const Filling& filling) {
    std::string lines = cell_lines(filling.cells);
    for (const RowRange& rows : filling.kept_rows) {
        lines += join_line({"keep", std::to_string(rows.first), std::to_string(rows.last)});
    }
    if (file.frozen_rows > 0 || file.frozen_columns > 0) {
        lines += join_line({"freeze", std::to_string(file.frozen_rows), std::to_string(file.frozen_columns)});
    }
    return lines;
}

void hand_over_to_office(const SheetFile& file, const Filling& filling) {
    if (talk.connection < 0 || talk.file != file) {
        throw Failure("The workbook is not open.");
    }
    ask_for("shown", filling_lines(file, filling) + join_line({"show"}));
    for (const Fields& question : talk.settings.last_questions) {
        ask_for("done", join_line(question));
    }
    hang_up();
    let_helpers_end(
        patience_after_showing);  // it has nothing left to do, and shall not stay as a dead process
}

}  // namespace

void use_office(OfficeSettings settings) {
    hang_up();
    talk.settings = std::move(settings);
    spreadsheet = {.open = open_in_office, .hand_over = hand_over_to_office};
}

}  // namespace gullymark::platform
