#include "calculation/worked_calculation.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "calculation/rows.h"
#include "calculation/solve_copy.h"
#include "calculation/stored_results.h"
#include "calculation/typeset.h"
#include "calculation/units_in_force.h"
#include "engine/solve.h"
#include "engine/unit_constants.h"
#include "engine/units.h"
#include "platform/unit_system.h"

namespace gullymark::calculation {
namespace {

using engine::Column;

struct InletField {
    const char* label;
    Column column;
};

constexpr auto inlet_fields = std::to_array<InletField>({
    {"Inlet number", Column::INLET_NUMBER},
    {"Roadway", Column::ROADWAY},
    {"Station", Column::STATION},
    {"Inlet type", Column::INLET_TYPE},
    {"Location", Column::INLET_LOCATION},
    {"Inlet standard", Column::INLET_SUBTYPE},
    {"Flow direction", Column::FLOW_DIRECTION},
    {"Offset", Column::OFFSET},
    {"Offset location", Column::OFFSET_LOCATION},
    {"Curb height", Column::CURB_HEIGHT},
    {"Allowable spread", Column::ALLOWABLE_SPREAD},
    {"Top elevation", Column::TOP_ELEVATION},
});

struct Publication {
    std::string_view name;
    const char* told;
};

constexpr auto publications = std::to_array<Publication>({
    {"3e",
     "3e: Urban Drainage Design Manual, HEC-22, third edition, FHWA-NHI-10-009, September 2009, revised "
     "August 2013"},
    {"4e", "4e: Urban Drainage Design, HEC-22, fourth edition, FHWA-HIF-24-006, February 2024"},
    {"H12", "H12: Drainage of Highway Pavements, HEC-12, FHWA-TS-84-202, March 1984"},
    {"own", "own: a rule of this program, no publication is known"},
});

std::string date_text(std::chrono::year_month_day day) {
    std::array<char, 32> text{};
    const int count = std::snprintf(text.data(), text.size(), "%02u/%02u/%04d", unsigned{day.month()},
                                    unsigned{day.day()}, int{day.year()});
    return {text.data(), static_cast<std::size_t>(count)};
}

std::vector<TitleField> title_block(const Request& request, const std::string& date) {
    const auto& project = request.project;
    std::vector<TitleField> block{{"Project", project.id},        {"Name", project.name},
                                  {"County", project.county},     {"State", project.state},
                                  {"Designer", project.designer}, {"Date", date},
                                  {"Units", request.units}};
    for (const auto& [label, column] : inlet_fields) {
        std::string text = request.inlet.text(column);
        const auto unit = engine::unit_text(engine::column_unit(column));
        if (!text.empty() && !unit.empty()) {
            text += ' ' + std::string(unit);
        }
        block.push_back({label, text});
    }
    for (auto& field : block) {
        field.text = shortened(field.text);
    }
    return block;
}

std::string quoted(const std::string& text) {
    return text.empty() ? "blank" : shortened(text);
}

std::vector<std::string> warnings_of(const Request& request, const SolvedCopy& solved) {
    if (!solved.solved) {
        std::vector<std::string> warnings{"Solve gives no results for these inputs."};
        if (has_results(request.inlet)) {
            warnings.front() += " Those that are stored belong to other inputs.";
        }
        return warnings;
    }
    const auto differing = differing_results(request.inlet, solved.inlet);
    if (differing.empty()) {
        return {};
    }
    if (!has_results(request.inlet)) {
        return {"This inlet has not been solved: no results are stored."};
    }
    std::string text = "The stored results do not follow from the stored inputs:";
    for (const Column column : differing) {
        text += (column == differing.front() ? " " : "; ") + std::string(engine::column_name(column)) +
                " is stored as " + quoted(request.inlet.text(column)) + " and comes out as " +
                quoted(solved.inlet.text(column));
    }
    return {text + '.'};
}

bool cites(const Document& document, std::string_view name) {
    const auto in_row = [name](const Row& row) {
        const auto at = row.source.find(name);
        return at != std::string::npos && (at == 0 || row.source[at - 1] == ' ');
    };
    return std::any_of(document.sections.begin(), document.sections.end(), [&](const Section& section) {
        return std::any_of(section.rows.begin(), section.rows.end(), in_row);
    });
}

/// The publications that some row of the document cites.
std::vector<std::string> legend_of(const Document& document) {
    std::vector<std::string> legend;
    for (const auto& publication : publications) {
        if (cites(document, publication.name)) {
            legend.emplace_back(publication.told);
        }
    }
    return legend;
}

void add_section(Document& document, const char* heading, std::vector<Row> rows) {
    if (!rows.empty()) {
        document.sections.push_back({heading, std::move(rows)});
    }
}

}  // namespace

Document work_out(const Request& request) {
    const SolvedCopy solved =
        solve_like_stored(request.inlet, request.units, engine::unit_constants.numberFormat);
    const UnitsInForce units(request.units);
    const std::string sheet(
        engine::sheet_of(request.inlet.text(Column::INLET_LOCATION), request.inlet.text(Column::INLET_TYPE)));
    WrittenSteps steps = write_steps(solved, sheet, request.caption);

    Document document{.title = "WORKED CALCULATION",
                      .inlet = shortened(request.inlet.text(Column::INLET_NUMBER)),
                      .date = date_text(request.today)};
    document.title_block = title_block(request, document.date);
    document.warnings = warnings_of(request, solved);
    if (sheet.empty()) {
        document.warnings.emplace_back("No rule solves an inlet of this type and location.");
    }
    add_section(document, "Constants", std::move(steps.constants));
    for (auto& section : steps.sections) {
        document.sections.push_back(std::move(section));
    }
    add_section(document, "Results", write_results(solved, request.caption));
    document.departures = std::move(steps.departures);
    document.legend = legend_of(document);
    return document;
}

}  // namespace gullymark::calculation
