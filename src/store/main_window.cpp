#include "store/main_window.h"

#include "platform/failure.h"
#include "platform/files.h"
#include "platform/outside.h"
#include "store/project_details.h"
#include "store/project_session.h"
#include "store/project_store.h"
#include "store/windows.h"

namespace gullymark::store {

using platform::BoxKind;

MainWindow frmsoftwaremain;

void load_main_window() {
    frmsoftwaremain.message_title = "Tarnel Brook";
    session.workingDirectory.clear();
    session.productName.clear();
    frmsoftwaremain.mnucloseProj.enabled = false;
    session.targetMajorRelease = "1";
    session.targetMinorRelease = "00";
    session.targetReleaseDate = "MAY 2010";
}

void mnuupdateProj_Click() {
    if (session.projectName.empty()) {
        platform::tell("No Project Found.  Please Add Project Details", BoxKind::warning,
                       frmsoftwaremain.message_title);
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
        platform::tell("Please Select Current Working Project!", BoxKind::warning,
                       frmsoftwaremain.message_title);
        return;
    }
    open_designform();
}

void mnuExit_Click() {
    try {
        project_store.connection.close();
    } catch (const platform::Failure&) {
        // Exit is for every state of the project: closed, or never opened.
    }
    frmsoftwaremain.visible = false;
    call(windows.end_program);
}

void Form_QueryUnload(int unload_mode) {
    constexpr int system_menu = 0;
    if (unload_mode == system_menu) {
        mnuExit_Click();
    }
}

void open_designform() {
    if (session.productName != "GULLYMARKAL") {
        platform::tell("This is an Incompatible Project Database! Please use correct version of the database",
                       BoxKind::warning, frmsoftwaremain.message_title);
        call(windows.end_program);
        return;
    }
    go_to_workspace();
}

void go_to_workspace() {
    frmsoftwaremain.visible = false;
    call(windows.show_workspace);
}

void show_help() {
    if (platform::outside.open_help) {
        platform::outside.open_help(platform::join_path(platform::program_folder(), "GullymarkAL.chm"));
    }
}

void show_about_box() {
    call(windows.show_about_box);
}

}  // namespace gullymark::store
