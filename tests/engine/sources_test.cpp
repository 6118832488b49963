#include "engine/sources.h"

#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include <gmock/gmock.h>

#include "engine/engine_fixture.h"
#include "engine/solve.h"
#include "support/case_tables.h"

namespace gullymark::engine {
namespace {

using formula::Spelling;
using formula::Working;

/// One row of a table of doc/sources.md: "cisi-cg | Qi | 4e Eq. 7.1 | ".
using Told = std::array<std::string, 4>;

std::vector<std::string> cells_of(const std::string& line) {
    std::vector<std::string> cells;
    for (std::size_t start = 2, end = 0; start < line.size(); start = end + 2) {
        end = line.find('|', start);
        cells.push_back(end == start ? "" : line.substr(start, end - start - 1));
    }
    return cells;
}

/// The tables whose first column is "symbol".
std::multiset<Told> told_in_the_document() {
    std::ifstream file(std::string(GULLYMARK_SOURCE_DIR) + "/doc/sources.md");
    std::multiset<Told> told;
    std::string section;
    std::map<std::string, std::size_t> columns;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("## <a id=\"")) {
            section = line.substr(10, line.find('"', 10) - 10);
        }
        if (!line.starts_with("| ")) {
            columns = line.starts_with("|-") ? columns : std::map<std::string, std::size_t>();
            continue;
        }
        const auto cells = cells_of(line);
        if (columns.empty()) {
            for (std::size_t i = 0; i < cells.size(); ++i) {
                columns[cells[i]] = i;
            }
        } else if (columns.contains("symbol") && columns.contains("departs?")) {
            const auto& departs = cells.at(columns["departs?"]);
            told.insert({section, cells.at(columns["symbol"]), cells.at(columns["source"]),
                         departs == "no" ? "" : departs});
        }
    }
    return told;
}

/// Sections whose rows no step of a sheet takes.
bool is_beside_the_sheets(const Told& row) {
    return row[0] == "standards" || row[0] == "discharge";
}

TEST(Sources, TheDocumentTellsTheSameToTheLetter) {
    std::multiset<Told> told = told_in_the_document();
    std::erase_if(told, is_beside_the_sheets);
    std::multiset<Told> known;
    for (const auto& row : all_sources()) {
        known.insert({std::string(row.sheet), std::string(row.symbols), std::string(row.publication),
                      std::string(row.departure)});
    }
    EXPECT_GT(known.size(), 100U);
    EXPECT_EQ(told, known);
}

/// Steps that need no source: they read a column, or write a quantity into one.
bool only_moves(const TraceLine& line) {
    const bool leaf =
        line.formula.kind == Spelling::Kind::number || line.formula.kind == Spelling::Kind::words;
    return leaf && (line.formula.column ||
                    (line.kind == TraceLine::Kind::text && line.formula.kind == Spelling::Kind::number));
}

/// What the solves of all tables ask for a source.
struct Asked : EngineTest {
    std::set<const Source*> used;
    std::set<std::string> without_source;
    std::set<std::string> without_heading;

    void ask(const std::string& sheet, const std::string& what, const Source* row) {
        used.insert(row);
        if (row == nullptr) {
            without_source.insert(sheet + ": " + what);
        }
    }

    void ask_constants(const Spelling& formula) {
        if (const Source* row = source_of_constant(formula.symbol)) {
            used.insert(row);
        }
        for (const auto& part : formula.parts) {
            ask_constants(part);
        }
    }

    void ask_line(const std::string& sheet, const TraceLine& line) {
        const std::string symbol(line.symbol);
        if (line.heading.empty()) {
            without_heading.insert(sheet + ' ' + std::to_string(line.step));
        }
        ask_constants(line.formula);
        if (line.kind != TraceLine::Kind::condition && !only_moves(line)) {
            ask(sheet, std::to_string(line.step) + ' ' + symbol, source_of_step(sheet, symbol, line.formula));
        }
        for (const auto& working : line.workings) {
            ask_constants(working.formula);
            if (working.kind == Working::Kind::value) {
                ask(sheet, symbol + " by " + std::string(working.symbol),
                    source_of_working(sheet, line.formula, working.symbol, working.formula));
            }
        }
    }

    void solve_tables() {
        for (const char* name : testing_support::case_tables) {
            const auto table = testing_support::read_case_table(name);
            for (const auto& row : table.rows) {
                std::vector<TraceLine> trace;
                onlooker = {.trace = &trace};
                cases::solve_row(table, row);
                onlooker = {};
                const std::string sheet(sheet_of(text(Column::INLET_LOCATION), text(Column::INLET_TYPE)));
                for (const auto& line : trace) {
                    ask_line(sheet, line);
                }
            }
        }
    }
};

TEST_F(Asked, EveryStepThatWorksSomethingOutHasASourceAndAHeadingAndEverySourceIsUsed) {
    solve_tables();
    EXPECT_THAT(without_source, testing::IsEmpty());
    EXPECT_THAT(without_heading, testing::IsEmpty());
    std::set<std::string> unused;
    for (const auto& row : all_sources()) {
        if (!used.contains(&row)) {
            unused.insert(std::string(row.sheet) + ": " + std::string(row.symbols) + ' ' +
                          std::string(row.part));
        }
    }
    // No inlet comes there: with finite slopes there is no depression where there is no gutter.
    EXPECT_THAT(unused, testing::ElementsAre("cisi-cg: W "));
}

TEST_F(Asked, ADepartureThatCountsInMetricUnitsIsNotToldInTheOthers) {
    const auto* const row = source_of_constant("curbLengthLimit");
    ASSERT_NE(row, nullptr);
    UnitSystem = "METRIC";
    EXPECT_EQ(departure_of(*row), "in metric units: 3.6 is held as the whole number 4");
    UnitSystem = "ENGLISH";
    EXPECT_EQ(departure_of(*row), "");
}

}  // namespace
}  // namespace gullymark::engine
