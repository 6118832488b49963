#pragma once

/// Curb opening and grate working together in a sump.
///
/// All of the flow enters. The grate's rim as a weir gives the first depth; where that passes the height of
/// the curb opening, both work as orifices. A grate that is clogged out or has no size leaves the curb
/// opening alone.
///
///   Qg   = the larger of Ql and Qr
///   Pe   = L + (P - L) (1 - C / 100), rounded to three decimals
///   Ae   = (1 - C / 100) A
///   with a grate:     dw = (Q / (Cg Pe))^0.6667,  do from compute_sump_depth for dw > h, else 0
///   without a grate:  dw = (Q / (Cw L))^0.667,  do = (Q / (0.67 h L))^2 / (2 g)
///   d    = the larger of dw and do
///   e    = W S'w / 2,  di = e + d,  de = d - e
///   Ti   = de / Sx + W, at least 0
///
/// where Q is the whole discharge and Ql, Qr those of the sides (cfs, cms), h the height of the curb opening,
/// P the grate's perimeter, A its open area, L its length, C the clogged share in percent, W the gutter
/// width, at least that of the grate, Sx and S'w the cross slopes of pavement and inlet, di and de the depths
/// at the inlet and at the edge of the gutter (ft, m), Cg = 3 (1.6 metric) and Cw = 2.3 (1.25 metric) the
/// weir coefficients of the grate's rim and of the curb opening, and g gravity.
///
/// Reads   TOTAL_DISCHARGE CARRYOVER1 DISCHARGE1 CARRYOVER2 DISCHARGE2 INLETLENGTH HEIGHTOFCURB THROATANGLE
///         THROATYPE GRATEPERI GRATEAREA GRATEWIDTH GRATEPERCLOG GUTWIDTH PAVXSLOPE GUTXSLOPE LOCDEPWIDTH
///         INLETXSLOPE LONGSLOPE MANNINGS ALLOWABLE_SPREAD
/// Repairs GRATEPERCLOG (an empty one is "0"), INLETXSLOPE (an empty one is "0.1"; it is never below
///         PAVXSLOPE)
/// Writes  EFFPERI GUTTERSPREAD INLETPERF DEPTHATINLET OPENSPREAD RAREA RPERI CURBDEPTH QINT
///
/// Runs under the step rule of step.h and shows no message of its own.
///
/// Source: FHWA, HEC-22, third edition, 4.4.5.4, fourth edition, 7.3.4.
/// Equation by equation, with what departs: doc/sources.md#combo-su
namespace gullymark::engine::COMBO_SU_RESULTS {

/// Solves the open inlet, as told above.
void compute_results();

}  // namespace gullymark::engine::COMBO_SU_RESULTS
