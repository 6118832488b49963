#include "review/record_rules.h"

#include <algorithm>
#include <array>

#include "calculation/stored_results.h"
#include "calculation/typeset.h"
#include "engine/solve.h"
#include "engine/units.h"
#include "engine/words.h"
#include "review/neighbor.h"
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

/// Asked by two solves with other numbers. An inlet that gives no results with any is taken to compute with it.
bool is_solved_with(const Survey& survey, Survey::Index index, Column column,
                    const std::string& number_format) {
    const auto one = solve_with(survey, index, column, "1", number_format);
    const auto other = solve_with(survey, index, column, "2.5", number_format);
    return !calculation::has_results(one.inlet) || one.solved != other.solved ||
           !calculation::differing_results(one.inlet, other.inlet).empty();
}

/// Where a blank counts as something the solver has filled it.
bool is_no_number_that_counts(const Survey& survey, Survey::Index index, Column column,
                              const calculation::SolvedCopy& solved) {
    const auto& record = survey.inlet(index);
    const auto& text = record.text(column);
    if (engine::column_unit(column) == engine::Unit::text || number_of(text)) {
        return false;
    }
    if (section::is_input(column, record)) {
        return (!text.empty() || solved.inlet.text(column).empty()) &&
               is_solved_with(survey, index, column, solved.number_format);
    }
    return !text.empty() && (counts_on_a_side(record, column) ||
                             std::ranges::find(other_numbers, column) != other_numbers.end());
}

void judge_numbers(Survey& survey, Survey::Index index, const calculation::SolvedCopy& solved) {
    const auto& record = survey.inlet(index);
    for (const Column column : engine::all_columns) {
        if (!is_no_number_that_counts(survey, index, column, solved)) {
            continue;
        }
        const auto& text = record.text(column);
        survey.report(rules::number_unreadable, index,
                      name_of(column) + (text.empty() ? std::string(" is blank, and Solve computes with it.")
                                                      : " is stored as " + calculation::shortened(text) +
                                                            ", which is no number."),
                      "Open the inlet and type the number anew.");
    }
}

/// The flow that only a sump takes from its right side.
constexpr std::array right_side{Column::PREINLET2, Column::DISCHARGE2, Column::CARRYOVER2};

/// Columns of the inlet's data whose fields are emptied for a kind that they mean nothing to, once its page is seen.
constexpr std::array emptied_columns{
    Column::LONGSLOPE,  Column::PAVXSLOPE,   Column::INLETXSLOPE,  Column::INLETLENGTH, Column::OPENLEN_GRATE,
    Column::GRATETYPE,  Column::THROATYPE,   Column::SLOTWIDTH,    Column::GRATEAREA,   Column::GRATEPERI,
    Column::GRATEWIDTH, Column::THROATANGLE, Column::HEIGHTOFCURB, Column::RSCOPERATIO, Column::LSCOPERATIO,
    Column::MANNINGS,   Column::GUTWIDTH,    Column::GUTXSLOPE,    Column::LOCDEPWIDTH};

bool holds_something(const engine::InletRecord& record, Column column) {
    const auto& text = record.text(column);
    return !text.empty() && number_of(text) != 0.0;
}

void add_text(std::string& list, const engine::InletRecord& record, Column column) {
    list += (list.empty() ? "" : ", ") + name_of(column) + ' ' + told(record, column);
}

void judge_right_side(Survey& survey, Survey::Index index) {
    const auto& record = survey.inlet(index);
    std::string list;
    for (const Column column : right_side) {
        if (!section::in_sump(record) && holds_something(record, column)) {
            add_text(list, record, column);
        }
    }
    if (!list.empty()) {
        survey.report(rules::flow_without_effect, index,
                      "Stored, and without effect on a grade: " + list + ".",
                      "Check the location; where it is right, make sure that another inlet takes this flow.");
    }
}

/// The texts of the inlet's data that mean nothing to its kind.
std::string texts_without_effect(const engine::InletRecord& record) {
    std::string list;
    for (const Column column : emptied_columns) {
        if (holds_something(record, column) && !section::is_input(column, record)) {
            add_text(list, record, column);
        }
    }
    return section::inlet_of(record) == section::Inlet::unknown ? std::string() : list;
}

}  // namespace

void judge_record(Survey& survey, Survey::Index index, const calculation::SolvedCopy& solved) {
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
    judge_numbers(survey, index, solved);
    judge_right_side(survey, index);
    const auto& number = record.text(Column::INLET_NUMBER);
    if (const auto& same = survey.links().with_number(number); same.size() > 1 && same.front() == index) {
        survey.report(rules::number_not_unique, index,
                      std::to_string(same.size()) + " inlets have the number " +
                          told(record, Column::INLET_NUMBER) + ".",
                      "Renumber all but one of them.");
    }
}

void judge_idle_texts(Survey& survey) {
    std::vector<Survey::Index> idle;
    std::string first;
    for (Survey::Index index = 0; index < survey.count(); ++index) {
        const auto list = texts_without_effect(survey.inlet(index));
        if (!list.empty()) {
            first = idle.empty() ? list : first;
            idle.push_back(index);
        }
    }
    if (idle.empty()) {
        return;
    }
    constexpr std::size_t most_named = 50;
    const bool is_one = idle.size() == 1;
    survey.report(
        rules::text_without_effect, is_one ? idle.front() : whole_project,
        is_one ? "Stored, and without effect for this type and location: " + first + "."
               : "At " + std::to_string(idle.size()) +
                     " inlets texts are stored that are without effect for their type and location: " +
                     listed(survey.project(), idle, most_named) + ". The first of them has " + first + ".",
        "Check type and location; where they are right, open the inlet and go through its pages, "
        "which empties what does not apply.");
}

}  // namespace gullymark::review
