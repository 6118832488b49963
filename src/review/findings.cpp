#include "review/findings.h"

#include "calculation/stored_results.h"
#include "calculation/units_in_force.h"
#include "engine/unit_constants.h"
#include "review/chain_rules.h"
#include "review/doubt_rules.h"
#include "review/flow_rules.h"
#include "review/limit_rules.h"
#include "review/rating_rules.h"
#include "review/record_rules.h"
#include "review/result_rules.h"
#include "review/station_rules.h"
#include "review/sump_depths.h"

namespace gullymark::review {

std::vector<Finding> judge(const Project& project, const Limits& limits) {
    return *judge(project, limits, [](std::size_t, std::size_t) { return true; });
}

std::optional<std::vector<Finding>> judge(const Project& project, const Limits& limits,
                                          const Progress& progress) {
    const calculation::UnitsInForce units(project.units);
    engine::set_unit_defaults();
    const std::string number_format = engine::unit_constants.numberFormat;
    Survey survey(project, limits);
    for (Survey::Index index = 0; index < survey.count(); ++index) {
        if (!progress(index, survey.count())) {
            return std::nullopt;
        }
        const auto solved =
            calculation::solve_like_stored_untraced(survey.inlet(index), project.units, number_format);
        judge_results(survey, index, solved);
        judge_record(survey, index, solved);
        judge_flows(survey, index);
        judge_links(survey, index);
        judge_limits(survey, index);
        judge_stations(survey, index);
        judge_doubts(survey, index, solved);
        judge_ratings(survey, index, solved);
    }
    judge_sump_depths(survey);
    judge_idle_texts(survey);
    judge_loops(survey);
    judge_balance(survey);
    return survey.take_findings();
}

}  // namespace gullymark::review
