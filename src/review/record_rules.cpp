#include "review/record_rules.h"

#include <algorithm>
#include <array>

#include "calculation/typeset.h"
#include "engine/solve.h"
#include "engine/units.h"
#include "engine/words.h"
#include "section/inputs.h"
#include "section/measures.h"

namespace gullymark::review {

using engine::Column;

namespace {

/// Numbers beside those of the solve that a reader of the project relies on.
constexpr std::array other_numbers{Column::OVERLAND_FLOW, Column::OFFSET, Column::TOP_ELEVATION,
                                   Column::CURB_HEIGHT};

bool counts_on_a_side(const engine::InletRecord& record, Column column) {
    const auto sides = sides_of(record);
    return std::any_of(sides.begin(), sides.end(), [&](const Side& side) {
        const bool typed = record.text(side.override_text) == "YES";
        return column == side.discharge || column == side.carryover ||
               (!typed && (column == side.area || column == side.coefficient || column == side.intensity));
    });
}

bool is_a_number_that_counts(const engine::InletRecord& record, Column column) {
    return engine::column_unit(column) != engine::Unit::text &&
           (section::is_input(column, record) || counts_on_a_side(record, column) ||
            std::ranges::find(other_numbers, column) != other_numbers.end());
}

}  // namespace

void judge_record(Survey& survey, Survey::Index index) {
    const auto& record = survey.inlet(index);
    if (section::inlet_of(record) == section::Inlet::unknown) {
        survey.report(
            rules::type_unknown, index,
            "Inlet type is stored as " + told(record, Column::INLET_TYPE) + ", which is none of the list.",
            "Open the inlet and pick its type from the list.");
    }
    const auto& location = record.text(Column::INLET_LOCATION);
    if (location != engine::words::continuous_grade && location != engine::words::sump) {
        survey.report(rules::location_unknown, index,
                      "Inlet location is stored as " + told(record, Column::INLET_LOCATION) +
                          ", which is none of the list.",
                      "Open the inlet and pick its location from the list.");
    }
    for (const Column column : engine::all_columns) {
        const auto& text = record.text(column);
        if (!text.empty() && !number_of(text) && is_a_number_that_counts(record, column)) {
            survey.report(rules::number_unreadable, index,
                          std::string(engine::column_meaning(column)) + " is stored as " +
                              calculation::shortened(text) + ", which is no number.",
                          "Open the inlet and type the number anew.");
        }
    }
    const auto& number = record.text(Column::INLET_NUMBER);
    if (const auto& same = survey.links().with_number(number); same.size() > 1 && same.front() == index) {
        survey.report(rules::number_not_unique, index,
                      std::to_string(same.size()) + " inlets have the number " +
                          told(record, Column::INLET_NUMBER) + ".",
                      "Renumber all but one of them.");
    }
}

}  // namespace gullymark::review
