#include "editor/form/status_bar.h"

#include "editor/form/form_access.h"
#include "editor/state/workspace.h"
#include "store/project_session.h"

namespace gullymark::editor {

using enum FieldId;

void update_statusbar() {
    const auto& project = store::session;
    MDIInlet.StatusBar[0] = project.projectState + " - " + project.projectCounty + ": " + project.projectName;
    MDIInlet.StatusBar[2] = "UNITS: " + project.projectUnits;
    update_currentstatusbar();
}

void update_currentstatusbar() {
    MDIInlet.StatusBar[1] = text(inlet_type) + " - --" + text(inlet_location);
    MDIInlet.screenmode[3] = text(Inlet_Number);
}

}  // namespace gullymark::editor
