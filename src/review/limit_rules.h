#pragma once

#include "review/survey.h"

namespace gullymark::review {

/// Tells spread, depth and missing flanks beyond what is allowed; an inlet in a ditch has none of them.
void judge_limits(Survey& survey, Survey::Index index);

}  // namespace gullymark::review
