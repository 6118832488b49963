#include "engine/solvers/COMBO_CG_RESULTS.h"

#include "engine/headings.h"
#include "engine/hydraulics/grate_on_grade.h"
#include "engine/hydraulics/inlet_repairs.h"
#include "engine/results.h"
#include "engine/step.h"
#include "platform/outside.h"

namespace gullymark::engine::COMBO_CG_RESULTS {
namespace {

using enum Column;

struct Sheet {
    GrateOnGrade grate;
    Quantity Ec{"Ec", Unit::ratio, "efficiency of the curb opening"};
    Quantity Qic{"Qic", Unit::discharge, "flow intercepted by the curb opening"};
    Quantity Qr{"Qr", Unit::discharge, "flow left to the grate"};
    Quantity Vr{"Vr", Unit::velocity, "velocity of the flow left to the grate"};
    Quantity Qig{"Qig", Unit::discharge, "flow intercepted by the grate"};
    Quantity Qi{"Qi", Unit::discharge, "intercepted flow"};
    Quantity Qc{"Qc", Unit::discharge, "flow that bypasses the inlet"};
};

Sheet sheet;

bool inputs_are_refused() {
    under(heading::check);
    const auto& grate = sheet.grate;
    return holds(
        20, [&grate] { return grate.S <= 0.0 || grate.n <= 0.0 || grate.Sx < 0.0 || grate.Sw < grate.Sx; });
}

void round_composite_slope() {
    // A grate alone goes on with all digits, deliberately.
    auto& Se = sheet.grate.Se;
    step(41, Se, [&Se] { return rounded(Se, "0.0000"); });
}

void find_share_of_curb() {
    auto& s = sheet;
    under(heading::curb_interception);
    const Reading length(OPENLEN_GRATE);
    if (holds(54, [&s, length] { return length > s.grate.LT; })) {
        step(55, s.Ec, [] { return Real(1.0); });
    } else {
        step(56, s.Ec, [&s, length] { return 1.0 - power(1.0 - length / s.grate.LT, 1.8); });
    }
    step(57, s.Qic, [&s] { return s.Ec * s.grate.Q; });
    step(58, QINTCURB, [&s] { return s.Qic; });
    step(59, s.Qr, [&s] { return s.grate.Q - s.Qic; });
    step(60, s.Vr, [&s] { return s.Qr / s.grate.A; });
}

void find_interception() {
    auto& s = sheet;
    under(heading::interception);
    step(82, s.Qig,
         [&s] { return s.Qr * (s.grate.frontal.Rf * s.grate.Eg + s.grate.Rs * (1.0 - s.grate.Eg)); });
    step(83, QINTGRATE, [&s] { return s.Qig; });
    step(84, s.Qi, [&s] { return s.Qic + s.Qig; });
    step(85, QINT, [&s] { return s.Qi; });
    step(86, s.Qc, [&s] { return s.grate.Q - s.Qi; });
    step(87, QCARRY, [&s] { return s.Qc; });
}

}  // namespace

void compute_results() {
    set_constants_of_grate_on_grade();
    sheet = {};
    auto& grate = sheet.grate;

    read_inputs(1, grate);
    if (inputs_are_refused()) {
        platform::tell(invalid_input);
        return;
    }
    find_approach(21, grate);
    round_composite_slope();
    find_interception_length(42, grate);
    find_depth_and_velocity(45, grate);
    find_share_of_curb();
    find_grate_efficiency(61, grate, sheet.Vr);
    find_interception();
    format_results();
}

}  // namespace gullymark::engine::COMBO_CG_RESULTS
