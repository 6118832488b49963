#include "store/project_life_cycle.h"

#include <cstddef>

#include "platform/characters.h"
#include "platform/failure.h"
#include "platform/file_dialog.h"
#include "platform/files.h"
#include "platform/outside.h"
#include "platform/project_copy.h"
#include "store/main_window.h"
#include "store/project_details.h"
#include "store/project_session.h"
#include "store/project_store.h"
#include "store/windows.h"
#include "store/workspace_entry.h"

namespace gullymark::store {
namespace {

using platform::BoxKind;
using platform::printDlg;

constexpr const char* project_filter = "Gullymark files (*.gmk)|*.gmk";

void tell_titled(const std::string& text, BoxKind kind) {
    platform::tell(text, kind, frmsoftwaremain.message_title);
}

void tell_no_file_chosen() {
    tell_titled("No project database selected!", BoxKind::warning);
}

void show_file_name(const std::string& name) {
    frmsoftwaremain.status_panels[0] = "Project Database - " + name;
}

/// Runs a flow; a failure anywhere in it is told and ends it.
void run_flow(void (*flow)()) {
    try {
        flow();
    } catch (const platform::Failure& failure) {
        platform::tell(failure.what(), BoxKind::warning);
    }
}

void forget_file_names() {
    session.projectFilePath.clear();
    printDlg.file_name.clear();
}

void enable_for_open_project() {
    frmsoftwaremain.mnucreateProj.enabled = false;
    frmsoftwaremain.mnuopenProj.enabled = false;
    frmsoftwaremain.mnuupdateProj.enabled = true;
    frmsoftwaremain.mnucloseProj.enabled = true;
}

/// Keeps the folder that the dialog left; the name to display of the file chosen.
std::string take_chosen_folder() {
    session.workingDirectory = platform::current_folder();
    return display_name(session.projectFilePath, session.workingDirectory);
}

void create_project() {
    forget_file_names();
    const std::string template_path = platform::join_path(platform::program_folder(), "GullymarkAL10.rdb");
    printDlg.filter = project_filter;
    printDlg.initial_folder = dialog_start_folder();
    printDlg.title = "Enter New Project Database File Name";
    printDlg.show_save();
    session.projectFilePath = printDlg.file_name;
    if (session.projectFilePath.empty() || session.projectFilePath == "*.gmk") {
        tell_no_file_chosen();
        return;
    }
    if (!may_overwrite(session.projectFilePath)) {
        return;
    }
    platform::copy_project(template_path, session.projectFilePath);
    const std::string name = take_chosen_folder();
    session.detailsUpdateMode = false;
    platform::show_wait_pointer(true);
    tell_titled("New Project Database has been created.  Please Add Project Details", BoxKind::information);
    open_database();
    show_details_form();
    platform::show_wait_pointer(false);
    show_file_name(name);
    enable_for_open_project();
}

/// A project whose row could not be read has no units that its inlets could be solved in: nothing of it is open.
void close_unread_project() {
    if (!frmProject.row_read) {
        project_store.connection = platform::Connection();
    }
}

/// Only the misspelled date is upgraded behind this gate; the other passes it and stays as it is.
void upgrade_old_file() {
    if (session.releaseDate == "AUGUST 2007" || session.releaseDate == "AUGUSTL 2007") {
        upgrade_project(session.targetMajorRelease, session.targetMinorRelease);
    }
}

void greet_project() {
    if (session.projectName.empty()) {
        tell_missing_details();
        session.detailsUpdateMode = false;
        show_details_form();
    } else {
        tell_titled("Project Name: " + session.projectName, BoxKind::information);
    }
}

void open_project() {
    forget_file_names();
    printDlg.cancel_is_error = true;
    printDlg.must_exist = true;
    printDlg.title = "Open";
    printDlg.filter = project_filter;
    printDlg.initial_folder = dialog_start_folder();
    printDlg.show_open();
    session.projectFilePath = printDlg.file_name;
    if (session.projectFilePath.empty()) {
        tell_no_file_chosen();
        return;
    }
    const std::string name = take_chosen_folder();
    frmsoftwaremain.status_panels[0] = "Opening Project Database.  Please wait...";
    platform::show_wait_pointer(true);
    open_database();
    get_project_records();
    close_unread_project();
    upgrade_old_file();
    platform::show_wait_pointer(false);
    greet_project();
    show_file_name(name);
    frmsoftwaremain.status_panels[1] = "UNITS: " + session.projectUnits;
    enable_for_open_project();
    go_to_workspace();
}

}  // namespace

void mnucreateProj_Click() {
    run_flow(create_project);
}

void mnuopenProj_Click() {
    run_flow(open_project);
}

void mnucloseProj_Click() {
    platform::tell("Current Project Is Closed!", BoxKind::information);
    close_database();
    frmsoftwaremain.mnucreateProj.enabled = true;
    frmsoftwaremain.mnuopenProj.enabled = true;
    frmsoftwaremain.mnuupdateProj.enabled = false;
    frmsoftwaremain.mnucloseProj.enabled = false;
    frmsoftwaremain.status_panels[0].clear();
    frmsoftwaremain.status_panels[1].clear();
    session.productName.clear();
}

void open_database() {
    try {
        project_store.connection = platform::Connection();
        project_store.connection.open(session.projectFilePath);
        project_store.connection.check();
    } catch (const platform::Failure& failure) {
        platform::tell(failure.what());
    }
}

void close_database() {
    try {
        project_store.connection.close();
        session.detailsUpdateMode = false;
        session.projectId.clear();
        session.projectName.clear();
        unload_details_form();
        call(windows.unload_inlet_editor);
    } catch (const platform::Failure&) {
        platform::tell("database close error");
    }
}

void upgrade_project(const std::string& major_release, const std::string& minor_release) {
    if (session.releaseDate != "AUGUSTL 2007" || session.majorRelease != "1.0") {
        return;
    }
    for (const std::string& statement : upgrade_statements(major_release, minor_release)) {
        // A column that exists already, or one that never did: the next statement runs all the same.
        platform::ignore_failure([&] { project_store.connection.execute(statement); });
    }
}

std::array<std::string, 4> upgrade_statements(const std::string& major_release,
                                              const std::string& minor_release) {
    return {
        "ALTER TABLE INLET ADD LDISCHARGE_OVERRIDE TEXT(3), RDISCHARGE_OVERRIDE TEXT(3), RUNOFF_AREA "
        "TEXT(10),"
        "RUNOFF_COEFF TEXT(10), INTENSITY TEXT(10), RUNOFF_AREA2 TEXT(10),RUNOFF_COEFF2 TEXT(10), "
        "INTENSITY2 TEXT(10), INLETXSLOPE TEXT(10)",
        "ALTER TABLE PROJECT ADD MINOR_RELEASE TEXT(10), UDEF1 TEXT(50), UDEF2 TEXT(50), UDEF3 TEXT(50), "
        "UDEF4 TEXT(50), UDEF5 TEXT(50) ",
        "UPDATE PROJECT SET MAJOR_RELEASE = '" + major_release + "', MINOR_FRELEASE = '" + minor_release +
            "', RELEASE_DATE = '" + session.targetReleaseDate + "'",
        "UPDATE PROJECT SET MINOR_RELEASE = '" + minor_release + "'",
    };
}

std::string display_name(const std::string& path, const std::string& folder) {
    const std::size_t length = platform::count_characters(path);
    const std::size_t skipped = platform::count_characters(folder) + 1;
    if (skipped > length) {
        throw platform::Failure("The file does not lie in the current folder: " + path);
    }
    return platform::last_characters(path, length - skipped);
}

}  // namespace gullymark::store
