#include "engine/solvers/GI_CG_RESULTS.h"

#include "engine/headings.h"
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
    under(heading::interception);
    step(73, s.Qi, [&s] { return s.grate.E * s.grate.Q; });
    step(74, QINT, [&s] { return s.Qi; });
    step(75, s.Qc, [&s] { return s.grate.Q - s.Qi; });
    step(76, QCARRY, [&s] { return s.Qc; });
}

}  // namespace

void compute_results() {
    set_constants_of_grate_on_grade();
    sheet = {};
    auto& grate = sheet.grate;

    read_inputs(1, grate);
    find_approach(20, grate);
    find_interception_length(40, grate);
    find_depth_and_velocity(43, grate);
    find_grate_efficiency(52, grate, grate.V);
    find_interception();
    format_results();
}

}  // namespace gullymark::engine::GI_CG_RESULTS
