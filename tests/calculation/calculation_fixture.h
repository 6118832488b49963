#pragma once

#include <string>

#include <gmock/gmock.h>

#include "calculation/worked_calculation.h"
#include "engine/engine_fixture.h"
#include "tools/case_table.h"

namespace gullymark::calculation {

using engine::Column;

/// An engine with the inlet that the help works out, solved and stored.
class CalculationTest : public engine::EngineTest {
  protected:
    void SetUp() override {
        EngineTest::SetUp();
        load("solves_help.tsv", 0);
    }

    /// The row of a table, counted from 0; the boxes of its solve are kept nowhere.
    static void load(const std::string& table_name, std::size_t row) {
        const auto table = cases::read_table(std::string(GULLYMARK_TEST_DIR) + "/cases/" + table_name);
        cases::solve_row(table, table.rows.at(row));
    }

    static Document work_out_open_inlet() {
        return work_out({.inlet = engine::open_inlet,
                         .units = engine::UnitSystem,
                         .project = {.id = "P-1",
                                     .name = "Oak Street",
                                     .county = "Autauga",
                                     .state = "Alabama",
                                     .designer = "N. N."},
                         .today = std::chrono::year(2026) / 11 / 22});
    }

    /// The last row for a symbol; an empty one where there is none.
    static Row row_for(const Document& document, const std::string& symbol,
                       Row::Kind kind = Row::Kind::formula) {
        Row found;
        for (const auto& section : document.sections) {
            for (const auto& row : section.rows) {
                found = row.symbol == symbol && row.kind == kind ? row : found;
            }
        }
        return found;
    }

    static std::vector<std::string> headings(const Document& document) {
        std::vector<std::string> all;
        for (const auto& section : document.sections) {
            all.push_back(section.heading);
        }
        return all;
    }

    static std::vector<Row> rows_of_kind(const Document& document, Row::Kind kind) {
        std::vector<Row> rows;
        for (const auto& section : document.sections) {
            for (const auto& row : section.rows) {
                if (row.kind == kind) {
                    rows.push_back(row);
                }
            }
        }
        return rows;
    }
};

}  // namespace gullymark::calculation
