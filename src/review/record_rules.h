#pragma once

#include "review/survey.h"

namespace gullymark::review {

/// Tells a type, a location and a number outside the rules, and texts that are computed with and are no numbers.
void judge_record(Survey& survey, Survey::Index index);

}  // namespace gullymark::review
