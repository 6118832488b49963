#pragma once

#include <vector>

#include "review/road_plan.h"
#include "shell/windows/paper_pages.h"

/// The road of a project on sheets of paper: strips, one below the other.
namespace gullymark::shell {

/// The stations from which to which a strip goes; to > from.
struct RoadStrip {
    double from = 0;
    double to = 1;
};

/// Strips with about as many inlets as are readable on one; those of one station stand together. None where no inlet is.
std::vector<RoadStrip> road_strips(const review::RoadPlan& plan);

/// Adds the legend and the strips; where the lanes are too many for a page, one part of them below the other. `plan` must
/// outlive the pages.
void add_road(PaperPages& pages, const review::RoadPlan& plan);

}  // namespace gullymark::shell
