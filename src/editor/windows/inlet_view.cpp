#include "editor/windows/inlet_view.h"

#include "editor/form/field_enabling.h"
#include "editor/form/screen_pages.h"
#include "editor/windows/inlet_list.h"
#include "engine/inlet_row.h"
#include "engine/unit_constants.h"
#include "platform/failure.h"
#include "platform/outside.h"
#include "store/project_session.h"
#include "store/project_store.h"

namespace gullymark::editor {

engine::InletRecord viewed_inlet;
InletView frmviewinlet;

namespace inlet_view {
namespace {

using enum FieldId;

void get_inlet_records(const std::string& key) {
    try {
        frmviewinlet.viewinletRS.open(store::project_store.connection, store::select_inlet(key));
    } catch (const platform::Failure& failure) {
        platform::tell(failure.what());
    }
}

void attach_inlet_datasource() {
    load_row(frmviewinlet.viewinletRS, viewed_inlet);
}

void get_all_projectrecords() {
    get_inlet_records(frminletflex.ViewInletNumber);
    try {
        attach_inlet_datasource();
    } catch (const platform::Failure& failure) {
        // A damaged row: the view opens without it.
        platform::tell(failure.what());
    }
}

/// Tab 2 sets up the fields of the design form, not its own: the view keeps all its values.
void set_tab_display(int tab) {
    auto& screen = frmviewinlet.screen;
    switch (tab) {
        case 0:
            screen.tab = 0;
            break;
        case 1:
            show_discharge_frames(screen);
            break;
        case 2:
            show_inlet_captions(screen);
            setup_fields(screen.text(inlet_type), screen.text(inlet_location));
            break;
        case 3:
            show_result_captions(screen);
            break;
        default:
            break;
    }
}

void SSTab1_Click() {
    set_tab_display(frmviewinlet.screen.tab);
    if (frmviewinlet.screen.tab == 1) {
        show_overrides(frmviewinlet.screen);
    }
}

}  // namespace
}  // namespace inlet_view

void show_inlet_view() {
    frmviewinlet = {.shows = frmviewinlet.shows + 1};
    viewed_inlet = {};
    platform::show_wait_pointer(true);
    auto& screen = frmviewinlet.screen;
    screen.set_text(FieldId::txtProject, store::session.projectName);
    engine::unit_constants.numberFormat = "0.000";
    inlet_view::get_all_projectrecords();
    inlet_view::set_tab_display(screen.tab);
    for (const FieldId frame : {FieldId::Project_Details_Frame, FieldId::Input_Details_Frame,
                                FieldId::Flow_Data_Frame, FieldId::CG_frame}) {
        screen[frame].enabled = false;
    }
    platform::show_wait_pointer(false);
    frmviewinlet.visible = true;
}

void inletflex_DblClick() {
    if (choose_viewed_inlet()) {
        frminletflex.visible = false;
        show_inlet_view();
    }
}

void unload_inlet_view() {
    frmviewinlet = {};
    show_inlet_list();  // it may have been closed meanwhile
}

void view_tab_clicked(int tab) {
    if (frmviewinlet.screen.tab != tab) {
        frmviewinlet.screen.tab = tab;
        inlet_view::SSTab1_Click();
    }
}

}  // namespace gullymark::editor
