#include "editor/form/field_events.h"

#include <array>
#include <string>

#include "editor/form/carryover.h"
#include "editor/form/details_rules.h"
#include "editor/form/discharge.h"
#include "editor/form/field_numbers.h"
#include "editor/form/inlet_data_rules.h"
#include "editor/form/kind_rules.h"
#include "editor/form/pages.h"
#include "editor/form/standards.h"
#include "platform/characters.h"

namespace gullymark::editor {
namespace {

using enum FieldId;

/// What a field does beyond the families of the one list of fields.
struct OwnHandlers {
    FieldId field;
    void (*got_focus)() = nullptr;
    void (*drop_down)() = nullptr;
    void (*click)() = nullptr;
    bool (*validate)() = nullptr;  // true refuses
    void (*lost_focus)() = nullptr;
};

constexpr auto own_handlers = std::to_array<OwnHandlers>({
    {.field = Inlet_Number, .got_focus = Inlet_Number_GotFocus, .lost_focus = Inlet_Number_LostFocus},
    {.field = inlet_type,
     .got_focus = inlet_type_GotFocus,
     .click = inlet_type_Click,
     .lost_focus = inlet_type_LostFocus},
    {.field = inlet_location,
     .got_focus = inlet_location_GotFocus,
     .click = inlet_location_Click,
     .lost_focus = inlet_location_LostFocus},
    {.field = inletstd_help, .click = inletstd_help_Click},
    {.field = inlet_subtype, .got_focus = inlet_subtype_GotFocus, .lost_focus = inlet_subtype_LostFocus},
    {.field = offset, .validate = offset_Validate, .lost_focus = offset_LostFocus},
    {.field = offset_location, .click = ApplyOffsetSign},
    {.field = allowable_spread, .lost_focus = allowable_spread_LostFocus},
    {.field = Left_override, .click = Left_override_Click},
    {.field = Right_override, .click = Right_override_Click},
    {.field = runoff_area, .lost_focus = ComputeLeftDischarge},
    {.field = runoff_coeff, .lost_focus = ComputeLeftDischarge},
    {.field = intensity, .lost_focus = ComputeLeftDischarge},
    {.field = discharge1, .lost_focus = ComputeTotalDischarge},
    {.field = preinlet1, .got_focus = preinlet1_GotFocus, .lost_focus = preinlet1_LostFocus},
    {.field = runoff_area2, .lost_focus = ComputeRightDischarge},
    {.field = runoff_coeff2, .lost_focus = ComputeRightDischarge},
    {.field = intensity2, .lost_focus = ComputeRightDischarge},
    {.field = discharge2, .lost_focus = ComputeTotalDischarge},
    {.field = preinlet2, .got_focus = preinlet2_GotFocus, .lost_focus = preinlet2_LostFocus},
    {.field = overland_flow, .lost_focus = ComputeTotalDischarge},
    {.field = txtSx, .lost_focus = txtSx_LostFocus},
    {.field = txtSdashW, .lost_focus = txtSdashW_LostFocus},
    {.field = cboType, .click = cboType_Click},
    {.field = cboClog, .drop_down = cboClog_DropDown, .click = cboClog_Click, .validate = cboClog_Validate},
    {.field = cboCurb, .click = cboCurb_Click, .lost_focus = cboCurb_LostFocus},
    {.field = cboThroat, .click = cboThroat_Click},
});

const OwnHandlers& handlers_of(FieldId id) {
    static constexpr OwnHandlers none{.field = SSTab1};
    for (const auto& handlers : own_handlers) {
        if (handlers.field == id) {
            return handlers;
        }
    }
    return none;
}

void run(void (*handler)()) {
    if (handler != nullptr) {
        handler();
    }
}

/// True refuses.
bool list_refuses(FieldId list) {
    std::string shown = text(list);
    const bool refuses = platform::CheckListValue(shown, field(list).entries);
    set_text(list, shown);
    return refuses;
}

}  // namespace

void enter(FieldId field) {
    frminletMDIC.focused = field;
    if (has_rule(field, selects)) {
        SelectFieldText(field);
    }
    run(handlers_of(field).got_focus);
}

void edited(FieldId field, std::string_view text) {
    const std::size_t limit = screen_field(field).limit;
    const std::string line = platform::on_one_line(text);
    set_text(field, limit == 0 ? line : platform::first_characters(line, limit));
}

void opened_list(FieldId field) {
    run(handlers_of(field).drop_down);
}

void picked(FieldId field, std::string_view entry) {
    set_text(field, entry);
    run(handlers_of(field).click);
}

void clicked(FieldId field) {
    if (screen_field(field).kind == Kind::check_box) {
        auto& box = frminletMDIC.screen[field];
        box.checked = !box.checked;
    }
    run(handlers_of(field).click);
}

void tab_clicked(int tab) {
    show_tab(tab);
}

bool leave(FieldId field) {
    if (frminletMDIC.focused != field) {
        return true;
    }
    if (!may_leave(field)) {
        return false;
    }
    frminletMDIC.focused.reset();
    frminletMDIC.wanted_focus.reset();
    left(field);
    if (frminletMDIC.wanted_focus == field) {
        enter(field);
        return false;
    }
    return true;
}

bool leave_focused_field() {
    return !frminletMDIC.focused || leave(*frminletMDIC.focused);
}

bool may_leave(FieldId field) {
    if (has_rule(field, checks_list) && list_refuses(field)) {
        return false;
    }
    const auto validate = handlers_of(field).validate;
    return validate == nullptr || !validate();
}

void left(FieldId field) {
    if (has_rule(field, formats)) {
        format_field(field);
    }
    run(handlers_of(field).lost_focus);
}

}  // namespace gullymark::editor
