/// gullymark-office: opens a workbook in the user's office, fills cells and shows it, as office_lines.h tells.
/// It ends with 0 when all went well, with 1 when it failed.

#include <unistd.h>

#include <com/sun/star/uno/Exception.hpp>
#include <csignal>
#include <iostream>
#include <thread>

#include "platform/failure.h"
#include "platform/number_text.h"
#include "platform/office/answers.h"
#include "platform/office/layout.h"
#include "platform/office/office.h"
#include "platform/office/texts.h"
#include "platform/office/workbook.h"
#include "platform/office_lines.h"

namespace {

using namespace gullymark;
using namespace std::chrono_literals;
using Fields = std::vector<std::string>;

constexpr auto limit_of_end = 10s;
constexpr auto limit_of_lingering = 5min;

struct Bridge {
    office::Office office;
    office::Workbook workbook;
    platform::SheetContent held;   // what the opened sheet has
    platform::SheetContent asked;  // what shall be written
    std::vector<platform::RowRange> kept_rows;
    platform::SheetFile file;
    std::chrono::milliseconds limit = 30s;
};

Bridge& bridge() {
    static Bridge one;
    return one;
}

// An office that was started here goes. One of the user's may wake up again and open the workbook unseen: stay until
// it has, so that the workbook is closed, but not for ever.
void give_up() {
    if (bridge().office.started == 0) {
        std::this_thread::sleep_for(limit_of_lingering);
    }
    office::kill_office(bridge().office);
    _exit(1);
}

office::Answers& answers() {
    static office::Answers one(give_up);
    return one;
}

// Leaves nothing behind that the user does not see, and ends.
[[noreturn]] void leave(int code) {
    answers().promise(limit_of_end);
    try {
        office::close_workbook(bridge().workbook);
    } catch (const com::sun::star::uno::Exception&) {
        // It has gone with its office.
    }
    office::end_office(bridge().office);
    _exit(code);
}

void answer(const std::string& lines) {
    if (!answers().give(lines)) {
        leave(1);
    }
}

const std::string& field(const Fields& fields, std::size_t at) {
    if (at >= fields.size()) {
        throw platform::Failure("A field is missing: " + fields.front());
    }
    return fields[at];
}

int whole_number(const Fields& fields, std::size_t at) {
    return static_cast<int>(platform::read_number(field(fields, at)).number);
}

office::Workbook& workbook() {
    if (!bridge().workbook.sheet.is()) {
        throw platform::Failure("No workbook is open.");
    }
    return bridge().workbook;
}

void open(const Fields& fields) {
    answers().promise(bridge().limit);
    platform::SheetFile& file = bridge().file;
    file.path = field(fields, 1);
    file.sheet = field(fields, 2) == "first" ? platform::SheetChoice::first : platform::SheetChoice::active;
    file.template_path = fields.size() > 3 ? fields[3] : "";
    if (access(file.path.c_str(), R_OK) != 0 && access(file.template_path.c_str(), R_OK) != 0) {
        throw platform::Failure("There is no file " + file.path + ".");
    }
    office::connect_office(bridge().office);
    office::open_workbook(bridge().office, file, bridge().workbook);
    bridge().held = office::read_content(workbook());
    answer(platform::content_lines(bridge().held) + platform::join_line({"opened"}));
}

// A sheet with a heading that stays in sight is a table.
void lay_out() {
    const platform::SheetFile& file = bridge().file;
    office::keep_rows_together(workbook(), bridge().kept_rows);
    if (file.frozen_rows > 0 || file.frozen_columns > 0) {
        office::align_decimals(workbook(), file.frozen_rows, bridge().asked.cells);
    }
}

// It is shown, whatever becomes of this.
void freeze_heading() {
    const platform::SheetFile& file = bridge().file;
    try {
        if (file.frozen_rows > 0 || file.frozen_columns > 0) {
            office::freeze(workbook(), file.frozen_rows, file.frozen_columns);
        }
    } catch (const com::sun::star::uno::Exception&) {
        // The user has closed it already.
    }
}

void show() {
    answers().promise(bridge().limit);
    office::write_cells(workbook(), bridge().asked.cells, bridge().held.cells);
    lay_out();
    office::show_workbook(bridge().office, workbook());
    freeze_heading();
    answer(platform::join_line({"shown"}));
}

// True when the workbook has been shown and has become the user's.
bool carry_out(const Fields& fields) {
    const std::string& asked = fields.front();
    if (platform::read_content_line(fields, bridge().asked)) {
        return false;
    }
    if (asked == "limit") {
        const double seconds = platform::read_number(field(fields, 1)).number;
        bridge().limit = std::chrono::milliseconds(static_cast<std::int64_t>(seconds * 1000.0));
    } else if (asked == "profile") {
        bridge().office.choice.profile = field(fields, 1);
    } else if (asked == "headless") {
        bridge().office.choice.headless = true;
    } else if (asked == "open") {
        open(fields);
    } else if (asked == "keep") {
        bridge().kept_rows.push_back({whole_number(fields, 1), whole_number(fields, 2)});
    } else if (asked == "freeze") {
        bridge().file.frozen_rows = whole_number(fields, 1);
        bridge().file.frozen_columns = whole_number(fields, 2);
    } else if (asked == "keep_name") {
        office::save(workbook());
        answer(platform::join_line({"done"}));
    } else if (asked == "save") {
        office::save_copy(workbook(), field(fields, 1));
        answer(platform::join_line({"done"}));
    } else if (asked == "close") {
        office::close_workbook(workbook());
        answer(platform::join_line({"done"}));
    } else if (asked == "show") {
        show();
        return true;
    } else {
        throw platform::Failure("Not understood: " + asked);
    }
    return false;
}

int talk() {
    bool shown = false;
    for (std::string line; std::getline(std::cin, line);) {
        shown = carry_out(platform::split_line(line)) || shown;
    }
    if (!shown) {
        leave(0);
    }
    return 0;
}

}  // namespace

int main() {
    static_cast<void>(signal(SIGPIPE, SIG_IGN));
    office::set_up_libraries();
    try {
        _exit(talk());  // the office's libraries need no tidying up, and could hang in it
    } catch (const platform::Failure& failure) {
        answers().fail(failure.what());
    } catch (const com::sun::star::uno::Exception& exception) {
        answers().fail(office::utf8_of(exception.Message));
    } catch (const std::exception& exception) {
        answers().fail(exception.what());
    }
    leave(1);
}
