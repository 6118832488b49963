#pragma once

#include <string>

#include <QTabWidget>

#include "running_program.h"
#include "support/sqlite_file.h"

namespace gullymark::testing_support {

inline QMainWindow& workspace() {
    return RunningProgram::window("MDIInlet");
}

inline QLineEdit& line(const char* name) {
    return RunningProgram::line(workspace(), name);
}

inline std::string mode() {
    return RunningProgram::panel(workspace(), "screenmode_panel2");
}

inline int page() {
    return workspace().findChild<QTabWidget*>("SSTab1")->currentIndex();
}

/// Columns of every inlet in the file.
inline std::string saved(const RunningProgram& program, const std::string& columns) {
    return run_sql(program.folder.path("road.gmk"), "SELECT " + columns + " FROM INLET");
}

/// A new project, shown in the workspace.
struct NewRoad : RunningProgram {
    NewRoad() {
        create_project("road", [](QWidget& form) {
            activate(form);
            type(form, "P-1");
            press(form, Qt::Key_Tab);
            type(form, "Oak Street");
            press(form, Qt::Key_S, Qt::ControlModifier);
        });
        activate(workspace());
    }

    void leave() {
        activate(workspace());
        if (mode() != "VIEW") {
            robot.answers.push_back(QMessageBox::Yes);
            press(workspace(), Qt::Key_Q, Qt::ControlModifier);
            activate(workspace());
        }
        press(workspace(), Qt::Key_Q, Qt::ControlModifier);
    }
};

/// Adds, solves and saves the curb inlet I-1 on grade.
inline void save_a_curb_inlet() {
    press(workspace(), Qt::Key_N, Qt::ControlModifier);
    type(workspace(), "I-1");
    press(workspace(), Qt::Key_Tab);
    type(workspace(), "10+50");
    press(workspace(), Qt::Key_L, Qt::AltModifier);
    line("overland_flow").setFocus();
    type(workspace(), "2.5");
    press(workspace(), Qt::Key_F9);
    press(workspace(), Qt::Key_S, Qt::ControlModifier);
    activate(workspace());
    ASSERT_EQ(mode(), "VIEW");
}

}  // namespace gullymark::testing_support
