#include "window_tour.h"

#include <array>

#include <QTableView>

#include "catalogue/standards.h"
#include "new_road.h"
#include "shell/windows/splash.h"
#include "shell/windows/standards_window.h"

namespace gullymark::testing_support {
namespace {

using Visit = std::function<void(const std::string& name, QWidget& window)>;

struct TouredPage {
    Qt::Key letter;
    const char* name;
};
constexpr std::array toured_pages{TouredPage{Qt::Key_D, "details"}, TouredPage{Qt::Key_L, "flow data"},
                                  TouredPage{Qt::Key_I, "inlet data"}, TouredPage{Qt::Key_R, "results"}};

void visit_pages(const Visit& visit, const std::string& name, QWidget& window) {
    for (const TouredPage& page : toured_pages) {
        press(window, page.letter, Qt::AltModifier);
        visit(name + ' ' + page.name, window);
    }
    press(window, Qt::Key_D, Qt::AltModifier);
}

std::string name_of(const QWidget& modal) {
    if (qobject_cast<const QMessageBox*>(&modal) != nullptr) {
        return "box";
    }
    return qobject_cast<const QFileDialog*>(&modal) != nullptr ? "file dialog"
                                                               : modal.objectName().toStdString();
}

void visit_splash_and_standards(const Visit& visit) {
    shell::Splash splash;
    splash.paint_now();
    visit("splash", splash);
    splash.close();
    for (const auto& table : catalogue::tables()) {
        shell::StandardsWindow window(table);
        activate(window);
        press(window, Qt::Key_Down);
        visit("standards " + std::string(table.name), window);
    }
}

void visit_listing_and_record(const Visit& visit) {
    press(workspace(), Qt::Key_L, Qt::ControlModifier);
    QMainWindow& listing = RunningProgram::window("frminletflex");
    activate(listing);
    visit("listing", listing);
    listing.findChild<QTableView*>("inletflex")->setFocus();
    press(listing, Qt::Key_Return);
    for (QWidget* record : QApplication::topLevelWidgets()) {
        if (record->objectName() == "frmviewinlet") {
            activate(*record);
            visit_pages(visit, "record view", *record);
            record->close();
        }
    }
    activate(listing);
    press(listing, Qt::Key_Q, Qt::ControlModifier);
}

}  // namespace

void tour_windows(const Visit& visit) {
    RunningProgram program;
    visit_splash_and_standards(visit);
    activate(RunningProgram::main());
    program.robot.look_at = [&visit](QWidget& modal) { visit(name_of(modal), modal); };
    visit("main", RunningProgram::main());
    program.robot.in_window.emplace_back([](QWidget& about) { press(about, Qt::Key_Escape); });
    choose(RunningProgram::main(), "mnuHelp", "mnuabout");
    activate(RunningProgram::main());
    program.create_project("road", [](QWidget& form) {
        activate(form);
        type(form, "P-1");
        press(form, Qt::Key_Tab);
        type(form, "Oak Street");
        press(form, Qt::Key_S, Qt::ControlModifier);
    });
    activate(workspace());
    visit("workspace empty", workspace());
    save_a_curb_inlet();
    visit_pages(visit, "workspace VIEW", workspace());
    press(workspace(), Qt::Key_R, Qt::AltModifier);
    program.robot.in_window.emplace_back([](QWidget& calculation) { press(calculation, Qt::Key_Escape); });
    workspace().findChild<QWidget*>("fixed_worked_calculation")->setFocus();
    press(workspace(), Qt::Key_Space);
    activate(workspace());
    press(workspace(), Qt::Key_D, Qt::AltModifier);
    press(workspace(), Qt::Key_E, Qt::ControlModifier);
    visit_pages(visit, "workspace EDIT", workspace());
    program.robot.answers.push_back(QMessageBox::Yes);
    press(workspace(), Qt::Key_Q, Qt::ControlModifier);
    activate(workspace());
    program.robot.answers.push_back(QMessageBox::Yes);
    program.robot.in_window.emplace_back([](QWidget& renumber) { press(renumber, Qt::Key_Escape); });
    press(workspace(), Qt::Key_F2);
    activate(workspace());
    visit_listing_and_record(visit);
    activate(workspace());
    press(workspace(), Qt::Key_N, Qt::ControlModifier);
    type(workspace(), "I-2");
    visit_pages(visit, "workspace ADD", workspace());
    program.robot.answers.push_back(QMessageBox::Yes);
    press(workspace(), Qt::Key_Q, Qt::ControlModifier);
    activate(workspace());
    press(workspace(), Qt::Key_Q, Qt::ControlModifier);
}

}  // namespace gullymark::testing_support
