#include "tools/case_table.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>
#include <utility>

#include "engine/inlet_record.h"
#include "engine/solve.h"
#include "engine/unit_constants.h"
#include "platform/outside.h"

namespace gullymark::cases {
namespace {

std::vector<std::string> split_at_tabs(const std::string& line) {
    std::vector<std::string> fields;
    std::size_t start = 0;
    for (std::size_t tab = line.find('\t'); tab != std::string::npos; tab = line.find('\t', start)) {
        fields.push_back(line.substr(start, tab - start));
        start = tab + 1;
    }
    fields.push_back(line.substr(start));
    return fields;
}

bool is_expectation(const std::string& column) {
    return column.starts_with('=');
}

}  // namespace

Table read_table(const std::string& path) {
    std::ifstream file(path);
    Table table;
    std::string line;
    if (!std::getline(file, line)) {
        throw std::runtime_error("cannot read " + path);
    }
    table.columns = split_at_tabs(line);
    while (std::getline(file, line)) {
        table.rows.push_back(split_at_tabs(line));
        if (table.rows.back().size() != table.columns.size()) {
            throw std::runtime_error(path + ": row " + std::to_string(table.rows.size()) + " has " +
                                     std::to_string(table.rows.back().size()) + " cells, the heading " +
                                     std::to_string(table.columns.size()));
        }
    }
    return table;
}

void load_row(const Table& table, const std::vector<std::string>& row) {
    engine::open_inlet = {};
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        if (table.columns[i] == "UNITS") {
            engine::UnitSystem = row[i];
        } else if (const auto column = engine::column_named(table.columns[i])) {
            engine::open_inlet.load(*column, row[i]);
        }
    }
    engine::set_unit_defaults();
}

std::map<std::string, std::string> solve_row(const Table& table, const std::vector<std::string>& row) {
    load_row(table, row);
    std::string messages;
    const auto show_box = std::exchange(platform::outside.show_box, [&messages](const platform::Box& box) {
        messages += (messages.empty() ? "" : "|") + box.text;
        return platform::Answer::ok;
    });
    const bool solved = engine::check_and_solve();
    platform::outside.show_box = show_box;

    std::map<std::string, std::string> computed = {{"solved", solved ? "yes" : "no"}, {"messages", messages}};
    for (const auto column : engine::all_columns) {
        computed[std::string(engine::column_name(column))] = engine::open_inlet.text(column);
    }
    return computed;
}

Comparison compare_row(const Table& table, const std::vector<std::string>& row) {
    const auto computed = solve_row(table, row);
    Comparison comparison;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        if (!is_expectation(table.columns[i])) {
            continue;
        }
        ++comparison.cells;
        const auto found = computed.find(table.columns[i].substr(1));
        const std::string text = found == computed.end() ? "(no such column)" : found->second;
        if (text != row[i]) {
            comparison.differences.push_back({table.columns[i].substr(1), row[i], text});
        }
    }
    return comparison;
}

std::string cell(const Table& table, const std::vector<std::string>& row, const std::string& column) {
    const auto found = std::find(table.columns.begin(), table.columns.end(), column);
    return found == table.columns.end() ? std::string()
                                        : row[static_cast<std::size_t>(found - table.columns.begin())];
}

}  // namespace gullymark::cases
