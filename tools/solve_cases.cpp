// Solves every row of tables of solved inlets and tells which cells differ.
//
//   solve_cases [--kind "Curb Inlet"] [--location "SUMP"] TABLE...
//
// Or tells one inlet step by step, the one on that line of the table (the heading is line 1): what each step of the solver
// gave to which quantity, by which formula, with symbols and with numbers in their place (in six digits, or in all of them),
// what the boxes said, and each column that the solve changed.
//
//   solve_cases --trace LINE [--digits few|all] TABLE
//
// Exit 0 when no cell differs, 1 when one does, 2 when the call or a table cannot be read.

#include <charconv>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "engine/inlet_record.h"
#include "engine/step.h"
#include "engine/units.h"
#include "tools/case_table.h"

namespace {

using namespace gullymark;

constexpr std::size_t first_line = 2;  // of a row; the heading is line 1

struct Request {
    std::string kind;
    std::string location;
    std::size_t traced_line = 0;                                       // 0 for none
    engine::formula::Style numbers = engine::formula::Style::numbers;  // of a trace
    std::vector<std::string> tables;
};

struct Count {
    std::size_t rows = 0;
    std::size_t cells = 0;
    std::size_t differing = 0;
};

bool read_line_number(const std::string& text, std::size_t& line) {
    const char* end = text.data() + text.size();
    const auto [read_to, error] = std::from_chars(text.data(), end, line);
    return error == std::errc() && read_to == end && line >= first_line;
}

bool read_option(const std::string& option, const std::string& value, Request& request) {
    if (option == "--trace") {
        return read_line_number(value, request.traced_line);
    }
    if (option == "--digits" && (value == "few" || value == "all")) {
        request.numbers = value == "all" ? engine::formula::Style::exact : engine::formula::Style::numbers;
        return true;
    }
    if (option == "--kind" || option == "--location") {
        (option == "--kind" ? request.kind : request.location) = value;
        return true;
    }
    return false;
}

bool read_arguments(const std::vector<std::string>& arguments, Request& request) {
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (!arguments[i].starts_with("--")) {
            request.tables.push_back(arguments[i]);
        } else if (i + 1 == arguments.size() || !read_option(arguments[i], arguments[i + 1], request)) {
            return false;
        } else {
            ++i;
        }
    }
    return request.traced_line == 0 ? !request.tables.empty() : request.tables.size() == 1;
}

bool is_wanted(const Request& request, const cases::Table& table, const std::vector<std::string>& row) {
    return (request.kind.empty() || cases::cell(table, row, "INLET_TYPE") == request.kind) &&
           (request.location.empty() || cases::cell(table, row, "INLET_LOCATION") == request.location);
}

void compare_table(const Request& request, const std::string& path, Count& count) {
    const cases::Table table = cases::read_table(path);
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
        if (!is_wanted(request, table, table.rows[i])) {
            continue;
        }
        const auto comparison = cases::compare_row(table, table.rows[i]);
        ++count.rows;
        count.cells += comparison.cells;
        count.differing += comparison.differences.size();
        for (const auto& [column, expected, computed] : comparison.differences) {
            std::cout << path << ':' << i + first_line << ": " << column << " expected \"" << expected
                      << "\", computed \"" << computed << "\"\n";
        }
    }
}

void tell_formula(const engine::TraceLine& line, engine::formula::Style numbers) {
    for (const auto& formula : engine::describe_formula(line, numbers)) {
        std::cout << "      " << formula << '\n';
    }
}

/// The columns that a solve changed, as they stand when it is over: results in their format, inputs that were repaired.
void tell_changes(const std::vector<std::string>& before, const std::vector<engine::TraceLine>& roundings,
                  engine::formula::Style numbers) {
    for (std::size_t i = 0; i < engine::all_columns.size(); ++i) {
        const auto column = engine::all_columns[i];
        const auto& text = engine::open_inlet.text(column);
        if (text != before[i]) {
            const auto unit = engine::unit_text(engine::column_unit(column));
            std::cout << engine::column_name(column) << " = \"" << text << '"' << (unit.empty() ? "" : " ")
                      << unit << "  " << engine::column_meaning(column) << '\n';
            for (const auto& rounding : roundings) {
                if (rounding.symbol == engine::column_name(column)) {
                    tell_formula(rounding, numbers);
                }
            }
        }
    }
}

void trace_row(const std::string& path, std::size_t line, engine::formula::Style numbers) {
    const cases::Table table = cases::read_table(path);
    if (line - first_line >= table.rows.size()) {
        throw std::runtime_error(path + " has no line " + std::to_string(line));
    }
    const auto& row = table.rows[line - first_line];
    cases::load_row(table, row);
    std::vector<std::string> before;
    for (const auto column : engine::all_columns) {
        before.push_back(engine::open_inlet.text(column));
    }
    std::vector<engine::TraceLine> trace;
    std::vector<engine::TraceLine> roundings;
    engine::onlooker = {.trace = &trace, .roundings = &roundings};
    const auto computed = cases::solve_row(table, row);
    engine::onlooker = {};

    std::cout << path << ':' << line << ": " << cases::cell(table, row, "INLET_TYPE") << ", "
              << cases::cell(table, row, "INLET_LOCATION") << ", " << cases::cell(table, row, "UNITS")
              << '\n';
    for (const auto& step : trace) {
        std::cout << engine::describe(step) << '\n';
        tell_formula(step, numbers);
    }
    std::cout << "solved: " << computed.at("solved") << "\nmessages: " << computed.at("messages") << '\n';
    tell_changes(before, roundings, numbers);
}

int run(const std::vector<std::string>& arguments) {
    Request request;
    if (!read_arguments(arguments, request)) {
        std::cerr << "usage: solve_cases [--kind INLET_TYPE] [--location INLET_LOCATION] TABLE...\n"
                     "       solve_cases --trace LINE [--digits few|all] TABLE\n";
        return 2;
    }
    if (request.traced_line != 0) {
        trace_row(request.tables.front(), request.traced_line, request.numbers);
        return 0;
    }
    Count count;
    for (const auto& path : request.tables) {
        compare_table(request, path, count);
    }
    std::cout << "rows " << count.rows << ", cells " << count.cells << ", differing " << count.differing
              << '\n';
    return count.differing == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return run({argv + 1, argv + argc});
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 2;
    }
}
