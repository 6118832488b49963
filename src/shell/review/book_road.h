#pragma once

#include "review/road_plan.h"
#include "shell/windows/paper_pages.h"

/// The road of a project on sheets of paper: strips, one below the other.
namespace gullymark::shell {

/// Adds the legend and the strips, each with as many inlets as are readable on one; where the lanes are too many for a page,
/// one part of them below the other. `plan` must outlive the pages.
void add_road(PaperPages& pages, const review::RoadPlan& plan);

}  // namespace gullymark::shell
