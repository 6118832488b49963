#pragma once

#include "calculation/solve_copy.h"
#include "review/survey.h"

namespace gullymark::review {

/// Tells each stored result that does not follow from the stored inputs; `solved` is the solve of a copy.
void judge_results(Survey& survey, Survey::Index index, const calculation::SolvedCopy& solved);

}  // namespace gullymark::review
