#pragma once

#include "engine/Common_Libraries.h"

namespace gullymark::engine {

/// The first depth of the march that `compute_sump_depth` tells, for a discharge above 0, at the cost of some
/// dozen trials wherever it lies. The answer is that of trying every depth.
///
/// A fault at a depth that the march reaches leaves as that Fault; so does a march that has no end, because
/// the depth is so great that 0.001 no longer raises it, as Fault::endless_search.
Real march_to_sump_depth(const SumpFlow& flow);

}  // namespace gullymark::engine
