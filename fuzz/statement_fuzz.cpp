// Any text as a statement or a condition: the ALTER splitter loses no text between its commas, what it gives back is
// not split again, a condition that is read says what it read, and a search and a statement with them on a real file
// end in an answer or a Failure.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "file_in_memory.h"
#include "platform/database.h"
#include "platform/database_statements.h"
#include "platform/failure.h"
#include "platform/row_set.h"
#include "target.h"

namespace {

using namespace gullymark;

[[noreturn]] void fail(const char* what, std::string_view text) {
    std::fprintf(stderr, "statement_fuzz: %s: \"%.*s\"\n", what, static_cast<int>(text.size()), text.data());
    std::abort();
}

std::string without_blanks(std::string_view text) {
    std::string plain(text);
    std::erase_if(plain, [](char letter) {
        return letter == ' ' || letter == '\t' || letter == '\r' || letter == '\n';
    });
    return plain;
}

/// Each part repeats the beginning of the statement, in which their columns stand between commas.
void check_split(std::string_view statement) {
    const auto parts = platform::split_alter(statement);
    if (parts.empty()) {
        fail("a statement has no part", statement);
    }
    const auto whole = without_blanks(statement);
    std::string together = without_blanks(parts[0]);
    std::size_t length = 0;
    for (const auto& part : parts) {
        length += without_blanks(part).size();
    }
    const std::size_t beginning = parts.size() == 1 ? 0 : (length - whole.size()) / (parts.size() - 1) + 1;
    for (std::size_t i = 1; i < parts.size(); ++i) {
        const auto part = without_blanks(parts[i]);
        together += "," + part.substr(std::min(beginning, part.size()));
    }
    if (together != whole) {
        fail("the parts are not the statement", statement);
    }
    for (const auto& part : parts) {
        if (platform::split_alter(part).size() != 1) {
            fail("a part is split again", part);
        }
    }
}

void check_condition(std::string_view text) {
    const auto condition = platform::read_condition(text);
    if (!condition || condition->column.find(']') != std::string::npos) {
        return;
    }
    const auto again = platform::read_condition("[" + condition->column + "] = '" + condition->text + "'");
    if (again != condition) {
        fail("a condition says something else when it is written again", text);
    }
}

/// A file with two inlets whose numbers are awkward, open for the whole run; nothing of it is stored.
struct Project {
    fuzz::FileInMemory file;
    platform::Connection connection;
    platform::RowSet rows;

    Project() {
        file.copy_template();
        connection.open(file.path());
        connection.execute("BEGIN");
        connection.execute("INSERT INTO INLET (INLET_NUMBER) VALUES ('CB-1'), ('O''Neill')");
        rows.open(connection, "SELECT * FROM INLET ORDER BY INLET_NUMBER");
    }
};

/// True when it ended without a Failure, which is an answer like any other.
template <class Action>
bool try_out(Action action) {
    try {
        action();
        return true;
    } catch (const platform::Failure&) {
        return false;
    }
}

void check_search(platform::RowSet& rows, const std::string& text) {
    rows.move_first();
    const bool searched = try_out([&] { rows.find(text); });
    if (rows.at_end()) {
        return;
    }
    const auto condition = platform::read_condition(text);
    if (!searched || !condition || rows.value(condition->column) != condition->text) {
        fail("a search ended on a row that does not hold", text);
    }
}

/// The text joined into a statement as a number is.
void check_comment(platform::Connection& connection, const std::string& text) {
    const std::string statement = "UPDATE INLET SET STATION = '" + text + "' WHERE INLET_NUMBER = 'CB-1'";
    if (platform::has_comment(statement) && try_out([&] { connection.execute(statement); })) {
        fail("a statement with a comment was carried out", text);
    }
}

void check_on_file(const std::string& text) {
    static Project project;
    check_search(project.rows, text);
    check_comment(project.connection, text);
    try_out([&] {
        platform::RowSet rows;
        rows.open(project.connection, text);
        if (rows.record_count() > 0) {
            static_cast<void>(rows.row());
        }
    });
    if (platform::split_alter(text).size() > 1) {
        project.connection.execute("SAVEPOINT before");
        try_out([&] { project.connection.execute(text); });
        project.connection.execute("ROLLBACK TO before");
        project.connection.execute("RELEASE before");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    check_split(text);
    check_condition(text);
    static_cast<void>(platform::keys_statement(text));
    check_on_file(text);
    return 0;
}
