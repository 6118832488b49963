#pragma once

/// Grate in a trapezoidal ditch on a continuous grade.
///
///   y    from compute_ditch_depth
///   Eo   = Wg / ((zl + zr) y / 2 + B), not held at 1
///   A    = y B + y^2 zl / 2 + y^2 zr / 2
///   V    = Q / A
///   Pw   = B + sqrt((zl y)^2 + y^2) + sqrt((zr y)^2 + y^2),  R = A / Pw
///   Rf   the frontal efficiency of grate_types.h
///   Rs   = 1 / (1 + K_s V^1.8 / (L^2.3 Ss))
///   Ss   = 0.01 for Wg < B, 1 / ((zl + zr) / 2) where neither side is upright, else 0.99
///   E    = Eo Rf + (1 - Eo) Rs, at most 1
///   Qi   = E Q
///   Pr   = 2 (L + Wg),  berm = (Q / (Cw Pr))^0.67,  Cw = 3 (1.66 metric)
///
/// where Q is the discharge (cfs, cms), y the depth, B the bottom width, zl, zr the side slopes (horizontal
/// to vertical), Wg the width of the grate, L its length (ft, m), and K_s the side flow constant. Clogging
/// plays no part.
///
/// Reads   TOTAL_DISCHARGE LONGSLOPE MANNINGS GUTWIDTH LSCOPERATIO RSCOPERATIO GRATEWIDTH INLET_SUBTYPE
///         INLETLENGTH GRATETYPE
/// Writes  CURBDEPTH FLOWRATIO FLOWAREA FLOWVEL WETPERI HYDRAD FFLOWEFF SFLOWEFF EFFICIENCY QINT QCARRY DSBH;
///         for the standard inlets "X - DI Grate" and "X - Welded Steel" CURBDEPTH alone
///
/// Runs under the step rule of step.h and shows no message of its own. The steps of the frontal
/// efficiency stand in grate_types.h.
///
/// Source: FHWA, HEC-22, third edition, 4.4.7.1, fourth edition, 7.5.1.
/// Equation by equation, with what departs: doc/sources.md#trap-cg
namespace gullymark::engine::TRAP_CG_RESULTS {

/// Solves the open inlet, as told above.
void compute_results();

}  // namespace gullymark::engine::TRAP_CG_RESULTS
