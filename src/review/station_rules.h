#pragma once

#include "review/survey.h"

namespace gullymark::review {

/// Tells previous inlets that do not stand where the flow comes from: against the flow direction of the inlet, both on one
/// side of a sump, or so that the bypass turns back along the road. Only stations of one roadway that can be read count.
void judge_stations(Survey& survey, Survey::Index index);

}  // namespace gullymark::review
