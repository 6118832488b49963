#pragma once

#include "review/survey.h"

namespace gullymark::review {

/// Tells a carryover that is not the bypass of the previous inlet, a previous inlet that is none or serves twice, and bypass
/// that no inlet takes.
void judge_links(Survey& survey, Survey::Index index);

/// Tells inlets that feed each other in a loop.
void judge_loops(Survey& survey);

}  // namespace gullymark::review
