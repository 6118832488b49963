#pragma once

#include "engine/hydraulics/Common_Libraries.h"
#include "engine/unit_constants.h"
#include "engine/workings.h"

namespace gullymark::engine {

/// Spread of the discharge Q in the gutter that a calculation sheet describes with its quantities S, n, W,
/// Sx, Sw, Wa and limit as they stand at this point of the sheet.
template <typename Sheet>
auto approach_spread(const Sheet& s, const Quantity& Q) {
    return formula::called(
        "gutter_spread",
        [&] {
            return compute_gutter_spread({.K = unit_constants.gutterFlowConstant,
                                          .Q = Q,
                                          .S = s.S,
                                          .n = s.n,
                                          .W = s.W,
                                          .Sx = s.Sx,
                                          .Sw = s.Sw,
                                          .Wa = s.Wa,
                                          .spread_limit = s.limit,
                                          .discharge = Q.symbol});
        },
        Q, s.S, s.n, s.W, s.Sx, s.Sw, s.limit);
}

}  // namespace gullymark::engine
