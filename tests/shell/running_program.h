#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include <gtest/gtest.h>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>

#include "platform/file_dialog.h"
#include "platform/files.h"
#include "robot.h"
#include "shell/binding/turn.h"
#include "shell/start.h"
#include "store/main_window.h"
#include "store/project_details.h"
#include "store/project_session.h"
#include "store/project_store.h"
#include "store/windows.h"
#include "support/fresh_start.h"
#include "support/outside_double.h"

namespace gullymark::testing_support {

/// What the stand-in for ending the program throws: the real one does not return.
struct ProgramEnded {};

/// The program as it stands after the splash: its real windows, on a project folder of its own.
struct RunningProgram {
    TempFolder folder;
    bool ended = false;
    Robot robot;

    RunningProgram() {
        forget_everything();
        platform::printDlg = {};
        const std::string program = folder.path("program");
        std::filesystem::create_directory(program);
        platform::copy_file(GULLYMARK_TEMPLATE, program + "/GullymarkAL10.rdb");
        platform::set_program_folder(program);
        shell::build_windows();
        store::windows.end_program = [this] { ended = true; };
        shell::handle([] {
            store::load_main_window();
            store::frmsoftwaremain.visible = true;
        });
        activate(main());
    }
    ~RunningProgram() {
        shell::destroy_windows();
        forget_everything();
        platform::outside = {};
        platform::printDlg = {};
        platform::set_program_folder("");
    }
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    /// A window by its name.
    [[nodiscard]] static QMainWindow& window(const char* name) {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == name) {
                return dynamic_cast<QMainWindow&>(*widget);
            }
        }
        throw std::logic_error(std::string("no window ") + name);
    }
    [[nodiscard]] static QMainWindow& main() { return window("frmsoftwaremain"); }
    [[nodiscard]] static QMainWindow& details() { return window("frmProject"); }

    [[nodiscard]] static std::string panel(const QMainWindow& in, const char* name) {
        return in.findChild<QLabel*>(name)->text().toStdString();
    }
    [[nodiscard]] static QLineEdit& line(const QMainWindow& in, const char* name) {
        return *in.findChild<QLineEdit*>(name);
    }

    /// A new project in the file of that name; then what happens in the details form.
    void create_project(const std::string& name, std::function<void(QWidget&)> in_details) {
        robot.files.emplace_back(folder.path(name));
        robot.in_window.push_back(std::move(in_details));
        choose(main(), "mnuFile", "mnucreateProj");
    }
};

}  // namespace gullymark::testing_support
