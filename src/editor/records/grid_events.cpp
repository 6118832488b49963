#include "editor/records/grid_events.h"

#include <algorithm>

#include "editor/form/pages.h"
#include "editor/form/status_bar.h"
#include "editor/records/inlet_rows.h"
#include "editor/state/inlet_grid.h"
#include "editor/state/workspace.h"
#include "engine/solve.h"
#include "platform/failure.h"
#include "platform/outside.h"
#include "store/project_store.h"

namespace gullymark::editor {

void load_inlet_grid() {
    if (frmgrid.loaded) {
        return;
    }
    frmgrid.loaded = true;
    ++frmgrid.loads;
    platform::show_wait_pointer(true);
    MDIInlet.Adodc1.statement = store::select_grid;
    platform::ignore_failure([] { MDIInlet.Adodc1.refresh(); });
    platform::show_wait_pointer(false);
    if (MDIInlet.Adodc1.record_count() >= 1) {
        SelectGridRow();
    }
    engine::DataSolved = true;
}

void unload_inlet_grid() {
    frmgrid = {.loads = frmgrid.loads};
}

void SelectGridRow() {
    if (MDIInlet.CurrentGridRow == 0) {
        MDIInlet.CurrentGridRow = 1;
    }
    // A remembered row can lie behind the end after another program took rows away.
    frmgrid.row = std::min(MDIInlet.CurrentGridRow, MDIInlet.Adodc1.record_count());
    flexgrid_Click();
}

void pick_grid_row(int row) {
    frmgrid.row = row;
    flexgrid_EnterCell();
    flexgrid_Click();
}

void flexgrid_EnterCell() {
    MDIInlet.CurrentGridRow = frmgrid.row;
}

void flexgrid_Click() {
    if (MDIInlet.Adodc1.record_count() == 0 || frmgrid.row == 0 || !viewing()) {
        return;
    }
    MDIInlet.CurrentGridRow = frmgrid.row;
    show_tab(0);
    set_tab_display(0);
    Inletrecord_find(current_grid_number());
    update_currentstatusbar();
}

bool grid_is_empty(const std::string& message) {
    const DataControl& inlets = MDIInlet.Adodc1;
    if (inlets.record_count() >= 1) {
        return false;
    }
    if (inlets.failure.empty()) {
        platform::tell(message, platform::BoxKind::information);
    } else {
        platform::tell(inlets.failure);
    }
    return true;
}

}  // namespace gullymark::editor
