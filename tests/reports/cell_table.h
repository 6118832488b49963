#pragma once

#include <map>
#include <sstream>
#include <string>

#include "reports/report_fixture.h"
#include "tools/case_table.h"

/// tests/cases/inlet_report_cells.tsv: which source stands in which cell of the Inlet Report, for each kind of inlet.
namespace gullymark::reports {

inline constexpr const char* combination = "Combination Curb and Grate Inlet";

inline engine::InletRecord inlet_of_kind(const std::string& type, const std::string& location) {
    engine::InletRecord inlet;
    inlet.load(Column::INLET_TYPE, type);
    inlet.load(Column::INLET_LOCATION, location);
    return inlet;
}

/// The kinds of the cell table's heading.
inline engine::InletRecord inlet_of_kind(const std::string& kind) {
    const std::map<std::string, std::string> types = {{"curb", "Curb Inlet"},
                                                      {"slotted", "Slotted Inlet"},
                                                      {"grate", "Grate Inlet"},
                                                      {"combination", combination},
                                                      {"ditch", "Grate Inlet in a Ditch"}};
    const auto blank = kind.find(' ');
    return inlet_of_kind(types.at(kind.substr(blank + 1)),
                         kind.substr(0, blank) == "sump" ? "SUMP" : "CONTINUOUS GRADE");
}

inline CellValue project_value(const std::string& source) {
    const std::map<std::string, CellValue> values = {
        {"project units", store::session.projectUnits},
        {"project id", store::session.projectId},
        {"project name", store::session.projectName},
        {"project designer", store::session.projectDesigner},
        {"project county", store::session.projectCounty},
        {"project state", store::session.projectState},
        {"today", today},
    };
    return values.at(source);
}

inline CellValue column_value(const engine::InletRecord& inlet, const std::string& name) {
    const std::string& text = inlet.text(*engine::column_named(name));
    const auto read = platform::read_number(text);
    return read.fault == platform::NumberFault::none ? CellValue(read.number) : CellValue(text);
}

inline double term(const engine::InletRecord& inlet, const std::string& name) {
    return name == "0" ? 0.0 : std::get<double>(column_value(inlet, name));
}

/// The value of a source of the cell table: "COLUMN", "COLUMN * COLUMN", "COLUMN + COLUMN", "project id", a literal.
inline CellValue source_value(const engine::InletRecord& inlet, const std::string& source) {
    if (source.empty()) {
        return nothing;
    }
    if (source.front() == '"') {
        return source.substr(1, source.size() - 2);
    }
    std::istringstream words(source);
    std::string left;
    std::string operation;
    std::string right;
    words >> left >> operation >> right;
    if (operation == "*") {
        return term(inlet, left) * term(inlet, right);
    }
    if (operation == "+") {
        return term(inlet, left) + term(inlet, right);
    }
    return operation.empty() && left != "today" ? column_value(inlet, left) : project_value(source);
}

inline const cases::Table& cell_table() {
    static const cases::Table table =
        cases::read_table(std::string(GULLYMARK_TEST_DIR) + "/cases/inlet_report_cells.tsv");
    return table;
}

inline platform::CellPosition position(const std::string& cell) {
    const auto comma = cell.find(',');
    return {std::stoi(cell.substr(0, comma)), std::stoi(cell.substr(comma + 1))};
}

/// An inlet of a kind of the table, with a number of its own in every column that the kind leaves.
inline engine::InletRecord full_inlet_of_kind(const std::string& kind) {
    engine::InletRecord inlet = inlet_of_kind(kind);
    for (const Column column : engine::all_columns) {
        if (inlet.is_null(column)) {
            inlet.load(column, own_number(column));
        }
    }
    return inlet;
}

}  // namespace gullymark::reports
