#pragma once

#include "review/survey.h"

namespace gullymark::review {

/// Tells once for the project at how many sumps the depth at the curb leaves out what the gutter falls steeper than the
/// pavement: nearly every sump is solved so.
void judge_sump_depths(Survey& survey);

}  // namespace gullymark::review
