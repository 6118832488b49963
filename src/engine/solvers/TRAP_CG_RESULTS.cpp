#include "engine/solvers/TRAP_CG_RESULTS.h"

#include "engine/constants.h"
#include "engine/headings.h"
#include "engine/hydraulics/Common_Libraries.h"
#include "engine/hydraulics/grate_types.h"
#include "engine/results.h"
#include "engine/step.h"
#include "engine/unit_constants.h"

namespace gullymark::engine::TRAP_CG_RESULTS {
namespace {

using enum Column;

struct Sheet {
    Quantity Q{"Q", Unit::discharge, "flow in the ditch"};
    Quantity S{"S", Unit::slope, "longitudinal slope"};
    Quantity n{"n", Unit::ratio, "Manning's roughness"};
    Quantity B{"B", Unit::length, "bottom width of the ditch"};
    Quantity zl{"zl", Unit::ratio, "left side slope"};
    Quantity zr{"zr", Unit::ratio, "right side slope"};
    Quantity Wg{"Wg", Unit::length, "width of the grate"};
    Quantity y{"y", Unit::length, "depth of the flow"};
    Quantity Eo{"Eo", Unit::ratio, "share of the flow over the grate's width"};
    Quantity A{"A", Unit::area, "area of the flow"};
    Quantity V{"V", Unit::velocity, "velocity of the flow"};
    Quantity Pw{"Pw", Unit::length, "wetted perimeter"};
    Quantity R{"R", Unit::length, "hydraulic radius"};
    FrontalFlow frontal;
    Quantity Ss{"Ss", Unit::slope, "slope for side flow"};
    Quantity Rs{"Rs", Unit::ratio, "efficiency for side flow"};
    Quantity E{"E", Unit::ratio, "efficiency"};
    Quantity Qi{"Qi", Unit::discharge, "intercepted flow"};
    Quantity Qc{"Qc", Unit::discharge, "flow that bypasses the inlet"};
    Quantity Pr{"Pr", Unit::length, "length of the grate's rim"};
};

Sheet sheet;

// ft in either system of units; it goes nowhere.
constexpr double X_grate_width = 4.0;

// The slope for side flow of a grate that leaves bottom beside it, and of one that an upright side adjoins.
constexpr double side_slope_on_bottom = 0.01;
constexpr double side_slope_upright = 0.99;

void find_depth() {
    auto& s = sheet;
    under(heading::inputs);
    step(1, s.Q, [] { return number_in(TOTAL_DISCHARGE); });
    step(2, s.S, [] { return number_in(LONGSLOPE); });
    step(3, s.n, [] { return number_in(MANNINGS); });
    step(4, s.B, [] { return number_in(GUTWIDTH); });
    step(5, s.zl, [] { return number_in(LSCOPERATIO); });
    step(6, s.zr, [] { return number_in(RSCOPERATIO); });
    step(7, s.Wg, [] { return number_in(GRATEWIDTH); });
    under(heading::ditch_flow);
    step(8, s.y, [&s] {
        return formula::called(
            "ditch_depth",
            [&s] {
                return compute_ditch_depth(unit_constants.manningConstant, s.Q, s.S, s.n, s.B, s.zl, s.zr);
            },
            s.Q, s.S, s.n, s.B, s.zl, s.zr);
    });
    step(9, CURBDEPTH, [&s] { return constants::depthFactor() * s.y; });
}

/// The two standard inlets that are shown with the depth of the ditch and nothing else.
bool has_depth_alone() {
    const bool alone = holds(
        10, [] { return says(INLET_SUBTYPE, "X - DI Grate") || says(INLET_SUBTYPE, "X - Welded Steel"); });
    if (alone) {
        step(11, sheet.Wg, [] { return Real(X_grate_width); });
    }
    return alone;
}

void find_flow_section() {
    auto& s = sheet;
    under(heading::flow_ratio);
    step(12, s.Eo, [&s] { return s.Wg / ((s.zl + s.zr) * s.y / 2.0 + s.B); });
    step(13, FLOWRATIO, [&s] { return s.Eo; });
    under(heading::depth_and_velocity);
    step(14, s.A, [&s] { return s.y * s.B + square(s.y) * s.zl / 2.0 + square(s.y) * s.zr / 2.0; });
    step(15, FLOWAREA, [&s] { return s.A; });
    step(16, s.V, [&s] { return s.Q / s.A; });
    step(17, FLOWVEL, [&s] { return s.V; });
    step(18, s.Pw, [&s] {
        return s.B + square_root(square(s.zl * s.y) + square(s.y)) +
               square_root(square(s.zr * s.y) + square(s.y));
    });
    step(19, WETPERI, [&s] { return s.Pw; });
    step(20, s.R, [&s] { return s.A / s.Pw; });
    step(21, HYDRAD, [&s] { return s.R; });
}

void find_side_slope() {
    auto& s = sheet;
    if (holds(36, [&s] { return s.Wg < s.B; })) {
        step(37, s.Ss, [] { return Real(side_slope_on_bottom); });
    } else if (holds(38, [&s] { return s.zl != 0.0 && s.zr != 0.0; })) {
        step(39, s.Ss, [&s] { return 1.0 / ((s.zl + s.zr) / 2.0); });
    } else {
        step(40, s.Ss, [] { return Real(side_slope_upright); });
    }
}

void find_efficiency() {
    auto& s = sheet;
    under(heading::efficiency);
    read_grate_length(22, s.frontal);
    find_frontal_efficiency(23, s.frontal, s.V);
    find_side_slope();
    step(41, FFLOWEFF, [&s] { return s.frontal.Rf; });
    step(42, s.Rs, [&s] {
        const auto& length = s.frontal.length;
        return 1.0 / (constants::K_s() * power(s.V, 1.8) / (power(length, 2.3) * s.Ss) + 1.0);
    });
    step(43, SFLOWEFF, [&s] { return s.Rs; });
    step(44, s.E, [&s] { return s.Eo * s.frontal.Rf + (1.0 - s.Eo) * s.Rs; });
    if (holds(45, [&s] { return s.E > 1.0; })) {
        step(46, s.E, [] { return Real(1.0); });
    }
    step(47, EFFICIENCY, [&s] { return s.E; });
}

void find_interception() {
    auto& s = sheet;
    under(heading::interception);
    step(48, s.Qi, [&s] { return s.E * s.Q; });
    step(49, QINT, [&s] { return s.Qi; });
    step(50, s.Qc, [&s] { return s.Q - s.Qi; });
    step(51, QCARRY, [&s] { return s.Qc; });
    under(heading::berm);
    step(52, s.Pr, [&s] { return 2.0 * (s.frontal.length + s.Wg); });
    // In ft or m: the one depth that is not turned into in or mm.
    step(53, DSBH, [&s] { return power(s.Q / (constants::Cw() * s.Pr), 0.67); });
}

}  // namespace

void compute_results() {
    set_manningConstant();
    set_sideFlowConstant();
    set_depthFactor();
    set_gutterFlowConstant();
    unit_constants.weirCoefficient = by_units(3.0, 1.66);
    sheet = {};

    find_depth();
    if (!has_depth_alone()) {
        find_flow_section();
        find_efficiency();
        find_interception();
    }
    format_results();
}

}  // namespace gullymark::engine::TRAP_CG_RESULTS
