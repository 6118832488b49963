#pragma once

#include "review/survey.h"

namespace gullymark::review {

/// Tells a discharge that is not its product, a total that is not its sum, and flow that vanishes at an inlet.
void judge_flows(Survey& survey, Survey::Index index);

/// Tells of the project what runoff is neither intercepted nor leaves, beyond what rounding explains.
void judge_balance(Survey& survey);

}  // namespace gullymark::review
