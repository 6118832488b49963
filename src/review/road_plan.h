#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "review/finding.h"
#include "review/fresh_road.h"
#include "review/project.h"
#include "review/road_shapes.h"

/// From a project to the shapes of its road.
namespace gullymark::review {

/// The most roadways that have a lane each; inlets of others share one more.
inline constexpr std::size_t most_lanes = 12;

/// The road as it is stored; `findings` are those of the project. With `fresh` an inlet that would be another is stale too, and
/// its sentence tells the fresh spreads and bypass.
RoadPlan plan_road(const Project& project, const std::vector<Finding>& findings,
                   const FreshRoad* fresh = nullptr);

struct Stretch {
    double from = 0;
    double to = 1;  // greater than `from`
};

/// The road in stretches for strips of paper, one behind the other and together all of it: each has at most so many inlets of
/// a side of a lane (at least 1), but for those on one station, which stay together.
std::vector<Stretch> road_stretches(const RoadPlan& plan, std::size_t most);

struct Tick {
    double at = 0;
    std::string text;  // as a station: "12+50"
};

/// The round stations between `from` and `to`, at most `most` (2 to 1,000) of them.
std::vector<Tick> station_ticks(const RoadPlan& plan, double from, double to, std::size_t most);

}  // namespace gullymark::review
