#pragma once

#include <array>
#include <string_view>

/// Grate in a ditch, in a sump.
///
/// Two standard inlets, "Y-Weld" and "Y-DI Gr", have a measured rating, a depth as a function of the
/// discharge in pieces, one for a clean grate and one for a half clogged one. All others take the greater of
/// two depths:
///
///   dw   = (Q / (Cw P))^0.6667,  Cw = 3 (1.66 metric)
///   do   = (Q / (0.67 A))^2 / (2 g)
///   d    = the larger of dw and do
///
/// where Q is the discharge (cfs, cms), P the perimeter of the grate (ft, m), A its open area (sf, sm), both
/// for the clogging that the standard was picked with, and g gravity. A rating takes Q in either unit system
/// as it is.
///
/// Reads   TOTAL_DISCHARGE GRATEPERCLOG INLET_SUBTYPE; without a rating GRATEPERI GRATEAREA GRATEWIDTH
/// Writes  INLETPERF DEPTHATINLET RAREA RPERI QINT; with a rating DEPTHATINLET alone
///
/// Alone among the solvers it ends at the first fault: with a box, the results written so far, and no
/// formats. So an unreadable GRATEWIDTH ends it as well, though no formula uses the width.
///
/// Source: FHWA, HEC-22, third edition, 4.4.5.1, fourth edition, 7.3.1; the ratings are this system's own.
/// Equation by equation, with what departs: doc/sources.md#trap-su
namespace gullymark::engine::TRAP_SU_RESULTS {

/// The clogged shares, in percent, that a rating has a curve for. With any other the rated depth is 0.
inline constexpr std::array<double, 2> rated_clogging{0.0, 50.0};

/// True for a standard inlet that has a rating.
bool has_rating(std::string_view standard);

/// Solves the open inlet, as told above.
void compute_results();

}  // namespace gullymark::engine::TRAP_SU_RESULTS
