#include "editor/form/worked_calculation.h"

#include "editor/form/inlet_form.h"
#include "editor/state/windows.h"
#include "editor/state/workspace.h"

namespace gullymark::editor {

bool has_worked_calculation() {
    const auto& rows = frminletMDIC.adoInletRS;
    const bool on_a_row = rows.is_open() && !rows.at_beginning() && !rows.at_end();
    return frminletMDIC.loaded && (!viewing() || on_a_row);
}

void show_worked_calculation() {
    if (has_worked_calculation()) {
        call(windows.show_worked_calculation);
    }
}

}  // namespace gullymark::editor
