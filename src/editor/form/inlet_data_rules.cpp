#include "editor/form/inlet_data_rules.h"

#include <string>

#include "editor/form/field_numbers.h"
#include "editor/form/lists.h"
#include "editor/state/workspace.h"
#include "engine/results.h"
#include "engine/unit_constants.h"
#include "engine/words.h"
#include "platform/outside.h"

namespace gullymark::editor {

using enum FieldId;
using namespace engine::words;

void fix_throat_angle(double degrees) {
    auto& angle = field(txtAngle);
    angle.color = platform::Color::gray;
    angle.locked = true;
    set_text(txtAngle, platform::format_number(degrees, screen_field(txtAngle).format));
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
    pick_entry(cboClog, 0, cboClog_Click);
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
        platform::tell("Clogged cannot be 100%! Please enter new value.", platform::BoxKind::warning);
        set_text(cboClog, "0");
        refuses = true;
    }
    engine::clear_results();
    return refuses;
}

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
