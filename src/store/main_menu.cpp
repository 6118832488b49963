#include "store/main_menu.h"

#include "platform/failure.h"
#include "platform/outside.h"
#include "store/project_details.h"
#include "store/project_session.h"
#include "store/project_store.h"
#include "store/windows.h"
#include "store/workspace_entry.h"

namespace gullymark::store {

void mnuupdateProj_Click() {
    if (session.projectName.empty()) {
        tell_missing_details();
        platform::show_wait_pointer(false);
        session.detailsUpdateMode = false;
        show_details_form();
        return;
    }
    session.detailsUpdateMode = true;
    frmsoftwaremain.mnucreateProj.enabled = false;
    frmsoftwaremain.mnuopenProj.enabled = false;
    frmsoftwaremain.mnucloseProj.enabled = true;
    load_details_form();
    lock_existing_row();
    show_details_form();
}

void mnuInlet_Click() {
    if (session.projectName.empty()) {
        platform::tell("Please Select Current Working Project!", platform::BoxKind::warning,
                       frmsoftwaremain.message_title);
        return;
    }
    open_designform();
}

void mnuExit_Click() {
    // Exit is for every state of the project: closed, or never opened.
    platform::ignore_failure([] { project_store.connection.close(); });
    frmsoftwaremain.visible = false;
    call(windows.end_program);
}

void Form_QueryUnload(int unload_mode) {
    constexpr int system_menu = 0;
    if (unload_mode == system_menu) {
        mnuExit_Click();
    }
}

}  // namespace gullymark::store
