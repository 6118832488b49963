#pragma once

#include <vector>

#include "review/finding.h"
#include "review/fresh_road.h"
#include "review/links.h"
#include "review/project.h"
#include "review/road_shapes.h"

/// The inlets of a road as shapes, each by itself. The units of the project are in force meanwhile.
namespace gullymark::review {

/// All but lane and rank, and `at` for those without a place; `fresh` may be null.
std::vector<PlannedInlet> plan_inlets(const Project& project, const std::vector<Finding>& findings,
                                      const FreshRoad* fresh);

/// Turns each spread to where its water comes from: a previous inlet on the same lane, else on a grade away from the inlet
/// that takes the bypass. Where neither tells, and where both approaches of a sump would come from one direction, the left
/// one comes from lower and the right one from higher stations.
void point_spreads(std::vector<PlannedInlet>& inlets, const Project& project, const Links& links);

/// How long a station is, by the first inlet whose text has a plus; 0 where none has.
int station_length_of(const std::vector<PlannedInlet>& inlets);

}  // namespace gullymark::review
