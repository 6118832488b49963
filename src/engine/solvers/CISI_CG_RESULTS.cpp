#include "engine/solvers/CISI_CG_RESULTS.h"

#include "engine/constants.h"
#include "engine/headings.h"
#include "engine/hydraulics/approach_spread.h"
#include "engine/hydraulics/inlet_repairs.h"
#include "engine/results.h"
#include "engine/step.h"
#include "engine/unit_constants.h"

namespace gullymark::engine::CISI_CG_RESULTS {
namespace {

using enum Column;

struct Sheet {
    Quantity Q{"Q", Unit::discharge, "flow that the inlet must take"};
    Quantity S{"S", Unit::slope, "longitudinal slope"};
    Quantity n{"n", Unit::ratio, "Manning's roughness"};
    Quantity W{"W", Unit::length, "gutter width"};
    Quantity Sx{"Sx", Unit::slope, "pavement cross slope"};
    Quantity Sw{"Sw", Unit::slope, "gutter cross slope"};
    Quantity Wa{"Wa", Unit::length, "width of the local depression"};
    Quantity SdashW{"S'w", Unit::slope, "inlet cross slope"};
    Quantity a{"a", Unit::length, "depression at the curb"};
    Quantity limit{"limit", Unit::length, "allowable spread"};
    Quantity T{"T", Unit::length, "spread of the gutter flow"};
    Quantity B{"B", Unit::ratio, "share of the flow outside the gutter width"};
    Quantity WT{"W/T", Unit::ratio, "gutter width over spread"};
    Quantity Eo{"Eo", Unit::ratio, "share of the flow within the gutter width"};
    Quantity SdashD{"S'd", Unit::slope, "slope of the depressed section"};
    Quantity Se{"Se", Unit::slope, "composite cross slope"};
    Quantity LT{"LT", Unit::length, "length for total interception"};
    Quantity ag{"ag", Unit::length, "drop of the gutter below the pavement slope"};
    Quantity Dc{"Dc", Unit::depth, "depth at the curb"};
    Quantity A{"A", Unit::area, "area of the gutter flow"};
    Quantity V{"V", Unit::velocity, "velocity of the gutter flow"};
    Quantity L{"L", Unit::length, "length that clogging leaves"};
    Quantity E{"E", Unit::ratio, "efficiency"};
    Quantity Qi{"Qi", Unit::discharge, "intercepted flow"};
};

Sheet sheet;

void read_inputs() {
    auto& s = sheet;
    under(heading::inputs);
    step(1, s.Q, [] { return number_in(TOTAL_DISCHARGE); });
    step(2, s.S, [] { return number_in(LONGSLOPE); });
    step(3, s.n, [] { return number_in(MANNINGS); });
    step(4, s.W, [] { return number_in(GUTWIDTH); });
    const Reading pavement_slope(PAVXSLOPE);
    step(5, s.Sx, [&] { return pavement_slope; });
    step(6, s.Sw, [] { return number_in(GUTXSLOPE); });
    step(7, s.Wa, [] { return number_in(LOCDEPWIDTH); });
    // A blank inlet slope is that of the gutter here, that of the pavement in a sump; the difference is deliberate.
    fill_blank(8, INLETXSLOPE, GUTXSLOPE);
    raise_inlet_slope(10, pavement_slope);
    step(12, s.SdashW, [] { return number_in(INLETXSLOPE); });
    fill_blank(13, GRATEPERCLOG, "0");
    step(15, s.a, [&s] { return s.W * (s.SdashW - s.Sw); });
    step(16, s.limit, [] { return number_in(ALLOWABLE_SPREAD); });
}

void find_spread() {
    auto& s = sheet;
    under(heading::spread);
    step(17, s.T, [&s] { return approach_spread(s, s.Q); });
    step(18, OPENSPREAD, [&s] { return s.T; });
}

auto is_depressed() {
    return sheet.Wa != 0.0 && sheet.a != 0.0;
}

void find_flow_ratio() {
    auto& s = sheet;
    under(heading::flow_ratio);
    const auto outside_gutter = [&s] { return side_flow_share(s.T, s.W, s.Sw, s.Sx); };
    if (holds(19, [&s] { return s.W == 0.0; })) {
        // With finite slopes a is 0 whenever W is, so that no inlet comes this way.
        if (holds(20, is_depressed)) {
            step(21, s.W, [&s] { return s.Wa; });
            step(22, s.B, outside_gutter);
        } else {
            step(23, s.B, [] { return Real(1.0); });
        }
    } else if (holds(24, [&s] { return s.W > 0.0 && s.W < s.T; })) {
        if (holds(25, [&s] { return s.Sw == s.Sx && !is_depressed(); })) {
            step(26, s.B, [] { return Real(1.0); });
        } else {
            step(27, s.B, outside_gutter);
        }
    } else if (holds(28, [&s] { return s.W > s.T; })) {
        step(29, s.B, [] { return Real(0.0); });
    }
    step(30, s.WT, [&s] { return s.W / s.T; });
    step(31, WT, [&s] { return s.WT; });
    step(32, s.Eo, [&s] { return 1.0 - s.B; });
    step(33, FLOWRATIO, [&s] { return s.Eo; });
}

void find_depression_slope() {
    auto& s = sheet;
    under(heading::cross_slope);
    const bool depressed = holds(34, is_depressed);
    if (!depressed) {
        if (holds(35, [&s] { return s.Sw > s.Sx; })) {
            step(36, s.a, [&s] { return s.W * (s.Sw - s.Sx); });
            step(37, s.SdashD, [&s] { return divide(s.a, s.W); });
        } else {
            step(38, s.SdashD, [] { return Real(0.0); });
        }
    } else if (!holds(39, [&s] { return s.Wa <= 0.0 || s.a <= 0.0; })) {
        if (holds(40, [&s] { return s.W > 0.0 && s.Sw > s.Sx; })) {
            step(41, s.SdashD, [&s] { return (s.a + (s.Sw - s.Sx) * s.W) / larger(s.Wa, s.W); });
        } else if (holds(42, [&s] { return s.W == 0.0 || s.Sw == s.Sx; })) {
            step(43, s.SdashD, [&s] { return s.a / s.Wa; });
        }
    }
    step(44, DEPXSLOPE, [&s] { return s.SdashD; });
}

void find_interception_length() {
    auto& s = sheet;
    step(45, s.Se, [&s] { return s.Sx + s.SdashD * s.Eo; });
    step(46, s.Se, [&s] { return rounded(s.Se, "0.0000"); });
    step(47, COMPXSLOPE, [&s] { return s.Se; });
    under(heading::total_interception);
    step(48, s.LT, [&s] {
        return constants::K_L() * power(s.Q, 0.42) * power(s.S, 0.3) * power(1.0 / (s.n * s.Se), 0.6);
    });
    step(49, INTLEN, [&s] { return s.LT; });
}

void find_depth_and_velocity() {
    auto& s = sheet;
    under(heading::depth_and_velocity);
    step(50, s.ag, [&s] { return (s.Sw - s.Sx) * s.W; });
    if (holds(51, [&s] { return s.T > s.W; })) {
        step(52, s.Dc, [&s] { return (s.T * s.Sx + s.ag) * constants::depthFactor(); });
        step(53, s.A, [&s] { return 0.5 * square(s.T) * s.Sx + 0.5 * s.ag * s.W; });
    } else {
        step(54, s.Dc, [&s] { return s.T * s.Sw * constants::depthFactor(); });
        step(55, s.A, [&s] { return 0.5 * square(s.T) * s.Sw; });
    }
    step(56, CURBDEPTH, [&s] { return s.Dc; });
    step(57, s.V, [&s] { return s.Q / s.A; });
    step(58, FLOWVEL, [&s] { return s.V; });
}

void find_efficiency() {
    auto& s = sheet;
    under(heading::interception);
    step(59, s.L, [] { return (1.0 - number_in(GRATEPERCLOG) / 100.0) * number_in(INLETLENGTH); });
    if (holds(60, [&s] { return s.L > s.LT; })) {
        step(61, s.E, [] { return Real(1.0); });
    } else {
        step(62, s.E, [&s] { return 1.0 - power(1.0 - s.L / s.LT, 1.8); });
    }
    step(63, EFFICIENCY, [&s] { return s.E; });
    step(64, s.Qi, [&s] { return s.E * s.Q; });
    step(65, QINT, [&s] { return s.Qi; });
    step(66, QCARRY, [&s] { return s.Q - s.Qi; });
}

}  // namespace

void compute_results() {
    set_gutterFlowConstant();
    set_curbLengthConstant();
    set_depthFactor();
    // The discharge alone outlives a solve: an unreadable one leaves that of the solve before.
    const Real discharge_before = sheet.Q;
    sheet = {};
    sheet.Q.value = discharge_before;

    read_inputs();
    find_spread();
    find_flow_ratio();
    find_depression_slope();
    find_interception_length();
    find_depth_and_velocity();
    find_efficiency();
    format_results();
}

}  // namespace gullymark::engine::CISI_CG_RESULTS
