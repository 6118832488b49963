#include "editor/records/screen_mode.h"

#include "editor/form/form_access.h"
#include "editor/form/pages.h"
#include "editor/state/inlet_grid.h"
#include "editor/state/workspace.h"

namespace gullymark::editor {
namespace {

using enum FieldId;

void show_commands(bool view) {
    const bool with_rows = view && MDIInlet.Adodc1.record_count() >= 1;
    MDIInlet.mnuAddinlet.enabled = view;
    MDIInlet.mnuSaveinlet.enabled = !view;
    MDIInlet.mnuEditinlet.enabled = with_rows;
    MDIInlet.mnuflexrefresh.enabled = view;
    MDIInlet.mnuflexcopyinlet.enabled = with_rows;
    MDIInlet.mnuflexmodifyinlet.enabled = with_rows;
    MDIInlet.mnuflexdeleteinlet.enabled = with_rows;
    MDIInlet.mnuflex_inlet_report.enabled = with_rows;
    MDIInlet.mnuInletDesignForm.enabled = with_rows;
    if (view) {
        MDIInlet.mnuExit.enabled = true;
    }
}

}  // namespace

void Activate_menu(std::string_view new_mode) {
    const bool view = new_mode == "View";
    if (!view && new_mode != "Add" && new_mode != "Edit") {
        return;
    }
    MDIInlet.screenmode[1] = view ? "VIEW" : new_mode == "Add" ? "ADD" : "EDIT";
    frmgrid.enabled = view;
    show_commands(view);
    for (const FieldId frame : {Project_Details_Frame, Input_Details_Frame, Flow_Data_Frame, CG_frame}) {
        field(frame).enabled = !view;
    }
    if (new_mode == "Add") {
        enable(field(Inlet_Number));
        show_tab(0);
    } else if (new_mode == "Edit") {
        disable(field(Inlet_Number));
    }
}

}  // namespace gullymark::editor
