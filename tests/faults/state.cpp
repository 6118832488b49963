#include "faults/state.h"

#include <sqlite3.h>

#include <algorithm>
#include <stdexcept>
#include <unordered_set>

#include "editor/state/inlet_grid.h"
#include "editor/state/workspace.h"
#include "editor/windows/inlet_list.h"
#include "editor/windows/inlet_view.h"
#include "faults/designer.h"
#include "support/sqlite_file.h"

namespace gullymark::faults {
namespace {

namespace fs = std::filesystem;

constexpr const char* no_project = "there is no project";
constexpr std::size_t most_known = 100;  // files kept in memory

std::vector<TableRow> read_table(sqlite3* file, const std::string& table, const std::string& order,
                                 const std::string& key = "") {
    sqlite3_stmt* query = nullptr;
    const auto select = "SELECT " + key + "* FROM " + table + " ORDER BY " + order;
    if (sqlite3_prepare_v2(file, select.c_str(), -1, &query, nullptr) != SQLITE_OK) {
        throw std::runtime_error(sqlite3_errmsg(file));
    }
    std::vector<TableRow> rows;
    int result = sqlite3_step(query);
    for (; result == SQLITE_ROW; result = sqlite3_step(query)) {
        TableRow& row = rows.emplace_back();
        for (int column = 0; column < sqlite3_column_count(query); ++column) {
            const unsigned char* bytes = sqlite3_column_text(query, column);
            auto& value = row[sqlite3_column_name(query, column)];
            if (bytes != nullptr) {
                value = std::string(bytes, bytes + sqlite3_column_bytes(query, column));
            }
        }
    }
    sqlite3_finalize(query);
    if (result != SQLITE_DONE) {
        throw std::runtime_error(sqlite3_errmsg(file));
    }
    return rows;
}

/// A null says no more than a column that the file does not have.
std::string in_words(const std::string& table, const std::vector<TableRow>& rows) {
    std::string words;
    for (const auto& row : rows) {
        words += table + ':';
        for (const auto& [column, value] : row) {
            words += value ? ' ' + column + '=' + *value : "";
        }
        words += '\n';
    }
    return words;
}

std::string columns_of(sqlite3* file) {
    std::string columns;
    for (const char* table : {"pragma_table_info('PROJECT')", "pragma_table_info('INLET')"}) {
        for (const auto& row : read_table(file, table, "name")) {
            columns += row.at("name").value_or("") + ' ';
        }
    }
    return columns;
}

State state_of_project(const std::string& path) {
    sqlite3* file = nullptr;
    State state;
    try {
        sqlite3_open(path.c_str(), &file);
        sqlite3_exec(file, "PRAGMA synchronous = OFF", nullptr, nullptr, nullptr);
        state.content = in_words("PROJECT", read_table(file, "PROJECT", "rowid", "rowid AS [key],")) +
                        in_words("INLET", read_table(file, "INLET", "rowid", "rowid AS [key],"));
        state.inlets = read_table(file, "INLET", "INLET_NUMBER");
        state.columns = columns_of(file);
    } catch (const std::runtime_error& error) {
        state.content = std::string("no project: ") + error.what();
    }
    sqlite3_close(file);
    return state;
}

/// The value of a column; nothing for a column that the file does not have.
std::optional<std::string> value_in(const TableRow& row, std::string_view column) {
    const auto found = row.find(std::string(column));
    return found == row.end() ? std::nullopt : found->second;
}

bool shows(const engine::InletRecord& shown, const TableRow& row) {
    return std::ranges::all_of(engine::all_columns, [&](engine::Column column) {
        return shown.value(column) == value_in(row, engine::column_name(column));
    });
}

bool shows_nothing(const engine::InletRecord& shown) {
    return std::ranges::all_of(engine::all_columns,
                               [&](engine::Column column) { return shown.text(column).empty(); });
}

bool shows_one_of(const engine::InletRecord& shown, const std::vector<State>& states) {
    return std::ranges::any_of(states, [&](const State& state) {
        return std::ranges::any_of(state.inlets, [&](const TableRow& row) { return shows(shown, row); });
    });
}

const std::vector<std::string> grid_columns{"INLET_NUMBER", "STATION", "OFFSET"};
const std::vector<std::string> list_columns{"INLET_NUMBER",   "STATION",        "OFFSET",      "INLET_TYPE",
                                            "INLET_LOCATION", "INLET_SUBTYPE",  "INLETLENGTH", "PREINLET1",
                                            "PREINLET2",      "TOTAL_DISCHARGE"};

using Cell = std::string (*)(int row, std::size_t column);

bool lists(Cell cell, const std::vector<std::string>& columns, int rows, const State& state) {
    for (int row = 1; row <= rows; ++row) {
        for (std::size_t column = 0; column < columns.size(); ++column) {
            const auto& inlet = state.inlets.at(static_cast<std::size_t>(row - 1));
            if (cell(row, column) != value_in(inlet, columns[column]).value_or("")) {
                return false;
            }
        }
    }
    return true;
}

/// A list shows all rows of one state, or none.
std::string complaint_about_list(const char* name, Cell cell, const std::vector<std::string>& columns,
                                 int rows, const std::vector<State>& states) {
    const bool right =
        rows == 0 || std::ranges::any_of(states, [&](const State& state) {
            return state.inlets.size() == static_cast<std::size_t>(rows) && lists(cell, columns, rows, state);
        });
    return right ? "" : std::string(name) + " shows what is not in the file";
}

std::string complaint_about_form(const std::vector<State>& states) {
    const auto& shown = engine::open_inlet;
    if (!editor::MDIInlet.visible || !editor::viewing() || shows_nothing(shown)) {
        return "";
    }
    const auto& number = shown.text(engine::Column::INLET_NUMBER);
    if (!shows_one_of(shown, states)) {
        return "the form shows an inlet " + number + " that is not in the file";
    }
    const auto marked = editor::current_grid_number();
    return marked == number || editor::MDIInlet.Adodc1.record_count() == 0
               ? ""
               : "the form shows inlet " + number + " beside the marked inlet " + marked;
}

std::string complaint_about_view(const std::vector<State>& states) {
    if (!editor::frmviewinlet.visible || shows_nothing(editor::viewed_inlet) ||
        shows_one_of(editor::viewed_inlet, states)) {
        return "";
    }
    return "the record view shows an inlet that is not in the file";
}

/// The record view, the grid and the listing.
std::string complaint_about_lists(const std::vector<State>& states) {
    using namespace editor;  // NOLINT(google-build-using-namespace): all that is looked at is the editor's
    for (const auto& complaint :
         {complaint_about_view(states),
          complaint_about_list("the grid", grid_cell, grid_columns, MDIInlet.Adodc1.record_count(), states),
          complaint_about_list("the listing", list_cell, list_columns, frminletflex.Adodc1.record_count(),
                               states)}) {
        if (!complaint.empty()) {
            return complaint;
        }
    }
    return "";
}

std::string complaint_about_unknown(const Site& site, const State& state, const State& last) {
    Designer designer(site.program());
    designer.open(site.file());
    const bool details = state.content.starts_with("PROJECT");
    if (designer.boxes.size() != 1 ||
        !designer.boxes[0].text.starts_with(details ? "Project Name: " : "No Project Found.")) {
        return "it is not opened" + designer.what_was_told();
    }
    if (static_cast<std::size_t>(Designer::rows()) != state.inlets.size()) {
        return "it shows " + std::to_string(Designer::rows()) + " inlets";
    }
    std::string complaint;
    const auto add = [&](const std::string& more) { complaint = complaint.empty() ? more : complaint; };
    designer.look_at_every_row([&] { add(complaint_about_form({state})); },
                               [&] { add(complaint_about_view({state})); });
    add(complaint_about_lists({state}));
    if (!complaint.empty()) {
        return complaint;
    }
    if (state_of(site).columns != last.columns) {
        return "columns are missing";
    }
    const auto check = testing_support::run_sql(site.file(), "PRAGMA integrity_check");
    return check == "ok" ? "" : check;
}

}  // namespace

State state_of(const Site& site) {
    const auto folder = site.path("seen");
    fs::remove_all(folder);
    fs::create_directory(folder);
    State state{.content = no_project};
    if (fs::exists(site.file())) {
        fs::copy_file(site.file(), folder + "/road.gmk");
        if (fs::exists(site.journal())) {
            fs::copy_file(site.journal(), folder + "/road.gmk-journal");
        }
        state = state_of_project(folder + "/road.gmk");
    }
    if (fs::exists(site.report())) {
        state.content += "report: " + bytes_of(site.report());
    }
    return state;
}

std::string complaint_about_screen(const std::vector<State>& states) {
    auto complaint = complaint_about_form(states);
    return complaint.empty() ? complaint_about_lists(states) : complaint;
}

std::string complaint_about_opening(const Site& site, const State& state, const State& last) {
    static std::unordered_set<std::string> known_to_be_good;
    const auto files = site.names() + bytes_of(site.file()) + bytes_of(site.journal()) + last.columns;
    if (state.content == no_project || known_to_be_good.contains(files)) {
        return "";
    }
    auto complaint = complaint_about_unknown(site, state, last);
    // Most calls that fail leave what was there before, byte for byte.
    if (complaint.empty() && known_to_be_good.size() < most_known) {
        known_to_be_good.insert(files);
    }
    return complaint;
}

}  // namespace gullymark::faults
