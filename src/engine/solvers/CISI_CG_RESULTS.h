#pragma once

/// Curb opening or slotted inlet on a continuous grade.
///
/// From the spread of the approaching flow, the share of it within the gutter width, the composite cross slope and the
/// length that would catch everything follow the efficiency of the real length, the intercepted flow and the bypass.
///
///   T    from compute_gutter_spread
///   Eo   = 1 - B, B the share outside the gutter width W
///   a    = W (S'w - Sw)
///   Se   = Sx + S'd Eo, rounded to four decimals
///   LT   = K_L Q^0.42 S^0.3 (1 / (n Se))^0.6
///   E    = 1 - (1 - L / LT)^1.8, 1 for L > LT
///   Qi   = E Q
///
/// where Q is the discharge (cfs, cms), S the longitudinal slope, n Manning's roughness, W the gutter width, Wa the
/// width of the local depression, Sx, Sw, S'w the cross slopes of pavement, gutter and inlet, S'd the slope of the
/// depressed section, a the depression (ft, m), L the opening's clogged length and K_L the curb length constant.
///
/// Reads   TOTAL_DISCHARGE LONGSLOPE MANNINGS GUTWIDTH PAVXSLOPE GUTXSLOPE LOCDEPWIDTH INLETXSLOPE GRATEPERCLOG
///         ALLOWABLE_SPREAD INLETLENGTH
/// Repairs INLETXSLOPE (an empty one takes GUTXSLOPE; it is never below PAVXSLOPE), GRATEPERCLOG (an empty one is "0")
/// Writes  OPENSPREAD WT FLOWRATIO DEPXSLOPE COMPXSLOPE INTLEN CURBDEPTH FLOWVEL EFFICIENCY QINT QCARRY
///
/// Runs under the step rule of step.h and shows no message of its own.
///
/// Source: FHWA, HEC-22, third edition, 4.4.4.2 and 4.4.4.3, fourth edition, 7.2.2 and 7.2.3.
/// Equation by equation, with what departs: doc/sources.md#cisi-cg
namespace gullymark::engine::CISI_CG_RESULTS {

/// Solves the open inlet, as told above.
void compute_results();

}  // namespace gullymark::engine::CISI_CG_RESULTS
