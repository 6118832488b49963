#pragma once

/// Curb opening in a sump.
///
/// Flow comes from two sides and all of it enters. The heavier side gives the spread in the gutter; the whole
/// flow gives the depth at the opening, as a weir, as an orifice, or as their mean between the two.
///
///   Qg   = the larger of Q1 and Q2
///   a    = (S'w - Sw) W
///   P    = L, Cw = 3 (1.6 metric)                  for L > 12 ft (4 m) or Wa = 0
///   P    = L + 1.8 Wa, Cw = 2.3 (1.25 metric)      else, with a depression
///   dw   = (Q / (Cw P))^0.667
///   do   = (Q / (0.67 h L))^2 / (2 g)
///   ho   = do + h / 2 (horizontal throat), do + (h / 2) sin(angle) (inclined), do (vertical)
///   D    = ho for dw > 1.4 h, (dw + ho) / 2 for dw > h, else dw
///   To   = the larger of dw / Sx and, but for weir flow, (D - a) / Sx + Wa
///   Dt   = To Sx + Wa (Sw - Sx) + a
///
/// where Q is the whole discharge and Q1, Q2 those of the sides (cfs, cms), h the height of the opening, W
/// the gutter width, Wa the width of the local depression, a the depression (ft, m), L the opening's clogged
/// length, P the weir's length, Sx, Sw, S'w the cross slopes of pavement, gutter and inlet, and g gravity.
///
/// Reads   TOTAL_DISCHARGE CARRYOVER1 DISCHARGE1 CARRYOVER2 DISCHARGE2 GRATEPERCLOG HEIGHTOFCURB THROATANGLE
///         THROATYPE GUTWIDTH PAVXSLOPE GUTXSLOPE INLETXSLOPE LOCDEPWIDTH INLETLENGTH ALLOWABLE_SPREAD
///         LONGSLOPE MANNINGS
/// Repairs GRATEPERCLOG (an empty one is "0"), INLETXSLOPE (an empty one takes PAVXSLOPE; it is never below
///         PAVXSLOPE)
/// Writes  GUTTERSPREAD INLETPERF OPENSPREAD EFFPERI CURBDEPTH DEPTHATINLET QINT
///
/// Runs under the step rule of step.h and shows no message of its own.
///
/// Source: FHWA, HEC-22, third edition, 4.4.5.2, fourth edition, 7.3.2.
/// Equation by equation, with what departs: doc/sources.md#ci-su
namespace gullymark::engine::CI_SU_RESULTS {

/// Solves the open inlet, as told above.
void compute_results();

}  // namespace gullymark::engine::CI_SU_RESULTS
