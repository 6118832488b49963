#pragma once

/// Grate inlet on a continuous grade.
///
/// The flow in the gutter is split into the part that meets the grate from the front, less what splashes
/// over, and the part that passes at its side and partly turns in.
///
///   T    from compute_gutter_spread
///   Eo   = 1 - B, B the share outside the gutter width W
///   Se   = Sx + Spw Eo
///   LT   = K_L Q^0.42 S^0.3 (1 / (n Se))^0.6
///   V    = Q / A
///   Rf   the frontal efficiency of grate_types.h
///   Rs   = 1 / (1 + K_s V^1.8 / (Sx L^2.3))
///   Eg   = Eo (Lf Weff) / (Lf Wa), Weff = Wg (1 - C / 100); Eo where Wa or the length is 0
///   E    = Eg Rf + Rs (1 - Eg), at most 1
///   Qi   = E Q
///
/// where Q is the discharge (cfs, cms), S the longitudinal slope, n Manning's roughness, W the gutter width,
/// Wa the width of the local depression, Wg that of the grate, L its length (ft, m), Lf the same in ft, C the
/// clogged share in percent, A the area of the gutter flow, Sx, Sw, S'w the cross slopes of pavement, gutter
/// and inlet, Spw the slope of the depressed section, K_L the curb length constant and K_s the side flow
/// constant.
///
/// Reads   TOTAL_DISCHARGE LONGSLOPE MANNINGS GUTWIDTH PAVXSLOPE GUTXSLOPE LOCDEPWIDTH GRATEPERCLOG
///         GRATEWIDTH INLETXSLOPE ALLOWABLE_SPREAD INLETLENGTH GRATETYPE
/// Repairs GRATEPERCLOG (an empty one is "0"), INLETXSLOPE (an empty one is "0.1"; it is never below
///         PAVXSLOPE)
/// Writes  OPENSPREAD WT FLOWRATIO DEPXSLOPE COMPXSLOPE INTLEN CURBDEPTH FLOWVEL EFFICIENCY QINT QCARRY
///
/// Runs under the step rule of step.h and shows no message of its own. Most steps stand in grate_on_grade.h,
/// those of the frontal efficiency in grate_types.h.
///
/// Source: FHWA, HEC-22, third edition, 4.4.4.1, fourth edition, 7.2.1.
/// Equation by equation, with what departs: doc/sources.md#gi-cg
namespace gullymark::engine::GI_CG_RESULTS {

/// Solves the open inlet, as told above.
void compute_results();

}  // namespace gullymark::engine::GI_CG_RESULTS
