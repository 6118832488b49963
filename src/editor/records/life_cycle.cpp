#include "editor/records/life_cycle.h"

#include "editor/form/form_access.h"
#include "editor/form/form_defaults.h"
#include "editor/form/lists.h"
#include "editor/form/pages.h"
#include "editor/form/status_bar.h"
#include "editor/records/inlet_rows.h"
#include "editor/records/screen_mode.h"
#include "engine/results.h"
#include "engine/solve.h"
#include "engine/unit_constants.h"
#include "platform/outside.h"
#include "store/project_session.h"

namespace gullymark::editor {
namespace {

void InitEditorForm() {
    set_text(FieldId::txtProject, store::session.projectName);
    frminletMDIC.road_name.clear();
    engine::unit_constants.numberFormat = "0.000";
    show_tab(0);
}

}  // namespace

void load_inlet_editor() {
    if (frminletMDIC.loaded) {
        return;
    }
    frminletMDIC.loaded = true;
    platform::show_wait_pointer(true);
    engine::open_inlet = {};
    engine::open_inlet.on_first_change = [] { adoInletRS_WillChangeRecord(first_change_reason); };
    engine::clear_results();
    InitEditorForm();
    FillFormLists();
    SetFormDefaults();
    get_all_projectrecords();
    set_tab_display(frminletMDIC.screen.tab);
    Activate_menu("View");
    platform::show_wait_pointer(false);
    update_statusbar();
    engine::DataSolved = true;
}

void unload_inlet_editor() {
    frminletMDIC = {.begun = frminletMDIC.begun};
    engine::open_inlet = {};
}

}  // namespace gullymark::editor
