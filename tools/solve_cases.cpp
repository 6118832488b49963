// Solves every row of tables of solved inlets and tells which cells differ.
//
//   solve_cases [--kind "Curb Inlet"] [--location "SUMP"] TABLE...
//
// Exit 0 when no cell differs, 1 when one does, 2 when the call or a table cannot be read.

#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "tools/case_table.h"

namespace {

using namespace gullymark;

struct Request {
    std::string kind;
    std::string location;
    std::vector<std::string> tables;
};

struct Count {
    std::size_t rows = 0;
    std::size_t cells = 0;
    std::size_t differing = 0;
};

bool read_arguments(const std::vector<std::string>& arguments, Request& request) {
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const bool is_kind = arguments[i] == "--kind";
        if (is_kind || arguments[i] == "--location") {
            if (i + 1 == arguments.size()) {
                return false;
            }
            (is_kind ? request.kind : request.location) = arguments[++i];
        } else if (arguments[i].starts_with("--")) {
            return false;
        } else {
            request.tables.push_back(arguments[i]);
        }
    }
    return !request.tables.empty();
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
            // The heading is line 1 of the file.
            std::cout << path << ':' << i + 2 << ": " << column << " expected \"" << expected
                      << "\", computed \"" << computed << "\"\n";
        }
    }
}

int run(const std::vector<std::string>& arguments) {
    Request request;
    if (!read_arguments(arguments, request)) {
        std::cerr << "usage: solve_cases [--kind INLET_TYPE] [--location INLET_LOCATION] TABLE...\n";
        return 2;
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
