#include "editor/form/inlet_defaults.h"

#include "editor/form/default_texts.h"
#include "editor/form/form_access.h"
#include "editor/form/inlet_data_rules.h"
#include "editor/form/lists.h"
#include "engine/words.h"

namespace gullymark::editor {

using enum FieldId;
using namespace engine::words;

void select_vertical_throat() {
    pick_entry(cboThroat, 2, cboThroat_Click);
    set_text(cboThroat, vertical_throat);
}

void SetInletDefaults() {
    write_inlet_data_defaults();
    pick_entry(cboCurb, 0, cboCurb_Click);
    select_vertical_throat();
    pick_entry(cboType, 0, cboType_Click);
    pick_entry(cboClog, 0, cboClog_Click);
    if (text(inlet_type) == combination_inlet) {
        set_text(cboLCOUG, "0.0");
    }
    if (text(inlet_type) == curb_inlet && in_sump()) {
        set_text(cboClog, "10");
    }
    fix_throat_angle(90.0);
}

}  // namespace gullymark::editor
