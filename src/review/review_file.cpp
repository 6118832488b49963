#include "review/review_file.h"

#include <utility>

#include "calculation/units_in_force.h"
#include "review/findings.h"
#include "review/read_project.h"
#include "review/road_plan.h"

namespace gullymark::review {

std::optional<Reviewed> review_file(const std::string& path, const Limits& limits, const Progress& progress) {
    const auto part = [&](std::size_t number) {
        return [&progress, number](std::size_t done, std::size_t all) {
            return !progress || progress(number * all + done, 2 * all);
        };
    };
    Reviewed reviewed{.project = read_project(path)};
    auto findings = judge(reviewed.project, limits, part(0));
    if (!findings) {
        return std::nullopt;
    }
    auto fresh = make_fresh_road(reviewed.project, part(1));
    if (!fresh) {
        return std::nullopt;
    }
    reviewed.findings = std::move(*findings);
    reviewed.fresh = std::move(*fresh);
    const calculation::UnitsInForce units(reviewed.project.units);
    reviewed.balance = balance_of(reviewed.project);
    reviewed.places = plan_road(reviewed.project, reviewed.findings).places;
    return reviewed;
}

}  // namespace gullymark::review
