#pragma once

#include "calculation/solve_copy.h"
#include "review/survey.h"

namespace gullymark::review {

/// Tells what lies between the rows that measured figures have: a length of a grate, a clogged share of a rated grate, and
/// a flow at which a rating falls. `solved` is the solve of a copy.
void judge_ratings(Survey& survey, Survey::Index index, const calculation::SolvedCopy& solved);

}  // namespace gullymark::review
