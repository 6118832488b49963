#include "editor/field_rules.h"

#include <array>
#include <string>

#include "editor/defaults.h"
#include "editor/discharge.h"
#include "editor/field_enabling.h"
#include "editor/form_access.h"
#include "editor/renumber_dialog.h"
#include "editor/workspace.h"
#include "engine/results.h"
#include "engine/unit_constants.h"
#include "engine/words.h"
#include "platform/number_text.h"
#include "platform/outside.h"
#include "store/project_store.h"

namespace gullymark::editor {
namespace {

using engine::by_units;
using platform::BoxKind;
using platform::tell;
using enum FieldId;
using namespace engine::words;

std::string_view format_of(FieldId id) {
    const std::string_view format = screen_field(id).format;
    return format == number_format ? std::string_view(engine::unit_constants.numberFormat) : format;
}

/// What a pick of a type and of a location have in common. They differ in the runoff fields of the right side and in
/// the slope of a sump, on purpose; both slopes last until the field is left.
void start_kind_anew(bool with_runoff, std::string_view sump_slope) {
    enable(field(inletstd_help));
    SetInletDefaults();
    if (on_grade()) {
        empty_right_side(with_runoff);
        left(discharge1);
    } else if (in_sump()) {
        set_text(txtS, sump_slope);
    }
    set_text(inlet_subtype, "");
}

void set_slot_in_sump() {
    if (text(inlet_type) == slotted_inlet && in_sump()) {
        set_text(txtslotw, by_units("21.00", "525"));
    }
}

void finish_kind() {
    set_slot_in_sump();
    ResetInletDataFields();
    update_currentstatusbar();
}

}  // namespace

void SelectFieldText(FieldId id) {
    frminletMDIC.wanted_focus = id;
    frminletMDIC.wanted_selection = id;
}

void format_field(FieldId id) {
    set_text(id, platform::format_text(text(id), format_of(id)));
}

bool CheckNumericField(FieldId id) {
    const std::string trimmed(platform::trim_blanks(text(id)));
    if (trimmed == ".") {
        set_text(id, platform::format_number(0.0, engine::unit_constants.numberFormat));
        platform::beep();
        SelectFieldText(id);
        return true;
    }
    set_text(id, platform::format_text(trimmed, engine::unit_constants.numberFormat));
    return false;
}

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

void inlet_type_GotFocus() {
    frminletMDIC.kind_at_entry = text(inlet_type);
}

void inlet_location_GotFocus() {
    frminletMDIC.kind_at_entry = text(inlet_location);
}

void inlet_type_Click() {
    start_kind_anew(false, "0.001");
    finish_kind();
}

void inlet_location_Click() {
    start_kind_anew(true, "0.003");
    finish_kind();
}

void inlet_type_LostFocus() {
    if (text(inlet_type) != frminletMDIC.kind_at_entry) {
        SetInletDefaults();
        FillClogList();
        set_slot_in_sump();
        update_currentstatusbar();
    }
}

void inlet_location_LostFocus() {
    if (text(inlet_location) != frminletMDIC.kind_at_entry) {
        SetInletDefaults();
        set_slot_in_sump();
        update_currentstatusbar();
    }
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

void cboThroat_Click() {
    engine::clear_results();
    const std::string throat = text(cboThroat);
    if (throat == vertical_throat) {
        fix_throat_angle(90.0);
    } else if (throat == horizontal_throat) {
        fix_throat_angle(0.0);
    } else if (throat == inclined_throat) {
        enable(field(txtAngle));
        field(txtAngle).locked = false;
    }
}

void cboType_Click() {
    engine::clear_results();
}

void cboCurb_Click() {
    engine::clear_results();
}

void cboCurb_LostFocus() {
    for (const std::string_view standard : {"PR (Curb)", "PB (Curb)", "B (Curb/barrier)"}) {
        if (text(inlet_subtype) == standard) {
            set_text(cboCurb, with_curb);
        }
    }
}

void FillClogList() {
    if (in_sump() && text(inlet_type) == ditch_inlet) {
        disable(field(cboClog));
        return;
    }
    enable(field(cboClog));
    fill_clog_entries();
    select_entry(cboClog, 0);
    set_text(cboClog, "0");
}

void cboClog_DropDown() {
    if (!viewing()) {
        FillClogList();
    }
}

void cboClog_Click() {
    if (!viewing()) {
        engine::clear_results();
    }
}

bool cboClog_Validate() {
    const std::string clog(platform::trim_blanks(text(cboClog)));
    if (clog == ".") {
        set_text(cboClog, platform::format_number(0.0, screen_field(cboClog).format));
        frminletMDIC.wanted_selection = cboClog;
        return false;
    }
    bool refuses = false;
    if (!clog.empty()) {
        set_text(cboClog, platform::format_text(clog, screen_field(cboClog).format));
    }
    // A text that is no number counts as 0.
    const double share = platform::read_number(clog).number;
    if (share == 0.0) {
        platform::beep();
    } else if (share > 99.0) {
        tell("Clogged cannot be 100%! Please enter new value.", BoxKind::warning);
        set_text(cboClog, "0");
        refuses = true;
    }
    engine::clear_results();
    return refuses;
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

// A gutter of no width has the slope of the pavement.
void txtSx_LostFocus() {
    attempt([] {
        if (number_in(txtW) == 0.0) {
            set_text(txtSw, text(txtSx));
        }
    });
    format_field(txtSx);
}

void txtSdashW_LostFocus() {
    if (text(txtSdashW).empty()) {
        set_text(txtSdashW, text(txtSx));
    }
    attempt([] {
        if (number_in(txtSx) > number_in(txtSdashW)) {
            set_text(txtSdashW, text(txtSx));
        }
    });
    format_field(txtSdashW);
    set_formatted(txta, format_of(txta), [] {
        return number_in(txtW) * (number_in(txtSdashW) - number_in(txtSw)) *
               engine::Real(engine::unit_constants.depthFactor);
    });
}

}  // namespace gullymark::editor
