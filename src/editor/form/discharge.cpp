#include "editor/form/discharge.h"

#include <string_view>

#include "editor/form/field_numbers.h"
#include "editor/form/sides.h"
#include "editor/state/workspace.h"
#include "engine/inlet_flow.h"
#include "engine/unit_constants.h"
#include "platform/number_text.h"

namespace gullymark::editor {
namespace {

using engine::Real;
using enum FieldId;

void compute_discharge(const Side& side) {
    if (text(side.override_text) == "YES") {
        return;
    }
    set_formatted(side.discharge, screen_field(side.discharge).format, [&] {
        return engine::rational_discharge(number_in(side.intensity), number_in(side.area),
                                          number_in(side.coefficient));
    });
    ComputeTotalDischarge();
}

void fill_empty(FieldId id, std::string_view zero) {
    if (text(id).empty()) {
        set_text(id, zero);
    }
}

/// The number of a field, 0 where it shows none.
Real number_or_zero(FieldId id) {
    Real number = 0.0;
    attempt([&] { number = number_in(id); });
    return number;
}

void override_click(const Side& side, void (*compute)()) {
    if (viewing()) {
        return;
    }
    const bool typed = field(side.override_box).checked;
    for (const FieldId id : {side.area, side.coefficient, side.intensity}) {
        typed ? disable(field(id)) : enable(field(id));
    }
    typed ? enable(field(side.discharge)) : disable(field(side.discharge));
    set_text(side.override_text, typed ? "YES" : "NO");
    if (!typed) {
        compute();
    }
}

}  // namespace

void ComputeLeftDischarge() {
    compute_discharge(left_side);
}

void ComputeRightDischarge() {
    compute_discharge(right_side);
}

void ComputeTotalDischarge() {
    for (const FieldId id : {discharge1, discharge2, overland_flow}) {
        fill_empty(id, "0.000");
    }
    for (const FieldId id : {carryover1, carryover2}) {
        fill_empty(id, "0.0");
    }
    engine::FlowShares shares{.from_left = number_or_zero(discharge1),
                              .bypass_left = number_or_zero(carryover1),
                              .overland = number_or_zero(overland_flow)};
    if (in_sump()) {
        shares.from_right = number_or_zero(discharge2);
        shares.bypass_right = number_or_zero(carryover2);
    }
    attempt([&] {
        const Real total = engine::total_flow(shares);
        set_text(QTotal, platform::format_number(total.number(), engine::unit_constants.numberFormat));
    });
}

void Left_override_Click() {
    override_click(left_side, ComputeLeftDischarge);
}

void Right_override_Click() {
    override_click(right_side, ComputeRightDischarge);
}

void empty_right_side(bool with_runoff) {
    set_text(preinlet2, "");
    if (with_runoff) {
        for (const FieldId id : {runoff_area2, runoff_coeff2, intensity2}) {
            set_text(id, "0.0");
        }
    }
    set_text(carryover2, "0.0");
    set_text(discharge2, "0.000");
}

}  // namespace gullymark::editor
