#include "engine/solvers/GI_SU_RESULTS.h"

#include "engine/constants.h"
#include "engine/headings.h"
#include "engine/hydraulics/approach_spread.h"
#include "engine/hydraulics/inlet_repairs.h"
#include "engine/hydraulics/sump_inlets.h"
#include "engine/results.h"
#include "engine/step.h"
#include "engine/unit_constants.h"
#include "engine/words.h"
#include "platform/outside.h"

namespace gullymark::engine::GI_SU_RESULTS {
namespace {

using enum Column;

struct Sheet : SumpFlows {
    Quantity P{"P", Unit::length, "gross perimeter of the grate"};
    Quantity A{"A", Unit::area, "gross opening area of the grate"};
    Quantity Wg{"Wg", Unit::length, "width of the grate"};
    Quantity W{"W", Unit::length, "gutter width"};
    Quantity S{"S", Unit::slope, "longitudinal slope"};
    Quantity n{"n", Unit::ratio, "Manning's roughness"};
    Quantity Sx{"Sx", Unit::slope, "pavement cross slope"};
    Quantity Sw{"Sw", Unit::slope, "gutter cross slope"};
    Quantity Wa{"Wa", Unit::length, "width of the local depression"};
    Quantity SdashW{"S'w", Unit::slope, "inlet cross slope"};
    Quantity limit{"limit", Unit::length, "allowable spread"};
    Quantity C{"C", Unit::percent, "clogged share of the grate"};
    Quantity Tg{"Tg", Unit::length, "spread of the gutter flow"};
    Quantity Ae{"Ae", Unit::area, "opening area that clogging leaves"};
    Quantity Pe{"Pe", Unit::length, "perimeter that clogging leaves"};
    Quantity weir_depth{"dw", Unit::length, "depth of weir flow"};
    Quantity orifice_depth{"do", Unit::length, "depth of orifice flow"};
    Quantity d{"d", Unit::length, "depth over the grate"};
    Quantity h{"h", Unit::length, "half the drop across the gutter"};
    Quantity di{"di", Unit::length, "depth at the inlet"};
    Quantity de{"de", Unit::length, "depth at the edge of the gutter"};
    Quantity Ti{"Ti", Unit::length, "spread at the inlet"};
};

Sheet sheet;

void read_section() {
    auto& s = sheet;
    under(heading::inputs);
    step(7, s.P, [] { return number_in(GRATEPERI); });
    step(8, s.A, [] { return number_in(GRATEAREA); });
    step(9, s.Wg, [] { return number_in(GRATEWIDTH); });
    step(10, s.W, [] { return number_in(GUTWIDTH); });
    step(11, s.S, [] { return number_in(LONGSLOPE); });
    step(12, s.n, [] { return number_in(MANNINGS); });
    const Reading pavement_slope(PAVXSLOPE);
    step(13, s.Sx, [&] { return pavement_slope; });
    step(14, s.Sw, [] { return number_in(GUTXSLOPE); });
    step(15, s.Wa, [] { return number_in(LOCDEPWIDTH); });
    fill_blank(16, INLETXSLOPE, usual_inlet_slope);
    raise_inlet_slope(18, pavement_slope);
    step(20, s.SdashW, [] { return number_in(INLETXSLOPE); });
    fill_blank(21, GRATEPERCLOG, "0");
    step(23, s.limit, [] { return number_in(ALLOWABLE_SPREAD); });
    step(24, s.C, [] { return number_in(GRATEPERCLOG); });
}

void find_perimeter_and_gutter_spread() {
    auto& s = sheet;
    under(heading::spread);
    step(25, EFFPERI, [&s] { return clogged_perimeter(s.P, number_in(INLETLENGTH), s.C); });
    step(26, s.Tg, [&s] { return approach_spread(s, s.Qg); });
    step(27, GUTTERSPREAD, [&s] { return s.Tg; });
}

bool inputs_are_refused() {
    auto& s = sheet;
    under(heading::check);
    return holds(28, [&s] { return s.P <= 0.0 || s.A <= 0.0 || s.Wg <= 0.0 || s.Sx < 0.0 || s.Sw < s.Sx; });
}

void find_depth() {
    auto& s = sheet;
    under(heading::depth);
    step(29, s.Ae, [&s] { return (1.0 - s.C / 100.0) * s.A; });
    step(30, s.Pe, [] { return number_in(EFFPERI); });
    step(31, s.weir_depth, [&s] { return power(s.Q / (constants::Cw() * s.Pe), 0.6667); });
    step(32, s.orifice_depth,
         [&s] { return square(s.Q / (orifice_coefficient * s.Ae)) / (2.0 * constants::g()); });
    if (holds(33, [&s] { return s.weir_depth > s.orifice_depth; })) {
        step(34, s.d, [&s] { return s.weir_depth; });
        step(35, INLETPERF, [] { return words::weir_flow; });
    } else {
        step(36, s.d, [&s] { return s.orifice_depth; });
        step(37, INLETPERF, [] { return words::orifice_flow; });
    }
}

void find_spread_at_inlet() {
    auto& s = sheet;
    under(heading::spread_and_depth);
    // Only behind the gutter spread, where the combination widens the gutter before it, deliberately.
    if (holds(38, [&s] { return s.W < s.Wg; })) {
        step(39, s.W, [&s] { return s.Wg; });
    }
    if (holds(40, [&s] { return s.SdashW < s.Sw; })) {
        step(41, s.SdashW, [&s] { return s.Sw; });
    }
    step(42, s.h, [&s] { return s.W * s.SdashW / 2.0; });
    step(43, s.di, [&s] { return s.h + s.d; });
    step(44, s.de, [&s] { return s.d - s.h; });
    if (holds(45, [&s] { return s.de < 0.0; })) {
        step(46, s.Ti, [&s] { return s.di / s.SdashW; });
    } else {
        step(47, s.Ti, [&s] { return s.de / s.Sx + s.W; });
    }
    if (holds(48, [&s] { return s.Ti < 0.0; })) {
        step(49, s.Ti, [] { return Real(0.0); });
    }
}

void write_results() {
    auto& s = sheet;
    under(heading::interception_in_sump);
    step(50, OPENSPREAD, [&s] { return s.Ti; });
    step(51, RAREA, [&s] { return s.Ae; });
    step(52, RPERI, [&s] { return s.Pe; });
    if (holds(53, [&s] { return s.Ti > s.Tg; })) {
        step(54, CURBDEPTH, [&s] { return s.Ti * s.Sx * constants::depthFactor(); });
    } else {
        step(55, CURBDEPTH, [&s] { return s.Tg * s.Sx * constants::depthFactor(); });
    }
    step(56, DEPTHATINLET, [&s] { return constants::depthFactor() * s.di; });
    step(57, QINT, [&s] { return s.Q; });
}

}  // namespace

void compute_results() {
    set_gutterFlowConstant();
    set_gravity();
    set_depthFactor();
    unit_constants.weirCoefficient = by_units(3.0, 1.66);
    sheet = {};

    under(heading::flow);
    read_sump_flows(1, sheet);
    read_section();
    find_perimeter_and_gutter_spread();
    if (inputs_are_refused()) {
        platform::tell(invalid_input);
        clear_results();
        return;
    }
    find_depth();
    find_spread_at_inlet();
    write_results();
    format_results();
}

}  // namespace gullymark::engine::GI_SU_RESULTS
