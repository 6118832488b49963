#pragma once

/// Grate inlet in a sump.
///
/// All of the flow enters. Its depth is the greater of that over the grate's rim as a weir and that over its
/// openings as an orifice, and the depth gives the spread at the inlet.
///
///   Qg   = the larger of Ql and Qr
///   Pe   = L + (P - L) (1 - C / 100), rounded to three decimals
///   Ae   = (1 - C / 100) A
///   dw   = (Q / (Cw Pe))^0.6667,  Cw = 3 (1.66 metric)
///   do   = (Q / (0.67 Ae))^2 / (2 g)
///   d    = the larger of dw and do
///   h    = W S'w / 2,  di = h + d,  de = d - h
///   Ti   = di / S'w for de < 0, else de / Sx + W, at least 0
///
/// where Q is the whole discharge and Ql, Qr those of the sides (cfs, cms), P the grate's perimeter, A its
/// open area, L its length, C the clogged share in percent, W the gutter width, here at least that of the
/// grate, Sx the cross slope of the pavement, S'w that of the inlet, at least that of the gutter, di and de
/// the depths at the inlet and at the edge of the gutter (ft, m), and g gravity.
///
/// Reads   TOTAL_DISCHARGE CARRYOVER1 DISCHARGE1 CARRYOVER2 DISCHARGE2 GRATEPERI GRATEAREA GRATEWIDTH
///         GUTWIDTH LONGSLOPE MANNINGS PAVXSLOPE GUTXSLOPE LOCDEPWIDTH INLETXSLOPE GRATEPERCLOG
///         ALLOWABLE_SPREAD INLETLENGTH
/// Repairs INLETXSLOPE (an empty one is "0.1"; it is never below PAVXSLOPE), GRATEPERCLOG (an empty one is
///         "0")
/// Writes  EFFPERI GUTTERSPREAD INLETPERF OPENSPREAD RAREA RPERI CURBDEPTH DEPTHATINLET QINT
///
/// Runs under the step rule of step.h. A grate without perimeter, area or width, a negative pavement slope
/// and a gutter flatter than the pavement show a box and leave all results empty. CURBOPTION has no effect: a
/// curb shows in the perimeter alone.
///
/// Source: FHWA, HEC-22, third edition, 4.4.5.1, fourth edition, 7.3.1.
/// Equation by equation, with what departs: doc/sources.md#gi-su
namespace gullymark::engine::GI_SU_RESULTS {

/// Solves the open inlet, as told above.
void compute_results();

}  // namespace gullymark::engine::GI_SU_RESULTS
