#pragma once

#include <string_view>

#include "engine/real.h"

/// How the flow that an inlet must take is put together: cfs or cms, on the numbers of texts that are rounded already.
namespace gullymark::engine {

/// The decimals of the discharge of a side, in every unit system.
inline constexpr std::string_view discharge_format = "0.000";

/// The discharge of a side by the rational method: a plain product, without a unit factor in any unit system.
constexpr Real rational_discharge(Real intensity, Real area, Real coefficient) {
    return intensity * area * coefficient;
}

/// What comes to an inlet. On a continuous grade the right side counts as 0.
struct FlowShares {
    Real from_left;
    Real from_right;
    Real bypass_left;
    Real bypass_right;
    Real overland;
};

/// The flow that the inlet must take.
constexpr Real total_flow(const FlowShares& shares) {
    return shares.from_left + shares.from_right + shares.bypass_left + shares.bypass_right + shares.overland;
}

/// The carryover that an inlet takes over from the bypass of its previous inlet: the text as it stands, 0.0 where that
/// inlet has none.
constexpr std::string_view carryover_from(std::string_view bypass) {
    return bypass.empty() ? std::string_view("0.0") : bypass;
}

}  // namespace gullymark::engine
