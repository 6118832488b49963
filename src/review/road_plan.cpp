#include "review/road_plan.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <tuple>
#include <utility>

#include "calculation/units_in_force.h"
#include "engine/inlet_flow.h"
#include "platform/number_text.h"
#include "review/links.h"
#include "review/road_inlets.h"
#include "review/rules.h"
#include "review/sides.h"
#include "review/texts.h"

namespace gullymark::review {

using engine::Column;

namespace {

/// The lanes of roadways in the order in which they come.
class Lanes {
  public:
    std::size_t lane_of(const std::string& roadway) {
        const auto known = lanes_.find(roadway);
        if (known != lanes_.end()) {
            return known->second;
        }
        const std::size_t lane = std::min(lanes_.size(), most_lanes);
        if (lane == names_.size()) {
            names_.push_back({.name = lane < most_lanes ? roadway : "Other roadways"});
        }
        lanes_.emplace(roadway, lane);
        return lane;
    }

    std::vector<Lane> take() { return std::move(names_); }

  private:
    std::map<std::string, std::size_t> lanes_;
    std::vector<Lane> names_;
};

void give_lanes(RoadPlan& plan, const Project& project) {
    Lanes lanes;
    for (std::size_t i = 0; i < plan.inlets.size(); ++i) {
        if (plan.inlets[i].has_place) {
            plan.inlets[i].lane =
                lanes.lane_of(std::string(platform::trim_blanks(project.inlets[i].text(Column::ROADWAY))));
        }
    }
    plan.lanes = lanes.take();
    for (auto& inlet : plan.inlets) {
        if (!inlet.has_place) {
            if (plan.lanes.empty() || plan.lanes.back().has_stations) {
                plan.lanes.push_back({.name = "No station that can be read", .has_stations = false});
            }
            inlet.lane = plan.lanes.size() - 1;
        }
    }
}

void find_stretch(RoadPlan& plan) {
    constexpr double shortest = 100;
    bool found = false;
    std::size_t without = 0;
    for (const auto& inlet : plan.inlets) {
        without += inlet.has_place ? 0 : 1;
        if (inlet.has_place) {
            plan.from = found ? std::min(plan.from, inlet.at) : inlet.at;
            plan.to = found ? std::max(plan.to, inlet.at) : inlet.at;
            found = true;
        }
    }
    if (!found) {
        plan.from = 0;
        plan.to = 100.0 * static_cast<double>(std::max<std::size_t>(without, 1));
    } else if (plan.to - plan.from < shortest) {
        const double middle = plan.from + (plan.to - plan.from) / 2;
        plan.from = middle - shortest / 2;
        plan.to = middle + shortest / 2;
    }
    double next = 0.5;
    for (auto& inlet : plan.inlets) {
        if (!inlet.has_place) {
            inlet.at = plan.from + (plan.to - plan.from) * next / static_cast<double>(without);
            next += 1;
        }
    }
}

void put_in_order(RoadPlan& plan) {
    plan.along.resize(plan.inlets.size());
    plan.places.resize(plan.inlets.size());
    for (std::size_t i = 0; i < plan.along.size(); ++i) {
        plan.along[i] = i;
    }
    const auto spot = [&plan](std::size_t i) {
        const auto& inlet = plan.inlets[i];
        return std::tuple(inlet.lane, inlet.at, inlet.across);
    };
    std::ranges::stable_sort(plan.along, {}, spot);
    for (std::size_t i = 0; i < plan.along.size(); ++i) {
        plan.places[plan.along[i]] = i;
        if (i > 0 && spot(plan.along[i]) == spot(plan.along[i - 1])) {
            plan.inlets[plan.along[i]].rank = plan.inlets[plan.along[i - 1]].rank + 1;
        }
    }
}

/// Which inlets feed each other.
std::vector<bool> find_loops(const Links& links, std::size_t count) {
    std::vector<bool> in_loop(count);
    for (const auto& link : links.in_order()) {
        for (const std::size_t index : link.inlets) {
            in_loop[index] = link.in_loop;
        }
    }
    return in_loop;
}

Flow flow_between(const Project& project, const Links& links, std::size_t from, const std::string& taken,
                  bool in_loop) {
    const std::string& bypass = project.inlets[from].text(Column::QCARRY);
    if (in_loop) {
        return Flow::loop;
    }
    if (!is_same_number(engine::carryover_from(taken), engine::carryover_from(bypass))) {
        return Flow::stale;
    }
    if (links.takers_of(project.inlets[from].text(Column::INLET_NUMBER)).size() > 1) {
        return Flow::twice;
    }
    return number_of(engine::carryover_from(bypass)).value_or(0.0) == 0.0 ? Flow::dry : Flow::taken;
}

void draw_arrows_to(RoadPlan& plan, const Project& project, const Links& links,
                    const std::vector<bool>& in_loop, std::size_t index) {
    const auto& record = project.inlets[index];
    for (const auto& side : sides_of(record)) {
        const auto& previous = record.text(side.preinlet);
        if (previous.empty()) {
            continue;
        }
        const auto source = links.source(previous);
        if (!source) {
            plan.arrows.push_back({.to = index, .flow = Flow::missing, .text = told(record, side.carryover)});
            continue;
        }
        const bool loops = in_loop[index] && in_loop[*source];
        const Flow flow = flow_between(project, links, *source, record.text(side.carryover), loops);
        const auto& bypass = project.inlets[*source].text(Column::QCARRY);
        std::string text = bypass.empty() ? told_flow(0) : told(project.inlets[*source], Column::QCARRY);
        if (flow == Flow::stale) {
            text += ", stored " + told(record, side.carryover);
        }
        plan.arrows.push_back({.from = *source, .to = index, .flow = flow, .text = std::move(text)});
    }
}

/// The limit of what is lost is that of the findings.
void draw_lost_water(RoadPlan& plan, const Project& project, const std::vector<Finding>& findings) {
    for (const auto& finding : findings) {
        if (finding.index >= plan.inlets.size()) {
            continue;
        }
        if (finding.rule == rules::bypass_untaken.name) {
            plan.arrows.push_back({.from = finding.index,
                                   .flow = Flow::nowhere,
                                   .text = told(project.inlets[finding.index], Column::QCARRY)});
        }
    }
}

}  // namespace

RoadPlan plan_road(const Project& project, const std::vector<Finding>& findings, const FreshRoad* fresh) {
    const calculation::UnitsInForce units(project.units);
    const Links links(project);
    RoadPlan plan;
    plan.inlets = plan_inlets(project, findings, fresh);
    give_lanes(plan, project);
    find_stretch(plan);
    put_in_order(plan);
    point_spreads(plan.inlets, project, links);
    const auto in_loop = find_loops(links, plan.inlets.size());
    for (std::size_t index = 0; index < plan.inlets.size(); ++index) {
        draw_arrows_to(plan, project, links, in_loop, index);
    }
    draw_lost_water(plan, project, findings);
    plan.station_length = station_length_of(plan.inlets);
    return plan;
}

std::vector<Stretch> road_stretches(const RoadPlan& plan, std::size_t most) {
    most = std::max<std::size_t>(most, 1);
    std::vector<std::size_t> order = plan.along;
    std::ranges::stable_sort(order, {}, [&plan](std::size_t i) { return plan.inlets[i].at; });
    std::vector<Stretch> stretches;
    std::map<std::pair<std::size_t, Across>, std::size_t> counts;
    double from = plan.from;
    double last = plan.from;
    for (const std::size_t index : order) {
        const auto& inlet = plan.inlets[index];
        auto* count = &counts[{inlet.lane, inlet.across}];
        if (*count == most && inlet.at > last) {
            const double border = last + (inlet.at - last) / 2;
            stretches.push_back({.from = from, .to = border});
            from = border;
            counts.clear();
            count = &counts[{inlet.lane, inlet.across}];
        }
        *count = std::min(*count + 1, most);
        last = inlet.at;
    }
    stretches.push_back({.from = from, .to = plan.to});
    return stretches;
}

namespace {

/// The smallest of 1, 2, 5, 10, 20, ... that is at least so much; at least 0.01.
double round_step(double least) {
    double step = 0.01;
    for (int i = 0; step * (1 + 1e-9) < least && i < 60; ++i) {
        step *= i % 3 == 1 ? 2.5 : 2;
    }
    return step;
}

std::string station_text(double at, int station_length, double step) {
    const char* const decimals = step >= 1 ? "0" : step >= 0.1 ? "0.0" : "0.00";
    const double whole = std::abs(at);
    if (station_length == 0) {
        return platform::format_number(at, decimals);
    }
    const double rounded = number_of(platform::format_number(whole, decimals)).value_or(0.0);
    const double stations = std::floor(rounded / station_length);
    std::string rest = platform::format_number(rounded - stations * station_length, decimals);
    const std::size_t digits = station_length == 1000 ? 3 : 2;
    const std::size_t before_point = std::min(rest.find('.'), rest.size());
    rest.insert(0, before_point < digits ? digits - before_point : 0, '0');
    return (at < 0 && rounded > 0 ? "-" : "") + platform::format_number(stations, "0") + '+' + rest;
}

}  // namespace

std::vector<Tick> station_ticks(const RoadPlan& plan, double from, double to, std::size_t most) {
    most = std::clamp<std::size_t>(most, 2, 1000);
    if (!std::isfinite(from) || !std::isfinite(to) || !(to > from)) {
        return {};
    }
    const double step = round_step((to - from) / static_cast<double>(most - 1));
    std::vector<Tick> ticks;
    const double first = std::ceil(from / step);
    for (std::size_t i = 0; i < most; ++i) {
        const double at = (first + static_cast<double>(i)) * step;
        if (at > to) {
            break;
        }
        ticks.push_back({.at = at, .text = station_text(at, plan.station_length, step)});
    }
    return ticks;
}

}  // namespace gullymark::review
