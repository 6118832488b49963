#include "editor/form/kind_rules.h"

#include <string_view>

#include "editor/form/discharge.h"
#include "editor/form/field_enabling.h"
#include "editor/form/field_numbers.h"
#include "editor/form/inlet_data_rules.h"
#include "editor/form/inlet_defaults.h"
#include "editor/form/status_bar.h"
#include "engine/unit_constants.h"
#include "engine/words.h"

namespace gullymark::editor {
namespace {

using enum FieldId;
using namespace engine::words;

/// What a pick of a type and of a location have in common. They differ in the runoff fields of the right side and in
/// the slope of a sump, on purpose; both slopes last until the field is left.
void start_kind_anew(bool with_runoff, std::string_view sump_slope) {
    enable(field(inletstd_help));
    SetInletDefaults();
    if (on_grade()) {
        empty_right_side(with_runoff);
        format_field(discharge1);
        ComputeTotalDischarge();
    } else if (in_sump()) {
        set_text(txtS, sump_slope);
    }
    set_text(inlet_subtype, "");
}

void set_slot_in_sump() {
    if (text(inlet_type) == slotted_inlet && in_sump()) {
        set_text(txtslotw, engine::by_units("21.00", "525"));
    }
}

void finish_kind() {
    set_slot_in_sump();
    ResetInletDataFields();
    update_currentstatusbar();
}

}  // namespace

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

}  // namespace gullymark::editor
