#include "editor/form/solve_command.h"

#include "editor/form/field_events.h"
#include "editor/form/form_access.h"
#include "editor/form/pages.h"
#include "editor/form/units.h"
#include "engine/solve.h"

namespace gullymark::editor {

using enum FieldId;

void cmdsolve_Click() {
    const auto was_in = frminletMDIC.focused;
    if (!leave_focused_field() && was_in != Inlet_Number) {
        return;
    }
    follow_project_units();
    if (engine::check_and_solve()) {
        field(Results_Frame).enabled = false;
        show_tab(3);
    } else if (was_in) {
        enter(*was_in);
    }
}

}  // namespace gullymark::editor
