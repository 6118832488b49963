#include "catalogue/standards.h"

#include "editor/field_rules.h"
#include "editor/form_access.h"
#include "editor/windows.h"
#include "engine/words.h"

namespace gullymark::editor {

using enum FieldId;
using namespace engine::words;

void inletstd_help_Click() {
    enable(field(inletstd_help));
    const catalogue::Table* table = catalogue::table_for(text(inlet_location), text(inlet_type));
    if (table == nullptr) {
        disable(field(inletstd_help));
        return;
    }
    if (text(inlet_type) == ditch_inlet) {
        FillClogList();
    }
    if (windows.show_standards) {
        windows.show_standards(*table);
    }
}

}  // namespace gullymark::editor
