#pragma once

#include "calculation/solve_copy.h"
#include "review/survey.h"

namespace gullymark::review {

/// Tells what the rules of the solvers give and no engineer would expect, and what looks like a slip. Whether it applies is
/// computed: by solves with a little more and less. `solved` is the solve of a copy.
void judge_doubts(Survey& survey, Survey::Index index, const calculation::SolvedCopy& solved);

}  // namespace gullymark::review
