#include "engine/solvers/SI_SU_RESULTS.h"

#include "engine/constants.h"
#include "engine/headings.h"
#include "engine/hydraulics/approach_spread.h"
#include "engine/hydraulics/inlet_repairs.h"
#include "engine/hydraulics/sump_inlets.h"
#include "engine/results.h"
#include "engine/step.h"
#include "engine/unit_constants.h"
#include "engine/words.h"

namespace gullymark::engine::SI_SU_RESULTS {
namespace {

using enum Column;

struct Sheet : SumpFlows {
    Quantity wt{"wt", Unit::depth, "width of the slot as typed"};
    Quantity w{"w", Unit::length, "width of the slot"};
    Quantity W{"W", Unit::length, "gutter width"};
    Quantity Sx{"Sx", Unit::slope, "pavement cross slope"};
    Quantity Sw{"Sw", Unit::slope, "gutter cross slope"};
    Quantity Wa{"Wa", Unit::length, "width of the local depression"};
    Quantity SdashW{"S'w", Unit::slope, "inlet cross slope"};
    Quantity a{"a", Unit::length, "depression at the curb"};
    Quantity S{"S", Unit::slope, "longitudinal slope"};
    Quantity n{"n", Unit::ratio, "Manning's roughness"};
    Quantity limit{"limit", Unit::length, "allowable spread"};
    Quantity T{"T", Unit::length, "spread of the gutter flow"};
    Quantity L{"L", Unit::length, "length that clogging leaves"};
    Quantity weir_depth{"dw", Unit::length, "depth of weir flow"};
    Quantity orifice_depth{"do", Unit::length, "depth of orifice flow"};
    Quantity D{"D", Unit::length, "depth over the slot"};
    Quantity Dt{"Dt", Unit::length, "total depth at the inlet"};
    Quantity To{"To", Unit::length, "spread at the opening"};
};

Sheet sheet;

constexpr double slot_orifice_coefficient = 0.8;

/// A slot is a weir below the one depth and an orifice above the other, in ft and m; FHWA HEC-22.
double slotWeirDepth() {
    return by_units(0.2, 0.06);
}
double slotOrificeDepth() {
    return by_units(0.4, 0.12);
}

void read_inputs() {
    auto& s = sheet;
    under(heading::flow);
    read_sump_flows(1, s);
    under(heading::inputs);
    step(7, s.wt, [] { return number_in(SLOTWIDTH); });
    step(8, s.W, [] { return number_in(GUTWIDTH); });
    step(9, s.Sx, [] { return number_in(PAVXSLOPE); });
    step(10, s.Sw, [] { return number_in(GUTXSLOPE); });
    step(11, s.Wa, [] { return number_in(LOCDEPWIDTH); });
    // A fixed slope in both unit systems, where a curb opening copies one of the record; the difference is deliberate.
    fill_blank(12, INLETXSLOPE, usual_inlet_slope);
    raise_inlet_slope(14, s.Sx);
    step(16, s.SdashW, [] { return number_in(INLETXSLOPE); });
    fill_blank(17, GRATEPERCLOG, "0");
    step(19, s.a, [&s] { return (s.SdashW - s.Sw) * s.W; });
    step(20, s.S, [] { return number_in(LONGSLOPE); });
    step(21, s.n, [] { return number_in(MANNINGS); });
    step(22, s.limit, [] { return number_in(ALLOWABLE_SPREAD); });
}

void find_gutter_spread() {
    auto& s = sheet;
    under(heading::spread);
    step(23, s.T, [&s] { return approach_spread(s, s.Qg); });
    step(24, GUTTERSPREAD, [&s] { return s.T; });
    // Both slopes over their own widths, unlike the drop below the pavement slope that is used on grade.
    if (holds(25, [&s] { return s.T > s.W; })) {
        step(26, CURBDEPTH, [&s] { return ((s.T - s.W) * s.Sx + s.W * s.Sw) * constants::depthFactor(); });
    } else {
        step(27, CURBDEPTH, [&s] { return s.T * s.Sw * constants::depthFactor(); });
    }
}

void find_depths() {
    auto& s = sheet;
    under(heading::depth);
    step(28, s.w, [&s] { return s.wt / constants::depthFactor(); });
    step(29, s.L, [] { return number_in(INLETLENGTH) * (1.0 - number_in(GRATEPERCLOG) / 100.0); });
    step(30, s.weir_depth, [&s] { return power(s.Q / (constants::Cw() * s.L), 0.667); });
    step(31, s.orifice_depth,
         [&s] { return square(s.Q / (slot_orifice_coefficient * s.L * s.w)) / (2.0 * constants::g()); });
}

void choose_regime() {
    auto& s = sheet;
    under(heading::regime);
    if (holds(32, [&s] { return s.weir_depth < slotWeirDepth(); })) {
        step(33, s.D, [&s] { return s.weir_depth; });
        step(34, INLETPERF, [] { return words::weir_flow; });
    } else if (holds(35, [&s] { return s.weir_depth > slotOrificeDepth(); })) {
        step(36, s.D, [&s] { return s.orifice_depth; });
        step(37, INLETPERF, [] { return words::orifice_flow; });
    } else {
        step(38, s.D, [&s] { return (s.weir_depth + s.orifice_depth) / 2.0; });
        // With a small f, where the curb opening writes "Transition Flow".
        step(39, INLETPERF, [] { return words::slot_transition_flow; });
    }
}

void write_results() {
    auto& s = sheet;
    under(heading::spread_and_depth);
    step(40, s.Dt, [&s] { return s.D + s.W * (s.Sw - s.Sx) + s.a; });
    step(41, s.To, [&s] { return s.D / s.Sx; });
    step(42, OPENSPREAD, [&s] { return s.To; });
    step(43, EFFLEN, [&s] { return s.L; });
    step(44, DEPTHATINLET, [&s] { return constants::depthFactor() * s.Dt; });
    step(45, QINT, [&s] { return s.Q; });
}

}  // namespace

void compute_results() {
    unit_constants.weirCoefficient = by_units(2.48, 1.4);
    set_gravity();
    set_depthFactor();
    set_gutterFlowConstant();
    sheet = {};

    read_inputs();
    find_gutter_spread();
    find_depths();
    choose_regime();
    write_results();
    format_results();
}

}  // namespace gullymark::engine::SI_SU_RESULTS
