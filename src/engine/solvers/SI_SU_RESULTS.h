#pragma once

/// Slotted inlet in a sump.
///
/// Flow comes from two sides and all of it enters. The depth over the slot is that of a weir, of an orifice,
/// or their mean; which one follows from the weir depth alone, against two fixed depths.
///
///   Qg   = the larger of Q1 and Q2
///   a    = (S'w - Sw) W
///   dw   = (Q / (Cw L))^0.667,  Cw = 2.48 (1.4 metric)
///   do   = (Q / (0.8 L w))^2 / (2 g)
///   D    = dw for dw < 0.2 ft (0.06 m), do for dw > 0.4 ft (0.12 m), else (dw + do) / 2
///   To   = D / Sx
///   Dt   = D + W (Sw - Sx) + a
///
/// where Q is the whole discharge and Q1, Q2 those of the sides (cfs, cms), L the slot's clogged length, w
/// its width, W the gutter width, a the depression (ft, m), Sx, Sw, S'w the cross slopes of pavement, gutter
/// and inlet, and g gravity.
///
/// Reads   TOTAL_DISCHARGE CARRYOVER1 DISCHARGE1 CARRYOVER2 DISCHARGE2 SLOTWIDTH GUTWIDTH PAVXSLOPE GUTXSLOPE
///         LOCDEPWIDTH INLETXSLOPE GRATEPERCLOG LONGSLOPE MANNINGS ALLOWABLE_SPREAD INLETLENGTH
/// Repairs INLETXSLOPE (an empty one is "0.1"; it is never below PAVXSLOPE), GRATEPERCLOG (an empty one is
///         "0")
/// Writes  GUTTERSPREAD CURBDEPTH INLETPERF OPENSPREAD EFFLEN DEPTHATINLET QINT
///
/// Runs under the step rule of step.h and shows no message of its own.
///
/// Source: FHWA, HEC-22, third edition, 4.4.5.3, fourth edition, 7.3.3.
/// Equation by equation, with what departs: doc/sources.md#si-su
namespace gullymark::engine::SI_SU_RESULTS {

/// Solves the open inlet, as told above.
void compute_results();

}  // namespace gullymark::engine::SI_SU_RESULTS
