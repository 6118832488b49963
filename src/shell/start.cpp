#include "shell/start.h"

#include <cstdlib>
#include <memory>

#include <QApplication>
#include <QIcon>
#include <QProcess>
#include <QSettings>

#include "editor/records/life_cycle.h"
#include "editor/state/windows.h"
#include "editor/state/workspace.h"
#include "editor/windows/workspace_menu.h"
#include "engine/inlet_record.h"
#include "platform/files.h"
#include "platform/spreadsheet_office.h"
#include "reports/inlet_design_form.h"
#include "reports/inlet_report.h"
#include "shell/binding/readable_palette.h"
#include "shell/binding/small_screen.h"
#include "shell/binding/turn.h"
#include "shell/desktop.h"
#include "shell/windows/about_box.h"
#include "shell/windows/details_view.h"
#include "shell/windows/list_view.h"
#include "shell/windows/main_view.h"
#include "shell/windows/record_view.h"
#include "shell/windows/renumber_view.h"
#include "shell/windows/splash.h"
#include "shell/windows/standards_window.h"
#include "shell/windows/workspace_view.h"
#include "store/windows.h"

/// The toolkit's macro works outside of every namespace only.
static void load_resources() {
    Q_INIT_RESOURCE(gullymark);
}

namespace gullymark::shell {
namespace {

struct Views {
    std::unique_ptr<Splash> splash;
    std::unique_ptr<MainView> main;
    DetailsView* details = nullptr;  // the main window owns it
    std::unique_ptr<WorkspaceView> workspace;
    std::unique_ptr<ListView> list;
    std::unique_ptr<RecordView> record;
    RenumberView* renumber = nullptr;  // the workspace owns it
};

Views views;

void show_splash() {
    views.splash = std::make_unique<Splash>();
    views.splash->paint_now();
}

std::size_t inlet_count() {
    return static_cast<std::size_t>(editor::MDIInlet.Adodc1.record_count());
}

void fill_the_tables() {
    attach_to_desktop();
    platform::use_office({.program = platform::join_path(platform::program_folder(), "gullymark-office")});
    store::windows.show_splash = show_splash;
    store::windows.unload_splash = [] { views.splash.reset(); };
    store::windows.run_details_form = [] { views.details->run(); };
    store::windows.move_details_focus_on = [] { views.details->move_focus_on(); };
    store::windows.show_about_box = run_about_box;
    store::windows.show_workspace = editor::show_workspace;
    store::windows.unload_inlet_editor = editor::unload_inlet_editor;
    editor::windows.move_focus_on = [] { views.workspace->move_focus_on(); };
    editor::windows.run_renumber_dialog = [] { views.renumber->run(); };
    editor::windows.show_standards = show_standards;
    editor::windows.show_worked_calculation = [] { views.workspace->show_worked_calculation(); };
    editor::windows.inlet_report = [] { reports::inlet_report(inlet_count(), engine::open_inlet); };
    editor::windows.InletDesignForm = [] { reports::InletDesignForm(inlet_count()); };
    store::windows.end_program = [] { std::_Exit(EXIT_SUCCESS); };
}

/// The program keeps no settings; the toolkit's file dialog would keep its history.
void keep_no_settings() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QProcess::nullDevice());
}

}  // namespace

void build_windows() {
    load_resources();
    keep_no_settings();
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/application.svg")));
    QApplication::setQuitOnLastWindowClosed(false);
    keep_texts_readable();
    keep_windows_on_screen();
    fill_the_tables();
    views.main = std::make_unique<MainView>();
    views.details = new DetailsView(views.main.get());
    views.workspace = std::make_unique<WorkspaceView>();
    views.list = std::make_unique<ListView>();
    views.record = std::make_unique<RecordView>();
    views.renumber = new RenumberView(views.workspace.get());
}

void destroy_windows() {
    forget_views();
    views = {};
}

}  // namespace gullymark::shell
