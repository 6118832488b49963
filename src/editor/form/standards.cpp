#include "editor/form/standards.h"

#include "catalogue/standards.h"
#include "editor/form/form_access.h"
#include "editor/form/inlet_data_rules.h"
#include "editor/state/windows.h"
#include "engine/words.h"

namespace gullymark::editor {

using enum FieldId;

void inletstd_help_Click() {
    enable(field(inletstd_help));
    const catalogue::Table* table = catalogue::table_for(text(inlet_location), text(inlet_type));
    if (table == nullptr) {
        disable(field(inletstd_help));
        return;
    }
    if (text(inlet_type) == engine::words::ditch_inlet) {
        FillClogList();
    }
    if (windows.show_standards) {
        windows.show_standards(*table);
    }
}

}  // namespace gullymark::editor
