#include "editor/form/form_defaults.h"

#include "editor/form/default_texts.h"
#include "editor/form/details_rules.h"
#include "editor/form/form_access.h"
#include "editor/form/inlet_data_rules.h"
#include "editor/form/inlet_defaults.h"
#include "editor/form/kind_rules.h"
#include "editor/form/lists.h"
#include "editor/form/pages.h"
#include "editor/form/units.h"
#include "engine/unit_constants.h"

namespace gullymark::editor {

using enum FieldId;

void SetFormDefaults() {
    follow_project_units();
    write_flow_defaults();
    field(Left_override).checked = false;
    field(Right_override).checked = false;
    set_text(storm_frequency, "10");
    show_tab(0);
    write_new_inlet_defaults();
    engine::set_unit_defaults();
    show_unit_captions();
    pick_entry(offset_location, 0, ApplyOffsetSign);
    pick_entry(inlet_type, 0, inlet_type_Click);
    pick_entry(inlet_location, 0, inlet_location_Click);
    pick_entry(cboCurb, 0, cboCurb_Click);
    select_vertical_throat();
    fix_throat_angle(90.0);
    pick_entry(cboClog, 0, cboClog_Click);
    pick_entry(cboType, 0, cboType_Click);
}

}  // namespace gullymark::editor
