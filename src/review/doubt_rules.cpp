#include "review/doubt_rules.h"

#include "calculation/stored_results.h"
#include "review/neighbor.h"
#include "section/measures.h"

namespace gullymark::review {

using engine::Column;

namespace {

void judge_shares(Survey& survey, Survey::Index index) {
    const auto& record = survey.inlet(index);
    if (number_or_zero(record, Column::QCARRY) < 0) {
        survey.report(rules::bypass_negative, index, "Bypass is " + told(record, Column::QCARRY) + ".",
                      "Do not hand it on: it takes flow from the next inlet.");
    }
    const auto total = number_of(record.text(Column::TOTAL_DISCHARGE));
    if (total && number_or_zero(record, Column::QINT) > *total) {
        survey.report(rules::intercepts_more, index,
                      "The inlet intercepts " + told(record, Column::QINT) + " of " +
                          told(record, Column::TOTAL_DISCHARGE) + " that come to it.",
                      "Follow the worked calculation of the inlet.");
    }
}

void judge_clogging(Survey& survey, Survey::Index index, const calculation::SolvedCopy& solved) {
    const auto& record = survey.inlet(index);
    if (number_or_zero(record, Column::GRATEPERCLOG) == 0) {
        if (section::in_sump(record)) {
            survey.report(rules::sump_unclogged, index,
                          "Nothing of the inlet is clogged, and it is in a sump.",
                          "Solve it with a share clogged.");
        }
        return;
    }
    if (!solved.solved) {
        return;
    }
    const auto clean = solve_with(survey, index, Column::GRATEPERCLOG, "0", solved.number_format);
    if (calculation::has_results(clean.inlet) &&
        calculation::differing_results(solved.inlet, clean.inlet).empty()) {
        survey.report(rules::clogging_idle, index,
                      "With " + told(record, Column::GRATEPERCLOG) +
                          " clogged the results are the same as with nothing clogged.",
                      "Take the clogging into account by hand.");
    }
}

void judge_offset(Survey& survey, Survey::Index index) {
    const auto& record = survey.inlet(index);
    const double offset = number_or_zero(record, Column::OFFSET);
    const auto& side = record.text(Column::OFFSET_LOCATION);
    if ((side == "LEFT" && offset > 0) || (side == "RIGHT" && offset < 0)) {
        survey.report(rules::offset_side, index,
                      "Offset is " + told(record, Column::OFFSET) + " on the side " + side + ".",
                      "An offset to the left is negative: check which of the two is meant.");
    }
}

void judge_top(Survey& survey, Survey::Index index) {
    const auto& record = survey.inlet(index);
    const auto top = number_of(record.text(Column::TOP_ELEVATION));
    for (const auto& side : sides_of(record)) {
        const auto& previous = survey.links().with_number(record.text(side.preinlet));
        if (!top || record.text(side.preinlet).empty() || previous.empty()) {
            continue;
        }
        const auto& above = survey.inlet(previous.front());
        const auto height = number_of(above.text(Column::TOP_ELEVATION));
        if (height && *top >= *height) {
            survey.report(rules::top_not_falling, index,
                          "Top elevation is " + told(record, Column::TOP_ELEVATION) +
                              ", that of the previous inlet " + told(above, Column::INLET_NUMBER) + " is " +
                              told(above, Column::TOP_ELEVATION) + ".",
                          "Check the elevations, or which inlet comes first.");
        }
    }
}

double opening_spread(const calculation::SolvedCopy& copy) {
    return number_or_zero(copy.inlet, Column::OPENSPREAD);
}

/// A slot in a sump goes from weir to orifice in steps, and may stand shallower beyond one.
void judge_slot(Survey& survey, Survey::Index index, const calculation::SolvedCopy& solved) {
    const auto& record = survey.inlet(index);
    constexpr double a_little = 0.05;
    const double flow = number_or_zero(record, Column::TOTAL_DISCHARGE);
    const auto more =
        solve_with(survey, index, Column::TOTAL_DISCHARGE, flow * (1 + a_little), solved.number_format);
    const auto less =
        solve_with(survey, index, Column::TOTAL_DISCHARGE, flow * (1 - a_little), solved.number_format);
    const bool falls_after = opening_spread(more) < opening_spread(solved);
    if (!falls_after && opening_spread(solved) >= opening_spread(less)) {
        return;
    }
    const auto& low = falls_after ? solved : less;
    const auto& high = falls_after ? more : solved;
    survey.report(rules::slot_falls, index,
                  "Spread at the opening falls from " + told(low.inlet, Column::OPENSPREAD) + " to " +
                      told(high.inlet, Column::OPENSPREAD) + " when the flow grows from " +
                      told_flow(number_or_zero(low.inlet, Column::TOTAL_DISCHARGE)) + " to " +
                      told_flow(number_or_zero(high.inlet, Column::TOTAL_DISCHARGE)) + ".",
                  "Rely on the greater spread.");
}

/// The same slot with a little more of it clogged.
void judge_clogged_slot(Survey& survey, Survey::Index index, const calculation::SolvedCopy& solved) {
    constexpr double a_little = 5;  // percent
    const double clogged = number_or_zero(survey.inlet(index), Column::GRATEPERCLOG) + a_little;
    if (clogged >= 100) {
        return;
    }
    const auto more = solve_with(survey, index, Column::GRATEPERCLOG, clogged, solved.number_format);
    if (opening_spread(more) < opening_spread(solved)) {
        survey.report(rules::slot_falls_clogged, index,
                      "Spread at the opening falls from " + told(solved.inlet, Column::OPENSPREAD) + " to " +
                          told(more.inlet, Column::OPENSPREAD) + " when " +
                          told(more.inlet, Column::GRATEPERCLOG) + " are clogged.",
                      "Rely on the greater spread.");
    }
}

bool is_slot_in_sump(const engine::InletRecord& record) {
    return section::inlet_of(record) == section::Inlet::slotted && section::in_sump(record);
}

void judge_standing_water(Survey& survey, Survey::Index index) {
    const auto& record = survey.inlet(index);
    const auto spread = number_of(record.text(Column::OPENSPREAD));
    if (section::inlet_of(record) == section::Inlet::combination && section::in_sump(record) && spread &&
        *spread == 0 && number_or_zero(record, Column::DEPTHATINLET) > 0) {
        survey.report(rules::water_without_spread, index,
                      "Water stands " + told(record, Column::DEPTHATINLET) +
                          " deep at the inlet, and its spread is " + told(record, Column::OPENSPREAD) + ".",
                      "Do not rely on the spread; take that of the gutter.");
    }
}

}  // namespace

void judge_doubts(Survey& survey, Survey::Index index, const calculation::SolvedCopy& solved) {
    judge_shares(survey, index);
    judge_clogging(survey, index, solved);
    judge_offset(survey, index);
    judge_top(survey, index);
    if (solved.solved && is_slot_in_sump(survey.inlet(index))) {
        judge_slot(survey, index, solved);
        judge_clogged_slot(survey, index, solved);
    }
    judge_standing_water(survey, index);
}

}  // namespace gullymark::review
