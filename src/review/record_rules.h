#pragma once

#include "calculation/solve_copy.h"
#include "review/survey.h"

namespace gullymark::review {

/// Tells a type, a location and a number outside the rules, texts that are computed with and are no numbers, and texts that
/// mean nothing to the kind. `solved` is the solve of a copy.
void judge_record(Survey& survey, Survey::Index index, const calculation::SolvedCopy& solved);

}  // namespace gullymark::review
