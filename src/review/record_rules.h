#pragma once

#include "calculation/solve_copy.h"
#include "review/survey.h"

namespace gullymark::review {

/// Tells a type, a location and a number outside the rules, texts that are computed with and are no numbers, and flow that
/// comes from a side that does not count. `solved` is the solve of a copy.
void judge_record(Survey& survey, Survey::Index index, const calculation::SolvedCopy& solved);

/// Tells once for the project which inlets hold texts that mean nothing to their kind: every inlet does whose data has been
/// left as it is for a new one.
void judge_idle_texts(Survey& survey);

}  // namespace gullymark::review
