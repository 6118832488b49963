#include "engine/solvers/GI_CG_RESULTS.h"

#include "engine/hydraulics/grate_on_grade.h"
#include "engine/results.h"
#include "engine/step.h"

namespace gullymark::engine::GI_CG_RESULTS {
namespace {

using enum Column;

struct Sheet {
    GrateOnGrade grate;
    Quantity Qi{"Qi", Unit::discharge, "intercepted flow"};
    Quantity Qc{"Qc", Unit::discharge, "flow that bypasses the inlet"};
};

Sheet sheet;

void find_interception() {
    auto& s = sheet;
    step(71, s.Qi, [&s] { return s.grate.E * s.grate.Q; });
    step(72, QINT, [&s] { return s.Qi; });
    step(73, s.Qc, [&s] { return s.grate.Q - s.Qi; });
    step(74, QCARRY, [&s] { return s.Qc; });
}

}  // namespace

void compute_results() {
    set_constants_of_grate_on_grade();
    sheet = {};
    auto& grate = sheet.grate;

    read_inputs(grate);
    find_approach(grate);
    find_interception_length(grate);
    find_depth_and_velocity(grate);
    find_grate_efficiency(grate, grate.V);
    find_interception();
    format_results();
}

}  // namespace gullymark::engine::GI_CG_RESULTS
