#pragma once

#include "engine/hydraulics/Common_Libraries.h"
#include "engine/unit_constants.h"

namespace gullymark::engine {

/// Spread of the discharge Q in the gutter that a calculation sheet describes with its quantities S, n, W,
/// Sx, Sw, Wa and limit as they stand at this point of the sheet.
template <typename Sheet>
Real approach_spread(const Sheet& s, Real Q) {
    return compute_gutter_spread({.K = unit_constants.gutterFlowConstant,
                                  .Q = Q,
                                  .S = s.S,
                                  .n = s.n,
                                  .W = s.W,
                                  .Sx = s.Sx,
                                  .Sw = s.Sw,
                                  .Wa = s.Wa,
                                  .spread_limit = s.limit});
}

}  // namespace gullymark::engine
