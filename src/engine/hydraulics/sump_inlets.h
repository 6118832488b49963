#pragma once

#include <string_view>

#include "engine/hydraulics/sump_march.h"
#include "engine/step.h"

/// What the inlets in a sump work out alike.
namespace gullymark::engine {

/// The flow that an inlet in a sump must take, and what of it comes from its two sides.
struct SumpFlows {
    Quantity Q{"Q", Unit::discharge, "flow that the inlet must take"};
    Quantity Ql{"Ql", Unit::discharge, "flow of the left side"};
    Quantity Qr{"Qr", Unit::discharge, "flow of the right side"};
    Quantity Qg{"Qg", Unit::discharge, "flow of the heavier side"};
};

/// Reads Q, Ql and Qr (cfs, cms) from TOTAL_DISCHARGE and from CARRYOVER and DISCHARGE of each side, and takes the
/// heavier side for the gutter, the left one of equals. A side that cannot be read keeps its 0. Six steps from `first`
/// on.
void read_sump_flows(int first, SumpFlows& flows);

/// The throat that a text in THROATYPE names; a text that names none leaves no head on the throat.
Throat throat_named(std::string_view text);

/// An angle in degrees, in radians, with the 15 digits of pi that all results rest on.
inline auto in_radians(const formula::Named& degrees) {
    constexpr double pi = 3.14159265358979;
    return degrees * formula::Named("pi", pi) / 180.0;
}

/// The text, with three decimals, of the perimeter (ft, m) of a grate of the length L and the gross perimeter P that
/// clogging by C percent leaves: L + (P - L) (1 - C / 100). It shortens only the part of the rim beyond one length.
inline auto clogged_perimeter(const formula::Named& P, const formula::Named& L, const formula::Named& C) {
    return rounded(L + (P - L) * (1.0 - C / 100.0), "0.000");
}

}  // namespace gullymark::engine
