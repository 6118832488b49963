#include "engine/hydraulics/grate_on_grade.h"
#include "engine/constants.h"

#include "engine/headings.h"
#include "engine/hydraulics/approach_spread.h"
#include "engine/hydraulics/inlet_repairs.h"
#include "engine/unit_constants.h"

namespace gullymark::engine {
namespace {

using enum Column;

void find_flow_ratio(int first, GrateOnGrade& s) {
    under(heading::flow_ratio);
    // From here on the grate stands for a gutter that is not there; the spread has seen the width of 0. The
    // grates of a sump are treated otherwise, deliberately.
    if (holds(first, [&s] { return s.W == 0.0; })) {
        step(first + 1, s.W, [&s] { return s.Weff; });
    }
    if (holds(first + 2, [&s] { return s.W < s.T; })) {
        step(first + 3, s.B, [&s] { return side_flow_share(s.T, s.W, s.Sw, s.Sx); });
    }
    step(first + 4, s.Eo, [&s] { return 1.0 - s.B; });
    step(first + 5, WT, [&s] { return s.W / s.T; });
    step(first + 6, FLOWRATIO, [&s] { return s.Eo; });
}

void find_depression_slope(int first, GrateOnGrade& s) {
    under(heading::cross_slope);
    if (holds(first, [&s] { return s.Wa == 0.0 || s.a == 0.0; })) {
        if (holds(first + 1, [&s] { return s.Sw > s.Sx; })) {
            step(first + 2, s.a, [&s] { return s.W * (s.Sw - s.Sx); });
            step(first + 3, s.Spw, [&s] { return s.a / s.W; });
        }
    } else if (holds(first + 4, [&s] { return s.Wa > 0.0 && s.a > 0.0; })) {
        if (holds(first + 5, [&s] { return s.W > 0.0 && s.Sw > s.Sx; })) {
            step(first + 6, s.Spw, [&s] { return (s.a + (s.Sw - s.Sx) * s.W) / larger(s.Wa, s.W); });
        } else if (holds(first + 7, [&s] { return s.W == 0.0 || s.Sw == s.Sx; })) {
            step(first + 8, s.Spw, [&s] { return s.a / s.Wa; });
        }
    }
    step(first + 9, DEPXSLOPE, [&s] { return s.Spw; });
    step(first + 10, s.Se, [&s] { return s.Sx + s.Spw * s.Eo; });
}

}  // namespace

void set_constants_of_grate_on_grade() {
    set_gutterFlowConstant();
    set_sideFlowConstant();
    set_curbLengthConstant();
    set_depthFactor();
}

void read_inputs(int first, GrateOnGrade& s) {
    under(heading::inputs);
    step(first, s.Q, [] { return number_in(TOTAL_DISCHARGE); });
    step(first + 1, s.S, [] { return number_in(LONGSLOPE); });
    step(first + 2, s.n, [] { return number_in(MANNINGS); });
    step(first + 3, s.W, [] { return number_in(GUTWIDTH); });
    const Reading pavement_slope(PAVXSLOPE);
    step(first + 4, s.Sx, [&] { return pavement_slope; });
    step(first + 5, s.Sw, [] { return number_in(GUTXSLOPE); });
    step(first + 6, s.Wa, [] { return number_in(LOCDEPWIDTH); });
    fill_blank(first + 7, GRATEPERCLOG, "0");
    step(first + 9, s.C, [] { return number_in(GRATEPERCLOG); });
    step(first + 10, s.Wg, [] { return number_in(GRATEWIDTH); });
    step(first + 11, s.Weff, [&s] { return s.Wg * (1.0 - s.C / 100.0); });
    // A fixed slope, where a curb opening copies one of the record; the difference is deliberate.
    fill_blank(first + 12, INLETXSLOPE, usual_inlet_slope);
    raise_inlet_slope(first + 14, pavement_slope);
    step(first + 16, s.SdashW, [] { return number_in(INLETXSLOPE); });
    step(first + 17, s.a, [&s] { return (s.SdashW - s.Sw) * s.W; });
    step(first + 18, s.limit, [] { return number_in(ALLOWABLE_SPREAD); });
}

void find_approach(int first, GrateOnGrade& s) {
    under(heading::spread);
    step(first, s.T, [&s] { return approach_spread(s, s.Q); });
    step(first + 1, OPENSPREAD, [&s] { return s.T; });
    find_flow_ratio(first + 2, s);
    find_depression_slope(first + 9, s);
}

void find_interception_length(int first, GrateOnGrade& s) {
    under(heading::total_interception);
    step(first, COMPXSLOPE, [&s] { return s.Se; });
    step(first + 1, s.LT, [&s] {
        return constants::K_L() * power(s.Q, 0.42) * power(s.S, 0.3) * power(1.0 / (s.n * s.Se), 0.6);
    });
    step(first + 2, INTLEN, [&s] { return s.LT; });
}

void find_depth_and_velocity(int first, GrateOnGrade& s) {
    under(heading::depth_and_velocity);
    step(first, s.d, [&s] { return (s.Sw - s.Sx) * s.W; });
    if (holds(first + 1, [&s] { return s.T > s.W; })) {
        step(first + 2, s.y, [&s] { return (s.T * s.Sx + s.d) * constants::depthFactor(); });
        step(first + 3, s.A, [&s] { return square(s.T) / 2.0 * s.Sx + 0.5 * s.d * s.W; });
    } else {
        step(first + 4, s.y, [&s] { return s.T * s.Sw * constants::depthFactor(); });
        step(first + 5, s.A, [&s] { return square(s.T) / 2.0 * s.Sw; });
    }
    step(first + 6, CURBDEPTH, [&s] { return s.y; });
    step(first + 7, s.V, [&s] { return s.Q / s.A; });
    step(first + 8, FLOWVEL, [&s] { return s.V; });
}

void find_grate_efficiency(int first, GrateOnGrade& s, const Quantity& V) {
    under(heading::efficiency);
    read_grate_length(first, s.frontal);
    find_frontal_efficiency(first + 1, s.frontal, V);
    step(first + 14, s.Rs, [&s, &V] {
        const auto& length = s.frontal.length;
        return 1.0 / (1.0 + constants::K_s() * power(V, 1.8) / (s.Sx * power(length, 2.3)));
    });
    // Without a depression the division faults: the grate keeps the whole of Eo, and a clogged one still
    // intercepts.
    step(first + 15, s.Eg, [&s] { return s.Eo; });
    step(first + 16, s.Eg, [&s] {
        const auto length = grate_length_in_feet(s.frontal);
        return divide(s.Eo * (length * s.Weff), length * s.Wa);
    });
    step(first + 17, s.E, [&s] { return s.Eg * s.frontal.Rf + s.Rs * (1.0 - s.Eg); });
    if (holds(first + 18, [&s] { return s.E > 1.0; })) {
        step(first + 19, s.E, [] { return Real(1.0); });
    }
    step(first + 20, EFFICIENCY, [&s] { return s.E; });
}

}  // namespace gullymark::engine
