#pragma once

#include "engine/real.h"

namespace gullymark::engine {

/// Orifice coefficient of a grate and of a curb opening.
inline constexpr double orifice_coefficient = 0.67;

/// The throat of a curb opening as the march knows it. `none` leaves no head on the throat.
enum class Throat : unsigned char { none, horizontal, inclined, vertical };

/// Depth over a grate and a curb opening that work together in a sump.
struct SumpFlow {
    Real Q;  // discharge
    Real A;  // effective area of the grate
    Real g;  // gravity
    Real B;  // height of the curb opening, as a factor of the throat's area
    Real h;  // height of the curb opening, as it bears on the head
    Real C;  // length of the curb opening
    Throat throat = Throat::none;
    Real angle;  // of an inclined throat
};

/// The first depth of the march that `compute_sump_depth` tells, for a discharge above 0, at the cost of some
/// dozen trials wherever it lies. The answer is that of trying every depth.
///
/// A fault at a depth that the march reaches leaves as that Fault; so does a march that has no end, because
/// the depth is so great that 0.001 no longer raises it, as Fault::endless_search.
Real march_to_sump_depth(const SumpFlow& flow);

}  // namespace gullymark::engine
