#include "engine/hydraulics/grate_on_grade.h"

#include "engine/hydraulics/approach_spread.h"
#include "engine/hydraulics/inlet_repairs.h"
#include "engine/unit_constants.h"

namespace gullymark::engine {
namespace {

using enum Column;

void find_flow_ratio(GrateOnGrade& s) {
    // From here on the grate stands for a gutter that is not there; the spread has seen the width of 0. The
    // grates of a sump are treated otherwise: both are meant.
    if (holds(23, [&s] { return s.W == 0.0; })) {
        step(24, s.W, [&s] { return s.Weff; });
    }
    if (holds(25, [&s] { return s.W < s.T; })) {
        step(26, s.B, [&s] { return side_flow_share(s.T, s.W, s.Sw, s.Sx); });
    }
    step(27, s.Eo, [&s] { return 1.0 - s.B; });
    step(28, WT, [&s] { return s.W / s.T; });
    step(29, FLOWRATIO, [&s] { return s.Eo; });
}

void find_depression_slope(GrateOnGrade& s) {
    if (holds(30, [&s] { return s.Wa == 0.0 || s.a == 0.0; })) {
        if (holds(31, [&s] { return s.Sw > s.Sx; })) {
            step(32, s.a, [&s] { return s.W * (s.Sw - s.Sx); });
            step(33, s.Spw, [&s] { return s.a / s.W; });
        }
    } else if (holds(34, [&s] { return s.Wa > 0.0 && s.a > 0.0; })) {
        if (holds(35, [&s] { return s.W > 0.0 && s.Sw > s.Sx; })) {
            const auto width = [&s] { return s.Wa >= s.W ? s.Wa : s.W; };
            step(36, s.Spw, [&s, &width] { return (s.a + (s.Sw - s.Sx) * s.W) / width(); });
        } else if (holds(37, [&s] { return s.W == 0.0 || s.Sw == s.Sx; })) {
            step(38, s.Spw, [&s] { return s.a / s.Wa; });
        }
    }
    step(39, DEPXSLOPE, [&s] { return s.Spw; });
    step(40, s.Se, [&s] { return s.Sx + s.Spw * s.Eo; });
}

}  // namespace

void set_constants_of_grate_on_grade() {
    set_gutterFlowConstant();
    set_sideFlowConstant();
    set_curbLengthConstant();
    set_depthFactor();
}

void read_inputs(GrateOnGrade& s) {
    step(1, s.Q, [] { return number_in(TOTAL_DISCHARGE); });
    step(2, s.S, [] { return number_in(LONGSLOPE); });
    step(3, s.n, [] { return number_in(MANNINGS); });
    step(4, s.W, [] { return number_in(GUTWIDTH); });
    step(5, s.Sx, [] { return number_in(PAVXSLOPE); });
    step(6, s.Sw, [] { return number_in(GUTXSLOPE); });
    step(7, s.Wa, [] { return number_in(LOCDEPWIDTH); });
    fill_blank({8, 9}, GRATEPERCLOG, "0");
    step(10, s.C, [] { return number_in(GRATEPERCLOG); });
    step(11, s.Wg, [] { return number_in(GRATEWIDTH); });
    step(12, s.Weff, [&s] { return s.Wg * (1.0 - s.C / 100.0); });
    // A fixed slope, where a curb opening copies one of the record: both are meant.
    fill_blank({13, 14}, INLETXSLOPE, "0.1");
    raise_inlet_slope({15, 16}, [] { return number_in(PAVXSLOPE); });
    step(17, s.SdashW, [] { return number_in(INLETXSLOPE); });
    step(18, s.a, [&s] { return (s.SdashW - s.Sw) * s.W; });
    step(19, s.limit, [] { return number_in(ALLOWABLE_SPREAD); });
}

void find_approach(GrateOnGrade& s) {
    step(21, s.T, [&s] { return approach_spread(s, s.Q); });
    step(22, OPENSPREAD, [&s] { return s.T; });
    find_flow_ratio(s);
    find_depression_slope(s);
}

void find_interception_length(GrateOnGrade& s) {
    step(42, COMPXSLOPE, [&s] { return s.Se; });
    step(43, s.LT, [&s] {
        return unit_constants.curbLengthConstant * power(s.Q, 0.42) * power(s.S, 0.3) *
               power(1.0 / (s.n * s.Se), 0.6);
    });
    step(44, INTLEN, [&s] { return s.LT; });
}

void find_depth_and_velocity(GrateOnGrade& s) {
    step(45, s.d, [&s] { return (s.Sw - s.Sx) * s.W; });
    if (holds(46, [&s] { return s.T > s.W; })) {
        step(47, s.y, [&s] { return (s.T * s.Sx + s.d) * unit_constants.depthFactor; });
        step(48, s.A, [&s] { return square(s.T) / 2.0 * s.Sx + 0.5 * s.d * s.W; });
    } else {
        step(49, s.y, [&s] { return s.T * s.Sw * unit_constants.depthFactor; });
        step(50, s.A, [&s] { return square(s.T) / 2.0 * s.Sw; });
    }
    step(51, CURBDEPTH, [&s] { return s.y; });
    step(52, s.V, [&s] { return s.Q / s.A; });
    step(53, FLOWVEL, [&s] { return s.V; });
}

void find_grate_efficiency(GrateOnGrade& s, Real V) {
    convert_grate_length(61, s.frontal);
    find_frontal_efficiency(s.frontal, V);
    step(62, s.Rs, [&s, V] {
        const Real length = number_in(INLETLENGTH);
        return 1.0 / (1.0 + unit_constants.sideFlowConstant * power(V, 1.8) / (s.Sx * power(length, 2.3)));
    });
    // Without a depression the division faults: the grate keeps the whole of Eo, and a clogged one still
    // intercepts.
    step(63, s.Eg, [&s] { return s.Eo; });
    step(64, s.Eg, [&s] {
        const Real length = grate_length_in_feet(s.frontal);
        return s.Eo * (length * s.Weff) / (length * s.Wa);
    });
    step(65, s.E, [&s] { return s.Eg * s.frontal.Rf + s.Rs * (1.0 - s.Eg); });
    if (holds(66, [&s] { return s.E > 1.0; })) {
        step(67, s.E, [] { return Real(1.0); });
    }
    step(68, EFFICIENCY, [&s] { return s.E; });
}

}  // namespace gullymark::engine
