#include "editor/form/form_access.h"

#include "engine/words.h"

namespace gullymark::editor {

bool on_grade() {
    return text(FieldId::inlet_location) == engine::words::continuous_grade;
}

bool in_sump() {
    return text(FieldId::inlet_location) == engine::words::sump;
}

void SelectFieldText(FieldId id) {
    frminletMDIC.wanted_focus = id;
    frminletMDIC.wanted_selection = id;
}

void drop_focus() {
    frminletMDIC.focused.reset();
    frminletMDIC.wanted_focus.reset();
    frminletMDIC.wanted_selection.reset();
}

}  // namespace gullymark::editor
