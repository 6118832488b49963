#include "engine/solvers/CI_SU_RESULTS.h"

#include "engine/constants.h"
#include "engine/headings.h"
#include "engine/hydraulics/approach_spread.h"
#include "engine/hydraulics/inlet_repairs.h"
#include "engine/hydraulics/sump_inlets.h"
#include "engine/results.h"
#include "engine/step.h"
#include "engine/unit_constants.h"
#include "engine/words.h"

namespace gullymark::engine::CI_SU_RESULTS {
namespace {

using enum Column;

struct Sheet : SumpFlows {
    Quantity ht{"ht", Unit::depth, "height of the opening as typed"};
    Quantity h{"h", Unit::length, "height of the opening"};
    Quantity angle{"angle", Unit::degrees, "angle of an inclined throat"};
    Quantity W{"W", Unit::length, "gutter width"};
    Quantity Sx{"Sx", Unit::slope, "pavement cross slope"};
    Quantity Sw{"Sw", Unit::slope, "gutter cross slope"};
    Quantity SdashW{"S'w", Unit::slope, "inlet cross slope"};
    Quantity Wa{"Wa", Unit::length, "width of the local depression"};
    Quantity a{"a", Unit::length, "depression at the curb"};
    Quantity clog{"clog", Unit::percent, "clogged share of the opening"};
    Quantity L{"L", Unit::length, "length that clogging leaves"};
    Quantity limit{"limit", Unit::length, "allowable spread"};
    Quantity S{"S", Unit::slope, "longitudinal slope"};
    Quantity n{"n", Unit::ratio, "Manning's roughness"};
    Quantity T{"T", Unit::length, "spread of the gutter flow"};
    Quantity P{"P", Unit::length, "length of the weir"};
    Quantity Cw{"Cw", Unit::other, "weir coefficient"};
    Quantity weir_depth{"dw", Unit::length, "depth of weir flow"};
    Quantity orifice_depth{"do", Unit::length, "head on the middle of the throat"};
    Quantity radians{"radians", Unit::other, "angle of an inclined throat in radians"};
    Quantity ho{"ho", Unit::length, "depth of orifice flow"};
    Quantity D{"D", Unit::length, "depth at the opening"};
    Quantity Tw{"Tw", Unit::length, "spread over the depression"};
    Quantity To{"To", Unit::length, "spread at the opening"};
    Quantity Dt{"Dt", Unit::depth, "total depth at the inlet"};
};

Sheet sheet;

// The share of the depression's width that lengthens the weir.
constexpr double depression_share = 1.8;

// From this share of the opening's height on the weir depth makes the flow that of an orifice.
constexpr double orifice_share = 1.4;

/// Of a curb opening as a weir, without and with a depression, in ft and m; FHWA HEC-22.
double weirCoefficientPlain() {
    return by_units(3.0, 1.6);
}
double weirCoefficientDepressed() {
    return by_units(2.3, 1.25);
}

void read_inputs() {
    auto& s = sheet;
    under(heading::flow);
    read_sump_flows(1, s);
    under(heading::inputs);
    fill_blank(7, GRATEPERCLOG, "0");
    step(9, s.ht, [] { return number_in(HEIGHTOFCURB); });
    step(10, s.angle, [] { return number_in(THROATANGLE); });
    step(11, s.W, [] { return number_in(GUTWIDTH); });
    step(12, s.Sx, [] { return number_in(PAVXSLOPE); });
    step(13, s.Sw, [] { return number_in(GUTXSLOPE); });
    // A blank inlet slope is that of the pavement here, that of the gutter on grade; the difference is deliberate.
    fill_blank(14, INLETXSLOPE, PAVXSLOPE);
    raise_inlet_slope(16, s.Sx);
    step(18, s.SdashW, [] { return number_in(INLETXSLOPE); });
    step(19, s.Wa, [] { return number_in(LOCDEPWIDTH); });
    step(20, s.a, [&s] { return (s.SdashW - s.Sw) * s.W; });
    step(21, s.clog, [] { return number_in(GRATEPERCLOG); });
    step(22, s.L, [&s] { return (1.0 - s.clog / 100.0) * number_in(INLETLENGTH); });
    step(23, s.limit, [] { return number_in(ALLOWABLE_SPREAD); });
    step(24, s.S, [] { return number_in(LONGSLOPE); });
    step(25, s.n, [] { return number_in(MANNINGS); });
}

void find_gutter_spread() {
    auto& s = sheet;
    under(heading::spread);
    step(26, s.T, [&s] { return approach_spread(s, s.Qg); });
    step(27, GUTTERSPREAD, [&s] { return s.T; });
}

void find_weir_depth() {
    auto& s = sheet;
    under(heading::weir);
    step(28, s.h, [&s] { return s.ht / constants::depthFactor(); });
    if (holds(29, [&s] { return s.L > constants::curbLengthLimit() || s.Wa == 0.0; })) {
        step(30, s.P, [&s] { return s.L; });
        step(31, s.Cw, [] { return Real(weirCoefficientPlain()); });
    } else if (holds(32, [&s] { return s.Wa > 0.0; })) {
        step(33, s.P, [&s] { return s.L + depression_share * s.Wa; });
        step(34, s.Cw, [] { return Real(weirCoefficientDepressed()); });
    }
    step(35, s.weir_depth, [&s] { return power(s.Q / (s.Cw * s.P), 0.667); });
}

void find_orifice_depth() {
    auto& s = sheet;
    under(heading::orifice);
    step(36, s.orifice_depth,
         [&s] { return square(s.Q / (orifice_coefficient * s.h * s.L)) / (2.0 * constants::g()); });
    if (holds(37, [] { return says(THROATYPE, words::horizontal_throat); })) {
        step(38, s.ho, [&s] { return s.orifice_depth + s.h / 2.0; });
    }
    if (holds(39, [] { return says(THROATYPE, words::inclined_throat); })) {
        step(40, s.radians, [&s] { return in_radians(s.angle); });
        step(41, s.ho, [&s] { return s.orifice_depth + s.h / 2.0 * sine(s.radians); });
    }
    if (holds(42, [] { return says(THROATYPE, words::vertical_throat); })) {
        step(43, s.ho, [&s] { return s.orifice_depth; });
    }
}

void choose_regime() {
    auto& s = sheet;
    under(heading::regime);
    const auto spread_over_depression = [&s] { return (s.D - s.a) / s.Sx + s.Wa; };
    step(44, s.Tw, [] { return Real(0.0); });
    if (holds(45, [&s] { return orifice_share * s.h < s.weir_depth; })) {
        step(46, INLETPERF, [] { return words::orifice_flow; });
        step(47, s.D, [&s] { return s.ho; });
        step(48, s.Tw, spread_over_depression);
    } else if (holds(49, [&s] { return s.weir_depth > s.h; })) {
        step(50, INLETPERF, [] { return words::transition_flow; });
        step(51, s.D, [&s] { return (s.weir_depth + s.ho) / 2.0; });
        step(52, s.Tw, spread_over_depression);
    } else {
        step(53, INLETPERF, [] { return words::weir_flow; });
        step(54, s.D, [&s] { return s.weir_depth; });
    }
}

void find_spread_and_depths() {
    auto& s = sheet;
    under(heading::spread_and_depth);
    step(55, s.To, [&s] { return s.weir_depth / s.Sx; });
    if (holds(56, [&s] { return s.Tw > s.To; })) {
        step(57, s.To, [&s] { return s.Tw; });
    }
    step(58, s.Dt, [&s] { return (s.To * s.Sx + s.Wa * (s.Sw - s.Sx) + s.a) * constants::depthFactor(); });
    step(59, OPENSPREAD, [&s] { return s.To; });
    step(60, EFFPERI, [&s] { return s.P; });
    step(61, CURBDEPTH, [&s] { return s.To * s.Sx * constants::depthFactor(); });
    step(62, DEPTHATINLET, [&s] { return s.Dt; });
    step(63, QINT, [&s] { return s.Q; });
}

}  // namespace

void compute_results() {
    set_gravity();
    set_depthFactor();
    set_curbLengthLimit();
    set_gutterFlowConstant();
    sheet = {};

    read_inputs();
    find_gutter_spread();
    find_weir_depth();
    find_orifice_depth();
    choose_regime();
    find_spread_and_depths();
    format_results();
}

}  // namespace gullymark::engine::CI_SU_RESULTS
