#include "review/inlet_table.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "calculation/units_in_force.h"
#include "engine/units.h"
#include "review/texts.h"

namespace gullymark::review {
namespace {

using engine::Column;

/// A column of INLET, and whether the one that would be stands behind it.
struct Stored {
    const char* heading;
    Column column;
    bool and_fresh = false;
};

constexpr std::array stored_columns{
    Stored{"Inlet", Column::INLET_NUMBER},
    Stored{"Roadway", Column::ROADWAY},
    Stored{"Station", Column::STATION},
    Stored{"Offset", Column::OFFSET},
    Stored{"Side", Column::OFFSET_LOCATION},
    Stored{"Type", Column::INLET_TYPE},
    Stored{"Location", Column::INLET_LOCATION},
    Stored{"Standard", Column::INLET_SUBTYPE},
    Stored{"Direction", Column::FLOW_DIRECTION},
    Stored{"Curb height", Column::CURB_HEIGHT},
    Stored{"Top elevation", Column::TOP_ELEVATION},
    Stored{"Storm", Column::STORM_FREQUENCY},
    Stored{"Previous inlet left", Column::PREINLET1},
    Stored{"Runoff area left", Column::RUNOFF_AREA},
    Stored{"Runoff coefficient left", Column::RUNOFF_COEFF},
    Stored{"Intensity left", Column::INTENSITY},
    Stored{"Discharge left", Column::DISCHARGE1},
    Stored{"Carryover left", Column::CARRYOVER1, true},
    Stored{"Previous inlet right", Column::PREINLET2},
    Stored{"Runoff area right", Column::RUNOFF_AREA2},
    Stored{"Runoff coefficient right", Column::RUNOFF_COEFF2},
    Stored{"Intensity right", Column::INTENSITY2},
    Stored{"Discharge right", Column::DISCHARGE2},
    Stored{"Carryover right", Column::CARRYOVER2, true},
    Stored{"Overland flow", Column::OVERLAND_FLOW},
    Stored{"Total flow", Column::TOTAL_DISCHARGE, true},
    Stored{"Longitudinal slope", Column::LONGSLOPE},
    Stored{"Pavement cross slope", Column::PAVXSLOPE},
    Stored{"Gutter width", Column::GUTWIDTH},
    Stored{"Gutter cross slope", Column::GUTXSLOPE},
    Stored{"Length", Column::INLETLENGTH},
    Stored{"Grate width", Column::GRATEWIDTH},
    Stored{"Clogged", Column::GRATEPERCLOG},
    Stored{"Allowable spread", Column::ALLOWABLE_SPREAD},
    Stored{"Spread", Column::OPENSPREAD, true},
    Stored{"Gutter spread", Column::GUTTERSPREAD, true},
    Stored{"Depth at curb", Column::CURBDEPTH, true},
    Stored{"Depth at inlet", Column::DEPTHATINLET, true},
    Stored{"Intercepted", Column::QINT, true},
    Stored{"Efficiency", Column::EFFICIENCY},
    Stored{"Bypass", Column::QCARRY, true},
};

std::string unit_of(Column column) {
    return std::string(engine::unit_text(engine::column_unit(column)));
}

std::vector<TableHeading> make_headings() {
    std::vector<TableHeading> headings;
    for (const auto& [heading, column, and_fresh] : stored_columns) {
        const bool is_number = engine::column_unit(column) != engine::Unit::text;
        headings.push_back({heading, unit_of(column), is_number});
        if (and_fresh) {
            headings.push_back({std::string(heading) + " up to date", unit_of(column), is_number});
        }
    }
    headings.push_back({"Findings", "", false});
    return headings;
}

std::vector<std::string> make_row(const engine::InletRecord& stored, const engine::InletRecord& fresh,
                                  const std::string& rules) {
    std::vector<std::string> row;
    for (const auto& [heading, column, and_fresh] : stored_columns) {
        row.push_back(stored.text(column));
        if (and_fresh) {
            row.push_back(fresh.text(column));
        }
    }
    row.push_back(rules);
    return row;
}

/// The rules that found something of each inlet, each once, with blanks between them.
std::vector<std::string> rules_by_inlet(const Project& project, const std::vector<Finding>& findings) {
    std::vector<std::vector<std::string>> rules(project.inlets.size());
    for (const auto& finding : findings) {
        if (finding.index < rules.size() && std::ranges::count(rules[finding.index], finding.rule) == 0) {
            rules[finding.index].push_back(finding.rule);
        }
    }
    std::vector<std::string> texts;
    for (const auto& of_inlet : rules) {
        std::string text;
        for (const auto& rule : of_inlet) {
            text += (text.empty() ? "" : " ") + rule;
        }
        texts.push_back(std::move(text));
    }
    return texts;
}

bool is_computed(std::string_view text) {
    return !text.empty() && std::string_view("=+-@\t\r\n").find(text.front()) != std::string_view::npos &&
           !number_of(text);
}

std::string csv_cell(const std::string& text) {
    std::string shown = is_computed(text) ? '\'' + text : text;
    if (shown.find_first_of("\",\r\n") == std::string::npos) {
        return shown;
    }
    std::string quoted = "\"";
    for (const char letter : shown) {
        quoted += letter;
        if (letter == '"') {
            quoted += letter;
        }
    }
    return quoted + '"';
}

}  // namespace

InletTable make_inlet_table(const Project& project, const std::vector<Finding>& findings,
                            const FreshRoad& fresh) {
    const calculation::UnitsInForce units(project.units);
    InletTable table{.headings = make_headings(), .rows = {}};
    const auto rules = rules_by_inlet(project, findings);
    for (std::size_t index = 0; index < project.inlets.size(); ++index) {
        table.rows.push_back(make_row(project.inlets[index], fresh.inlet(project, index), rules[index]));
    }
    return table;
}

std::string as_csv(const InletTable& table) {
    std::string csv;
    const auto add = [&](const std::string& text, bool is_last) {
        csv += csv_cell(text) + (is_last ? "\r\n" : ",");
    };
    for (const auto& heading : table.headings) {
        add(heading.with_unit(), &heading == &table.headings.back());
    }
    for (const auto& row : table.rows) {
        for (const auto& text : row) {
            add(text, &text == &row.back());
        }
    }
    return csv;
}

}  // namespace gullymark::review
