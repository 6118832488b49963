#include "shell/start.h"

#include <cstdlib>
#include <memory>

#include <QApplication>
#include <QIcon>

#include "shell/about_box.h"
#include "shell/desktop.h"
#include "shell/details_view.h"
#include "shell/main_view.h"
#include "shell/splash.h"
#include "shell/turn.h"
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
};

Views views;

void show_splash() {
    views.splash = std::make_unique<Splash>();
    views.splash->paint_now();
}

void fill_the_tables() {
    attach_to_desktop();
    store::windows.show_splash = show_splash;
    store::windows.unload_splash = [] { views.splash.reset(); };
    store::windows.run_details_form = [] { views.details->run(); };
    store::windows.move_details_focus_on = [] { views.details->move_focus_on(); };
    store::windows.show_about_box = run_about_box;
    store::windows.end_program = [] { std::_Exit(EXIT_SUCCESS); };
}

}  // namespace

void build_windows() {
    load_resources();
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/application.svg")));
    QApplication::setQuitOnLastWindowClosed(false);
    fill_the_tables();
    views.main = std::make_unique<MainView>();
    views.details = new DetailsView(views.main.get());
}

void destroy_windows() {
    forget_views();
    views = {};
}

}  // namespace gullymark::shell
