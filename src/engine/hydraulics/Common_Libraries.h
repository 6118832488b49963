#pragma once

#include <string_view>

#include "engine/hydraulics/sump_march.h"
#include "engine/real.h"
#include "engine/workings.h"

/// The open-channel calculations that the solvers share. Numbers in, a number out; no record is touched.
/// Lengths are in ft or m, discharges in cfs or cms, angles in radians. A fault leaves as a thrown Fault unless a
/// procedure says otherwise.
///
/// Source: FHWA, HEC-22, third edition, 4.3 and 4.4.5.4, fourth edition, 5.3, 6.1.4 and 7.3.4. Equation by equation, with
/// what departs: doc/sources.md#gutter-spread, #ditch-depth, #sump-depth
namespace gullymark::engine {

/// The cross section of a gutter and the flow that it carries.
struct GutterFlow {
    Real K;                            // gutter flow constant
    Real Q;                            // discharge
    Real S;                            // longitudinal slope
    Real n;                            // Manning's roughness coefficient
    Real W;                            // gutter width
    Real Sx;                           // pavement cross slope
    Real Sw;                           // gutter cross slope
    Real Wa;                           // width of the local depression; no formula uses it
    Real spread_limit;                 // allowable spread
    std::string_view discharge = "Q";  // the symbol that Q has in the sheet
};

/// The ceiling of the search for a spread, in allowable spreads.
inline constexpr double ceiling_in_limits = 6.0;

/// Share of the flow outside the width W of a composite section with the spread T, the complement of Eo:
///
///   1 - Eo = 1 - 1 / (1 + r / ((1 + r / (T / W - 1))^2.67 - 1))
template <typename Number>
auto side_flow_share_of_ratio(const Number& T, const Number& W, const Number& r) {
    return 1.0 - 1.0 / (1.0 + r / (power(1.0 + r / (T / W - 1.0), 2.67) - 1.0));
}

/// The same from the two slopes: r = Sw / Sx.
inline Real side_flow_share(Real T, Real W, Real Sw, Real Sx) {
    return side_flow_share_of_ratio(T, W, Sw / Sx);
}

/// The same for a step, which tells the ratio in a line of its own.
formula::Taken side_flow_share(const Quantity& T, const Quantity& W, const Quantity& Sw, const Quantity& Sx);

/// Spread on one cross slope: T = ((Q n) / (K Sx^1.67 S^0.5))^(1 / 2.67).
Real compute_uniform_spread(Real K, Real Q, Real S, Real n, Real Sx);

/// Spread of the flow in a gutter and on the pavement beside it.
///
/// The uniform spread on the gutter slope while that stays within the gutter; else a bisection between the gutter
/// width and six times the spread limit, to 0.0001 cfs or cms:
///
///   Qs = (K / n) Sx^1.67 S^0.5 (T - W)^2.67,  Q = Qs / (1 - Eo)
///
/// Six times the limit is the ceiling of every spread: a discharge that needs more returns exactly it.
/// Without a gutter (W or Sw of 0) the uniform spread on the pavement slope.
/// A discharge of 0 or below, or a negative W or Sw, shows a box and gives 0. Any fault gives 0 without a word.
/// Every search ends: a pass that moves neither bound is the last.
Real compute_gutter_spread(const GutterFlow& flow);

/// Depth in a trapezoidal ditch with bottom width b and side slopes z1, z2 (horizontal to vertical), by bisection
/// between 0 and Q + 100, to 0.0001 cfs or cms:
///
///   A = y b + (z1 + z2) / 2 y^2,  P = b + sqrt(y^2 + (z1 y)^2) + sqrt(y^2 + (z2 y)^2)
///   Q = (M / n) A S^0.5 (A / P)^0.6667
///
/// A discharge of 0 or below shows a box and gives 0. A search that nothing can bring closer (no slope, a negative n)
/// is a fault.
Real compute_ditch_depth(Real M, Real Q, Real S, Real n, Real b, Real z1, Real z2);

/// The first depth d of 0.002, 0.003, ... at which the flow comes within 0.001 of Q or beyond:
///
///   Qcalc = 0.67 A (2 g d)^0.5                                   while there is no head do on the throat
///   Qcalc = 0.67 (A (2 g d)^0.5 + B C (2 g) do^0.5)              else; the second root stands on do alone
///   do = d - h / 2 (horizontal), d - (h / 2) sin(angle) (inclined), d (vertical)
///
/// A discharge of 0 or below, any fault, and a march that cannot end show a box and give 0.
Real compute_sump_depth(const SumpFlow& flow);

}  // namespace gullymark::engine
