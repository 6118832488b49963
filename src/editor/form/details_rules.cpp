#include "editor/form/details_rules.h"

#include <string>

#include "editor/form/field_numbers.h"
#include "editor/form/status_bar.h"
#include "editor/state/renumber_dialog.h"
#include "platform/outside.h"
#include "store/project_store.h"

namespace gullymark::editor {

using platform::BoxKind;
using platform::tell;
using enum FieldId;

void Inlet_Number_GotFocus() {
    frminletmodify.CurrentInletNumber = text(Inlet_Number);
}

void Inlet_Number_LostFocus() {
    const std::string number = text(Inlet_Number);
    if (number.empty()) {
        tell("Please enter a valid unique Inlet Number!", BoxKind::information);
        frminletMDIC.wanted_focus = Inlet_Number;
    } else if (const auto usage = store::find_inlet_usage(number, "INLET_NUMBER");
               usage != store::InletUsage::no_row) {
        if (usage == store::InletUsage::a_row) {
            tell(number + " already exists in the database! Please enter a valid unique Inlet Number",
                 BoxKind::warning);
        }
        set_text(Inlet_Number, "");
        frminletMDIC.wanted_focus = Inlet_Number;
    }
    update_currentstatusbar();
}

void inlet_subtype_GotFocus() {
    frminletMDIC.standard_at_entry = text(inlet_subtype);
    SelectFieldText(inlet_subtype);
}

void inlet_subtype_LostFocus() {
    const auto& before = frminletMDIC.standard_at_entry;
    if (text(inlet_subtype) != before && !before.empty()) {
        tell("Inlet Standard Has Been Revised!  Please Review Inlet Characteristics Data.", BoxKind::warning);
    }
}

bool offset_Validate() {
    if (text(offset).empty()) {
        set_text(offset, "0.0");
        return false;
    }
    return CheckNumericField(offset);
}

void offset_LostFocus() {
    if (text(offset).empty()) {
        set_text(offset, "0.00");
    } else {
        ApplyOffsetSign();
    }
}

void ApplyOffsetSign() {
    if (text(offset).empty()) {
        return;  // 0, which has no side, and no text to format
    }
    set_formatted(offset, format_of(offset), [] {
        const engine::Real distance = number_in(offset);
        const std::string& side = text(offset_location);
        const bool wrong_sign = (distance > 0.0 && side == "LEFT") || (distance < 0.0 && side == "RIGHT");
        return wrong_sign ? -distance : distance;
    });
}

void allowable_spread_LostFocus() {
    if (text(allowable_spread).empty()) {
        set_text(allowable_spread, "8.0");
    }
    format_field(allowable_spread);
}

}  // namespace gullymark::editor
