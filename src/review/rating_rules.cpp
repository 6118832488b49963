#include "review/rating_rules.h"

#include <algorithm>
#include <cmath>

#include "engine/hydraulics/grate_types.h"
#include "engine/solvers/TRAP_SU_RESULTS.h"
#include "engine/units.h"
#include "review/neighbor.h"
#include "section/measures.h"

namespace gullymark::review {

using engine::Column;

namespace {

bool takes_frontal_flow(const engine::InletRecord& record) {
    using enum section::Inlet;
    const auto kind = section::inlet_of(record);
    return !section::in_sump(record) && (kind == grate || kind == combination || kind == ditch) &&
           engine::grate_type(record.text(Column::GRATETYPE)) != nullptr;
}

/// The fits of a grate leave out the length between the short ones and the long ones: there it takes no frontal flow.
void judge_grate_length(Survey& survey, Survey::Index index, const calculation::SolvedCopy& solved) {
    constexpr double a_little = 0.01;
    const auto& record = survey.inlet(index);
    const auto length = number_of(record.text(Column::INLETLENGTH));
    const double gap = engine::short_grate_length();
    if (!takes_frontal_flow(record) || !length || std::fabs(*length - gap) > a_little * gap) {
        return;
    }
    const auto shorter =
        solve_with(survey, index, Column::INLETLENGTH, *length * (1 - a_little), solved.number_format);
    const auto longer =
        solve_with(survey, index, Column::INLETLENGTH, *length * (1 + a_little), solved.number_format);
    const double least =
        std::min(number_or_zero(shorter.inlet, Column::QINT), number_or_zero(longer.inlet, Column::QINT));
    if (number_or_zero(solved.inlet, Column::QINT) < least) {
        survey.report(rules::length_between_rows, index,
                      "At a length of " + told(record, Column::INLETLENGTH) + " the grate intercepts " +
                          told(solved.inlet, Column::QINT) + ", at " +
                          told(shorter.inlet, Column::INLETLENGTH) + " it would be " +
                          told(shorter.inlet, Column::QINT) + " and at " +
                          told(longer.inlet, Column::INLETLENGTH) + " " + told(longer.inlet, Column::QINT) +
                          ": the length lies between the rows of its rating.",
                      "Solve it with a length a little shorter.");
    }
}

/// A rated grate has curves for some clogged shares alone, and a depth of 0 for all others.
void judge_rated_clogging(Survey& survey, Survey::Index index, const calculation::SolvedCopy& solved) {
    const auto& record = survey.inlet(index);
    const auto clogged = number_of(record.text(Column::GRATEPERCLOG));
    const auto& rated = engine::TRAP_SU_RESULTS::rated_clogging;
    if (!clogged || std::ranges::find(rated, *clogged) != rated.end()) {
        return;
    }
    std::string rows;
    for (const double share : rated) {
        const auto row = solve_with(survey, index, Column::GRATEPERCLOG, share, solved.number_format);
        rows += (rows.empty() ? "" : ", ") + told(row.inlet, Column::DEPTHATINLET) + " with " +
                told(row.inlet, Column::GRATEPERCLOG);
    }
    survey.report(rules::clogging_between_rows, index,
                  "With " + told(record, Column::GRATEPERCLOG) + " clogged the depth is " +
                      told(solved.inlet, Column::DEPTHATINLET) +
                      ": the rating has no row for it. By its rows the depth is " + rows + ".",
                  "Solve it with a clogged share that the rating has.");
}

/// The pieces of a rating do not all meet.
void judge_rated_flow(Survey& survey, Survey::Index index, const calculation::SolvedCopy& solved) {
    constexpr double a_little = 0.005;
    const auto& record = survey.inlet(index);
    const double flow = number_or_zero(record, Column::TOTAL_DISCHARGE);
    const auto more =
        solve_with(survey, index, Column::TOTAL_DISCHARGE, flow * (1 + a_little), solved.number_format);
    if (number_or_zero(more.inlet, Column::DEPTHATINLET) <
        number_or_zero(solved.inlet, Column::DEPTHATINLET)) {
        survey.report(rules::rating_falls, index,
                      "Depth at the inlet falls from " + told(solved.inlet, Column::DEPTHATINLET) + " to " +
                          told(more.inlet, Column::DEPTHATINLET) + " when the flow grows from " +
                          told(record, Column::TOTAL_DISCHARGE) + " to " +
                          told_flow(number_or_zero(more.inlet, Column::TOTAL_DISCHARGE)) + ".",
                      "Rely on the greater depth.");
    }
}

bool is_rated(const engine::InletRecord& record) {
    return section::inlet_of(record) == section::Inlet::ditch && section::in_sump(record) &&
           engine::TRAP_SU_RESULTS::has_rating(record.text(Column::INLET_SUBTYPE));
}

void judge_negative_depth(Survey& survey, Survey::Index index) {
    const auto& record = survey.inlet(index);
    for (const Column column : {Column::CURBDEPTH, Column::DEPTHATINLET}) {
        if (number_or_zero(record, column) < 0) {
            survey.report(rules::depth_negative, index, name_of(column) + " is " + told(record, column) + ".",
                          "Take it as 0: the flow is smaller than what was measured.");
        }
    }
}

}  // namespace

void judge_ratings(Survey& survey, Survey::Index index, const calculation::SolvedCopy& solved) {
    judge_negative_depth(survey, index);
    if (!solved.solved) {
        return;
    }
    judge_grate_length(survey, index, solved);
    if (is_rated(survey.inlet(index))) {
        judge_rated_clogging(survey, index, solved);
        judge_rated_flow(survey, index, solved);
    }
}

}  // namespace gullymark::review
