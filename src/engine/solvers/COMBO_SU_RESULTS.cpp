#include "engine/solvers/COMBO_SU_RESULTS.h"

#include "engine/constants.h"
#include "engine/headings.h"
#include "engine/hydraulics/approach_spread.h"
#include "engine/hydraulics/inlet_repairs.h"
#include "engine/hydraulics/sump_inlets.h"
#include "engine/results.h"
#include "engine/step.h"
#include "engine/unit_constants.h"
#include "engine/words.h"

namespace gullymark::engine::COMBO_SU_RESULTS {
namespace {

using enum Column;

struct Sheet : SumpFlows {
    Quantity L{"L", Unit::length, "length of grate and curb opening"};
    Quantity ht{"ht", Unit::depth, "height of the curb opening as typed"};
    Quantity h{"h", Unit::length, "height of the curb opening"};
    Quantity angle{"angle", Unit::degrees, "angle of an inclined throat"};
    Quantity radians{"radians", Unit::other, "angle of an inclined throat in radians"};
    Throat throat = Throat::none;
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

auto perimeter_that_clogging_leaves() {
    return clogged_perimeter(sheet.P, sheet.L, sheet.C);
}

void read_inlet() {
    auto& s = sheet;
    under(heading::inputs);
    step(7, s.L, [] { return number_in(INLETLENGTH); });
    step(8, s.ht, [] { return number_in(HEIGHTOFCURB); });
    step(9, s.angle, [] { return number_in(THROATANGLE); });
    step(10, s.P, [] { return number_in(GRATEPERI); });
    step(11, s.A, [] { return number_in(GRATEAREA); });
    step(12, s.Wg, [] { return number_in(GRATEWIDTH); });
    fill_blank(13, GRATEPERCLOG, "0");
    step(15, s.C, [] { return number_in(GRATEPERCLOG); });
    step(16, EFFPERI, perimeter_that_clogging_leaves);
}

void read_section() {
    auto& s = sheet;
    step(17, s.W, [] { return number_in(GUTWIDTH); });
    const Reading pavement_slope(PAVXSLOPE);
    step(18, s.Sx, [&] { return pavement_slope; });
    step(19, s.Sw, [] { return number_in(GUTXSLOPE); });
    step(20, s.Wa, [] { return number_in(LOCDEPWIDTH); });
    // Before the gutter spread, where the grate alone widens the gutter behind it, deliberately.
    if (holds(21, [&s] { return s.W < s.Wg; })) {
        step(22, s.W, [&s] { return s.Wg; });
    }
    fill_blank(23, INLETXSLOPE, usual_inlet_slope);
    raise_inlet_slope(25, pavement_slope);
    step(27, s.SdashW, [] { return number_in(INLETXSLOPE); });
    step(28, s.S, [] { return number_in(LONGSLOPE); });
    step(29, s.n, [] { return number_in(MANNINGS); });
    step(30, s.limit, [] { return number_in(ALLOWABLE_SPREAD); });
}

void find_gutter_spread() {
    auto& s = sheet;
    under(heading::spread);
    step(31, s.Tg, [&s] { return approach_spread(s, s.Qg); });
    step(32, GUTTERSPREAD, [&s] { return s.Tg; });
    step(33, EFFPERI, perimeter_that_clogging_leaves);
}

void find_throat() {
    auto& s = sheet;
    under(heading::depth);
    step(34, s.h, [&s] { return s.ht / constants::depthFactor(); });
    s.throat = throat_named(open_inlet.text(THROATYPE));
    if (holds(35, [] { return says(THROATYPE, words::inclined_throat); })) {
        step(36, s.radians, [&s] { return in_radians(s.angle); });
    }
}

auto depth_over_grate_and_opening() {
    const auto& s = sheet;
    return formula::called(
        "sump_depth",
        [&s] {
            return compute_sump_depth({.Q = s.Q,
                                       .A = s.Ae,
                                       .g = unit_constants.gravity,
                                       .B = s.h,
                                       .h = s.h,
                                       .C = s.L,
                                       .throat = s.throat,
                                       .angle = s.radians});
        },
        s.Q, s.Ae, s.h, s.L);
}

void find_depth() {
    auto& s = sheet;
    const formula::Named grateWeirCoefficient("Cg", by_units(3.0F, 1.6F));  // 32-bit by nature
    step(37, s.Ae, [&s] { return (1.0 - s.C / 100.0) * s.A; });
    step(38, s.Pe, [] { return number_in(EFFPERI); });
    if (holds(39, [&s] { return s.C != 100.0 && s.P != 0.0 && s.A != 0.0; })) {
        step(40, s.weir_depth,
             [&s, grateWeirCoefficient] { return power(s.Q / (grateWeirCoefficient * s.Pe), 0.6667); });
        if (holds(41, [&s] { return s.weir_depth > s.h; })) {
            step(42, s.orifice_depth, depth_over_grate_and_opening);
        }
    } else {
        // The shorter exponent belongs to the curb opening, deliberately.
        step(43, s.weir_depth, [&s] { return power(s.Q / (constants::Cw() * s.L), 0.667); });
        step(44, s.orifice_depth,
             [&s] { return square(s.Q / (orifice_coefficient * s.h * s.L)) / (2.0 * constants::g()); });
    }
    if (holds(45, [&s] { return s.weir_depth >= s.orifice_depth; })) {
        step(46, s.d, [&s] { return s.weir_depth; });
    } else {
        step(47, s.d, [&s] { return s.orifice_depth; });
    }
    // Equal depths are orifice flow, though the depth is that of the weir.
    if (holds(48, [&s] { return s.weir_depth > s.orifice_depth; })) {
        step(49, INLETPERF, [] { return words::weir_flow; });
    } else {
        step(50, INLETPERF, [] { return words::orifice_flow; });
    }
}

void find_spread_at_inlet() {
    auto& s = sheet;
    under(heading::spread_and_depth);
    step(51, s.e, [&s] { return s.W * s.SdashW / 2.0; });
    step(52, s.de, [&s] { return s.d - s.e; });
    step(53, s.di, [&s] { return s.e + s.d; });
    // A negative depth at the edge is no case of its own here, unlike the grate alone.
    step(54, s.Ti, [&s] { return s.de / s.Sx + s.W; });
    if (holds(55, [&s] { return s.Ti < 0.0; })) {
        step(56, s.Ti, [] { return Real(0.0); });
    }
}

void write_results() {
    auto& s = sheet;
    under(heading::interception_in_sump);
    step(57, DEPTHATINLET, [&s] { return s.di * constants::depthFactor(); });
    step(58, OPENSPREAD, [&s] { return s.Ti; });
    step(59, RAREA, [&s] { return s.Ae; });
    step(60, RPERI, [&s] { return s.Pe; });
    if (holds(61, [&s] { return s.Ti > s.Tg; })) {
        step(62, CURBDEPTH, [&s] { return s.Ti * s.Sx * constants::depthFactor(); });
    } else {
        step(63, CURBDEPTH, [&s] { return s.Tg * s.Sx * constants::depthFactor(); });
    }
    step(64, QINT, [&s] { return s.Q; });
}

}  // namespace

void compute_results() {
    set_gutterFlowConstant();
    set_gravity();
    set_depthFactor();
    unit_constants.weirCoefficient = by_units(2.3, 1.25);
    sheet = {};

    under(heading::flow);
    read_sump_flows(1, sheet);
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
