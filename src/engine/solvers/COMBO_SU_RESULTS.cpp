#include "engine/solvers/COMBO_SU_RESULTS.h"

#include "engine/hydraulics/approach_spread.h"
#include "engine/hydraulics/inlet_repairs.h"
#include "engine/results.h"
#include "engine/step.h"
#include "engine/unit_constants.h"
#include "platform/number_text.h"

namespace gullymark::engine::COMBO_SU_RESULTS {
namespace {

using enum Column;

struct Sheet {
    Quantity Q{"Q", Unit::discharge, "flow that the inlet must take"};
    Quantity Ql{"Ql", Unit::discharge, "flow of the left side"};
    Quantity Qr{"Qr", Unit::discharge, "flow of the right side"};
    Quantity Qg{"Qg", Unit::discharge, "flow of the heavier side"};
    Quantity L{"L", Unit::length, "length of grate and curb opening"};
    Quantity h{"h", Unit::other, "height of the curb opening, read in in or mm, used in ft or m"};
    Quantity angle{"angle", Unit::other, "angle of an inclined throat, read in degrees, used in radians"};
    Quantity P{"P", Unit::length, "gross perimeter of the grate"};
    Quantity A{"A", Unit::area, "gross opening area of the grate"};
    Quantity Wg{"Wg", Unit::length, "width of the grate"};
    Quantity C{"C", Unit::percent, "clogged share of the grate"};
    Quantity W{"W", Unit::length, "gutter width, at least that of the grate"};
    Quantity Sx{"Sx", Unit::slope, "pavement cross slope"};
    Quantity Sw{"Sw", Unit::slope, "gutter cross slope"};
    Quantity Wa{"Wa", Unit::length, "width of the local depression"};
    Quantity SdashW{"S'w", Unit::slope, "inlet cross slope"};
    Quantity S{"S", Unit::slope, "longitudinal slope"};
    Quantity n{"n", Unit::ratio, "Manning's roughness"};
    Quantity limit{"limit", Unit::length, "allowable spread"};
    Quantity Tg{"Tg", Unit::length, "spread of the gutter flow"};
    Quantity throat{"throat", Unit::ratio, "1 horizontal, 2 inclined, 3 vertical, 0 unknown"};
    Quantity Ae{"Ae", Unit::area, "opening area that clogging leaves"};
    Quantity Pe{"Pe", Unit::length, "perimeter that clogging leaves"};
    Quantity weir_depth{"dw", Unit::length, "depth of weir flow"};
    Quantity orifice_depth{"do", Unit::length, "depth of orifice flow"};
    Quantity d{"d", Unit::length, "depth over the inlet"};
    Quantity e{"e", Unit::length, "half the drop across the gutter"};
    Quantity de{"de", Unit::length, "depth at the edge of the gutter"};
    Quantity di{"di", Unit::length, "depth at the inlet"};
    Quantity Ti{"Ti", Unit::length, "spread at the inlet"};
};

Sheet sheet;

std::string perimeter_that_clogging_leaves() {
    const auto& s = sheet;
    const Real perimeter = s.L + (s.P - s.L) * (1.0 - s.C / 100.0);
    return platform::format_number(perimeter.number(), "0.000");
}

void read_flows() {
    auto& s = sheet;
    step(1, s.Q, [] { return number_in(TOTAL_DISCHARGE); });
    step(2, s.Ql, [] { return number_in(CARRYOVER1) + number_in(DISCHARGE1); });
    step(3, s.Qr, [] { return number_in(CARRYOVER2) + number_in(DISCHARGE2); });
    if (holds(4, [&s] { return s.Ql >= s.Qr; })) {
        step(5, s.Qg, [&s] { return s.Ql; });
    } else {
        step(6, s.Qg, [&s] { return s.Qr; });
    }
}

void read_inlet() {
    auto& s = sheet;
    step(7, s.L, [] { return number_in(INLETLENGTH); });
    step(8, s.h, [] { return number_in(HEIGHTOFCURB); });
    step(9, s.angle, [] { return number_in(THROATANGLE); });
    step(10, s.P, [] { return number_in(GRATEPERI); });
    step(11, s.A, [] { return number_in(GRATEAREA); });
    step(12, s.Wg, [] { return number_in(GRATEWIDTH); });
    fill_blank({13, 14}, GRATEPERCLOG, "0");
    step(15, s.C, [] { return number_in(GRATEPERCLOG); });
    step(16, EFFPERI, perimeter_that_clogging_leaves);
}

void read_section() {
    auto& s = sheet;
    step(17, s.W, [] { return number_in(GUTWIDTH); });
    step(18, s.Sx, [] { return number_in(PAVXSLOPE); });
    step(19, s.Sw, [] { return number_in(GUTXSLOPE); });
    step(20, s.Wa, [] { return number_in(LOCDEPWIDTH); });
    // Before the gutter spread, where the grate alone widens the gutter behind it: both are meant.
    if (holds(21, [&s] { return s.W < s.Wg; })) {
        step(22, s.W, [&s] { return s.Wg; });
    }
    fill_blank({23, 24}, INLETXSLOPE, "0.1");
    raise_inlet_slope({25, 26}, [] { return number_in(PAVXSLOPE); });
    step(27, s.SdashW, [] { return number_in(INLETXSLOPE); });
    step(28, s.S, [] { return number_in(LONGSLOPE); });
    step(29, s.n, [] { return number_in(MANNINGS); });
    step(30, s.limit, [] { return number_in(ALLOWABLE_SPREAD); });
}

void find_gutter_spread() {
    auto& s = sheet;
    step(31, s.Tg, [&s] { return approach_spread(s, s.Qg); });
    step(32, GUTTERSPREAD, [&s] { return s.Tg; });
    step(33, EFFPERI, perimeter_that_clogging_leaves);
}

void find_throat() {
    auto& s = sheet;
    const auto throat_is = [](std::string_view kind) { return open_inlet.text(THROATYPE) == kind; };
    step(34, s.h, [&s] { return s.h / unit_constants.depthFactor; });
    if (holds(35, [&throat_is] { return throat_is("Horizontal"); })) {
        step(36, s.throat, [] { return Real(1.0); });
    } else if (holds(37, [&throat_is] { return throat_is("Inclined"); })) {
        step(38, s.throat, [] { return Real(2.0); });
        step(39, s.angle, [&s] { return s.angle * 3.14159265358979 / 180.0; });
    } else if (holds(40, [&throat_is] { return throat_is("Vertical"); })) {
        step(41, s.throat, [] { return Real(3.0); });
    }
}

Real depth_over_grate_and_opening() {
    const auto& s = sheet;
    return compute_sump_depth({.Q = s.Q,
                               .A = s.Ae,
                               .g = unit_constants.gravity,
                               .B = s.h,
                               .h = s.h,
                               .C = s.L,
                               .throat = static_cast<Throat>(static_cast<int>(s.throat.value.number())),
                               .angle = s.angle});
}

void find_depth() {
    auto& s = sheet;
    const Real grateWeirCoefficient = by_units(3.0F, 1.6F);  // 32-bit by nature
    step(42, s.Ae, [&s] { return (1.0 - s.C / 100.0) * s.A; });
    step(43, s.Pe, [] { return number_in(EFFPERI); });
    if (holds(44, [&s] { return s.C != 100.0 && s.P != 0.0 && s.A != 0.0; })) {
        step(45, s.weir_depth,
             [&s, grateWeirCoefficient] { return power(s.Q / (grateWeirCoefficient * s.Pe), 0.6667); });
        if (holds(46, [&s] { return s.weir_depth > s.h; })) {
            step(47, s.orifice_depth, depth_over_grate_and_opening);
        }
    } else {
        // The shorter exponent belongs to the curb opening: both are meant.
        step(48, s.weir_depth, [&s] { return power(s.Q / (unit_constants.weirCoefficient * s.L), 0.667); });
        step(49, s.orifice_depth,
             [&s] { return square(s.Q / (0.67 * s.h * s.L)) / (2.0 * Real(unit_constants.gravity)); });
    }
    if (holds(50, [&s] { return s.weir_depth >= s.orifice_depth; })) {
        step(51, s.d, [&s] { return s.weir_depth; });
    } else {
        step(52, s.d, [&s] { return s.orifice_depth; });
    }
    // Equal depths are orifice flow, though the depth is that of the weir.
    if (holds(53, [&s] { return s.weir_depth > s.orifice_depth; })) {
        step(54, INLETPERF, [] { return std::string_view("Weir Flow"); });
    } else {
        step(55, INLETPERF, [] { return std::string_view("Orifice Flow"); });
    }
}

void find_spread_at_inlet() {
    auto& s = sheet;
    step(56, s.e, [&s] { return s.W * s.SdashW / 2.0; });
    step(57, s.de, [&s] { return s.d - s.e; });
    step(58, s.di, [&s] { return s.e + s.d; });
    // A negative depth at the edge is no case of its own here, unlike the grate alone.
    step(59, s.Ti, [&s] { return s.de / s.Sx + s.W; });
    if (holds(60, [&s] { return s.Ti < 0.0; })) {
        step(61, s.Ti, [] { return Real(0.0); });
    }
}

void write_results() {
    auto& s = sheet;
    step(62, DEPTHATINLET, [&s] { return s.di * unit_constants.depthFactor; });
    step(63, OPENSPREAD, [&s] { return s.Ti; });
    step(64, RAREA, [&s] { return s.Ae; });
    step(65, RPERI, [&s] { return s.Pe; });
    if (holds(66, [&s] { return s.Ti > s.Tg; })) {
        step(67, CURBDEPTH, [&s] { return s.Ti * s.Sx * unit_constants.depthFactor; });
    } else {
        step(68, CURBDEPTH, [&s] { return s.Tg * s.Sx * unit_constants.depthFactor; });
    }
    step(69, QINT, [&s] { return s.Q; });
}

}  // namespace

void compute_results() {
    set_gutterFlowConstant();
    set_gravity();
    set_depthFactor();
    unit_constants.weirCoefficient = by_units(2.3, 1.25);
    sheet = {};

    read_flows();
    read_inlet();
    read_section();
    find_gutter_spread();
    find_throat();
    find_depth();
    find_spread_at_inlet();
    write_results();
    format_results();
}

}  // namespace gullymark::engine::COMBO_SU_RESULTS
