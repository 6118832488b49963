#include "review/limit_rules.h"

#include "engine/hydraulics/Common_Libraries.h"
#include "engine/units.h"
#include "section/gutter.h"
#include "section/measures.h"

namespace gullymark::review {

using engine::Column;

namespace {

void judge_spread_of(Survey& survey, Survey::Index index, Column column) {
    const auto& record = survey.inlet(index);
    const auto spread = section::judge_spread(record, record.text(column));
    if (!spread.beyond) {
        return;
    }
    survey.report(rules::spread_beyond, index,
                  name_of(column) + " is " + spread.spread->text + ", " + spread.excess +
                      " beyond the allowable " + spread.allowable->text + ".",
                  "Take a longer inlet, set one upstream, or make sure that the spread is accepted.");
}

/// The spread that the search of the gutter found: on a grade that at the opening.
void judge_ceiling(Survey& survey, Survey::Index index) {
    const auto& record = survey.inlet(index);
    const Column column = section::in_sump(record) ? Column::GUTTERSPREAD : Column::OPENSPREAD;
    const auto allowable = number_of(record.text(Column::ALLOWABLE_SPREAD));
    if (!allowable || *allowable <= 0 || number_or_zero(record, Column::GUTWIDTH) <= 0 ||
        !is_stored_as(record.text(column), engine::ceiling_in_limits * *allowable, stored_formats())) {
        return;
    }
    survey.report(rules::spread_at_ceiling, index,
                  name_of(column) + " is " + told(record, column) +
                      ", the greatest that is searched with an allowable spread of " +
                      told(record, Column::ALLOWABLE_SPREAD) + ": the true one may be greater.",
                  "Do not rely on the results; bring less flow to the inlet.");
}

void judge_depth(Survey& survey, Survey::Index index) {
    const auto& record = survey.inlet(index);
    const auto curb = number_of(record.text(Column::CURB_HEIGHT));
    const auto depth = number_of(record.text(Column::CURBDEPTH));
    if (curb && depth && *curb > 0 && *depth > *curb) {
        survey.report(rules::depth_above_curb, index,
                      "Water stands " + told(record, Column::CURBDEPTH) + " deep at a curb of " +
                          told(record, Column::CURB_HEIGHT) + ".",
                      "Bring less flow to the inlet, or check where the water goes behind the curb.");
    }
}

void judge_flanks(Survey& survey, Survey::Index index) {
    const auto& record = survey.inlet(index);
    if (!section::in_sump(record)) {
        return;
    }
    for (const auto& side : sides_of(record)) {
        if (record.text(side.preinlet).empty()) {
            survey.report(rules::sump_without_flank, index,
                          "Should an inlet flank this sump? No previous inlet" + std::string(side.behind) +
                              " is named.",
                          "Make sure where the water goes when the inlet clogs.");
        }
    }
}

}  // namespace

void judge_limits(Survey& survey, Survey::Index index) {
    const auto inlet = section::inlet_of(survey.inlet(index));
    if (inlet == section::Inlet::ditch || inlet == section::Inlet::unknown) {
        return;
    }
    for (const Column column : {Column::OPENSPREAD, Column::GUTTERSPREAD}) {
        judge_spread_of(survey, index, column);
    }
    judge_ceiling(survey, index);
    judge_depth(survey, index);
    judge_flanks(survey, index);
}

}  // namespace gullymark::review
