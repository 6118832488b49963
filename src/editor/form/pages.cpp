#include "editor/form/pages.h"

#include "editor/form/field_enabling.h"
#include "editor/form/form_access.h"
#include "editor/form/screen_pages.h"

namespace gullymark::editor {

void show_tab(int tab) {
    auto& shown = frminletMDIC.screen.tab;
    if (shown == tab) {
        return;
    }
    shown = tab;
    // A field that goes out of sight is not left, and nothing there can take the focus.
    drop_focus();
    SSTab1_Click();
}

void SSTab1_Click() {
    const int tabnumber = frminletMDIC.screen.tab;
    set_tab_display(tabnumber);
    if (tabnumber == 1) {
        show_overrides(frminletMDIC.screen);
    }
}

void set_tab_display(int tab) {
    switch (tab) {
        case 0:
            frminletMDIC.screen.tab = 0;
            break;
        case 1:
            ShowDischargeFrames();
            break;
        case 2:
            ShowInletDataFields();
            break;
        case 3:
            show_result_captions(frminletMDIC.screen);
            break;
        default:
            break;
    }
}

void ShowDischargeFrames() {
    show_discharge_frames(frminletMDIC.screen);
}

}  // namespace gullymark::editor
