#pragma once

/// Curb opening and grate working together on a continuous grade.
///
/// The curb opening, upstream, takes its share of the gutter flow first; the grate works on what is left, at
/// the velocity that this has over the whole flow's area.
///
///   Se   as GI_CG_RESULTS, but rounded to four decimals before LT follows from it
///   Ec   = 1 - (1 - Lc / LT)^1.8, 1 for Lc > LT
///   Qic  = Ec Q
///   Qr   = Q - Qic,  Vr = Qr / A
///   E    = Eg Rf + Rs (1 - Eg), at most 1, with Rf and Rs at the velocity Vr
///   Qig  = Qr (Rf Eg + Rs (1 - Eg)), not held at 1
///   Qi   = Qic + Qig
///
/// where Lc is the length of the curb opening (ft, m), Qic what it takes, Qr what it leaves, Qig what the
/// grate takes (cfs, cms), and all else is that of GI_CG_RESULTS. EFFICIENCY is the grate's own on the flow
/// left to it.
///
/// Reads   what GI_CG_RESULTS reads, and OPENLEN_GRATE
/// Repairs GRATEPERCLOG (an empty one is "0"), INLETXSLOPE (an empty one is "0.1"; it is never below
///         PAVXSLOPE)
/// Writes  OPENSPREAD WT FLOWRATIO DEPXSLOPE COMPXSLOPE INTLEN CURBDEPTH FLOWVEL QINTCURB EFFICIENCY
///         QINTGRATE QINT QCARRY
///
/// Runs under the step rule of step.h. A slope or roughness of 0 or below, a negative pavement slope and a
/// gutter flatter than the pavement show a box, and nothing is computed.
///
/// Source: FHWA, HEC-22, third edition, 4.4.4.4, fourth edition, 7.2.4.
/// Equation by equation, with what departs: doc/sources.md#combo-cg
namespace gullymark::engine::COMBO_CG_RESULTS {

/// Solves the open inlet, as told above.
void compute_results();

}  // namespace gullymark::engine::COMBO_CG_RESULTS
