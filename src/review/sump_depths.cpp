#include "review/sump_depths.h"

#include <cmath>

#include "engine/unit_constants.h"
#include "engine/units.h"
#include "platform/number_text.h"
#include "section/measures.h"

namespace gullymark::review {

using engine::Column;

namespace {

bool has_depth_at_curb(const engine::InletRecord& record) {
    using enum section::Inlet;
    const auto kind = section::inlet_of(record);
    return section::in_sump(record) && (kind == curb || kind == grate || kind == combination);
}

/// What the depth leaves out where it is a spread times the slope of the pavement, as if the gutter fell no steeper; in or
/// mm, 0 where it is not so.
double omitted_drop(const engine::InletRecord& record) {
    engine::set_depthFactor();
    const auto factor = static_cast<double>(engine::unit_constants.depthFactor);
    const auto gutter = section::gutter_in(record);
    const double depth = number_or_zero(record, Column::CURBDEPTH);
    const double omitted = gutter.W * (gutter.Sw - gutter.Sx) * factor;
    const double rounding = 0.001 * (gutter.Sx * factor + 1);
    for (const Column column : {Column::OPENSPREAD, Column::GUTTERSPREAD}) {
        const double spread = number_or_zero(record, column);
        if (spread > gutter.W && omitted > rounding &&
            std::fabs(depth - spread * gutter.Sx * factor) <= rounding) {
            return omitted;
        }
    }
    return 0;
}

}  // namespace

void judge_sump_depths(Survey& survey) {
    std::vector<Survey::Index> sumps;
    Survey::Index worst = 0;
    double most = 0;
    for (Survey::Index index = 0; index < survey.count(); ++index) {
        const double omitted = has_depth_at_curb(survey.inlet(index)) ? omitted_drop(survey.inlet(index)) : 0;
        if (omitted > 0) {
            sumps.push_back(index);
        }
        if (omitted > most) {
            most = omitted;
            worst = index;
        }
    }
    if (sumps.empty()) {
        return;
    }
    constexpr std::size_t most_named = 50;
    const auto& record = survey.inlet(worst);
    const std::string drop =
        platform::format_number(most, "0.000") + ' ' + std::string(engine::unit_text(engine::Unit::depth));
    const char* const advice =
        "Add what the gutter falls: its width times its slope above that of the pavement.";
    if (sumps.size() == 1) {
        survey.report(rules::gutter_drop_omitted, worst,
                      "Depth at the curb is " + told(record, Column::CURBDEPTH) +
                          ", the spread times the slope of the pavement: it leaves out " + drop +
                          " that the gutter falls steeper.",
                      advice);
        return;
    }
    survey.report(rules::gutter_drop_omitted, whole_project,
                  "At " + std::to_string(sumps.size()) +
                      " sumps the depth at the curb is the spread times the slope of the pavement and leaves "
                      "out what the gutter falls steeper, up to " +
                      drop + " at " + told(record, Column::INLET_NUMBER) + ": " +
                      listed(survey.project(), sumps, most_named) + ".",
                  advice);
}

}  // namespace gullymark::review
