#pragma once

#include <string>

#include <QTabWidget>

#include "running_program.h"

namespace gullymark::shell {

inline QMainWindow& workspace() {
    return testing_support::RunningProgram::window("MDIInlet");
}

inline QLineEdit& line(const char* name) {
    return testing_support::RunningProgram::line(workspace(), name);
}

inline std::string mode() {
    return testing_support::RunningProgram::panel(workspace(), "screenmode_panel2");
}

inline int page() {
    return workspace().findChild<QTabWidget*>("SSTab1")->currentIndex();
}

/// A new project in the workspace.
struct NewRoad : testing_support::RunningProgram {
    NewRoad() {
        create_project("road", [](QWidget& form) {
            testing_support::activate(form);
            testing_support::type(form, "P-1");
            testing_support::press(form, Qt::Key_Tab);
            testing_support::type(form, "Oak Street");
            testing_support::press(form, Qt::Key_S, Qt::ControlModifier);
        });
        testing_support::activate(workspace());
    }

    void leave() {
        testing_support::activate(workspace());
        if (mode() != "VIEW") {
            robot.answers.push_back(QMessageBox::Yes);
            testing_support::press(workspace(), Qt::Key_Q, Qt::ControlModifier);
            testing_support::activate(workspace());
        }
        testing_support::press(workspace(), Qt::Key_Q, Qt::ControlModifier);
    }
};

/// Adds a curb inlet on grade, not yet solved.
inline void type_curb_inlet() {
    testing_support::press(workspace(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(mode(), "ADD");
    EXPECT_EQ(QApplication::focusWidget(), &line("Inlet_Number"));
    testing_support::type(workspace(), "I-1");
    testing_support::press(workspace(), Qt::Key_Tab);
    testing_support::type(workspace(), "10+50");
    testing_support::press(workspace(), Qt::Key_L, Qt::AltModifier);
    EXPECT_EQ(page(), 1);
    auto& override_box = *workspace().findChild<QWidget*>("Left_override");
    testing_support::click(override_box, {8, override_box.height() / 2});
    testing_support::click(line("discharge1"));
    testing_support::type(workspace(), "2.5");
}

}  // namespace gullymark::shell
