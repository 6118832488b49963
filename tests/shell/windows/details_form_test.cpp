#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/running_program.h"

namespace gullymark::shell {
namespace {

using platform::Box;
using platform::BoxKind;
using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::choose;
using testing_support::press;
using testing_support::RunningProgram;
using testing_support::settle;
using testing_support::type;

/// The form of a new project, and a user who does something in it before leaving it without a save.
struct NewProject : RunningProgram {
    std::vector<Box> boxes;  // of the form alone

    explicit NewProject(const std::function<void(NewProject&)>& in_form) {
        create_project("mill.gmk", [&](QWidget& form) {
            robot.boxes.clear();
            testing_support::activate(form);
            in_form(*this);
            boxes = robot.boxes;
            if (form.isVisible()) {
                robot.answers.assign(store::frmProject.changed ? 1 : 0, QMessageBox::Yes);
                choose(details(), "mnuProjFile", "mnuprojexit");
            }
        });
    }

    static std::string text(const char* name) {
        if (const auto* list = details().findChild<QComboBox*>(name)) {
            return list->currentText().toStdString();
        }
        return line(details(), name).text().toStdString();
    }
};

TEST(DetailsForm, ShowsTitleLabelsAndTheStartValuesOfANewProject) {
    const NewProject project([](NewProject& /*program*/) {
        EXPECT_EQ(RunningProgram::details().windowTitle(), "Project");
        EXPECT_EQ(RunningProgram::details().findChild<QGroupBox*>("fixed_details_frame")->title(),
                  "Project Details");
        std::vector<std::string> labels;
        for (const auto& field : store::details_fields) {
            const auto name = "fixed_label_" + std::string(field.name);
            labels.push_back(RunningProgram::panel(RunningProgram::details(), name.c_str()));
        }
        EXPECT_THAT(labels, ElementsAre("PROJECT ID", "PROJECT NAME", "DESCRIPTION", "LOCATION",
                                        "COUNTY/CITY", "STATE", "DESIGNED BY", "UNITS"));
        EXPECT_EQ(NewProject::text("county"), "Autauga");
        EXPECT_EQ(NewProject::text("state"), "AL");
        EXPECT_EQ(NewProject::text("units"), "ENGLISH");
        EXPECT_EQ(RunningProgram::details().findChild<QComboBox*>("county")->count(), 66);
        EXPECT_FALSE(RunningProgram::details().findChild<QAction*>("mnuprojcancel")->isEnabled());
    });
}

TEST(DetailsForm, GoesFromFieldToFieldByTabFromTheTopDown) {
    const NewProject project([](NewProject& /*program*/) {
        std::vector<std::string> order;
        for (int i = 0; i < 8; ++i) {
            order.push_back(QApplication::focusWidget()->objectName().toStdString());
            press(RunningProgram::details(), Qt::Key_Tab);
        }
        EXPECT_THAT(order, ElementsAre("project_id", "project_name", "description", "location", "county",
                                       "state", "designer", "units"));
    });
}

TEST(DetailsForm, StopsTypingAtTheLimits) {
    const NewProject project([](NewProject& /*program*/) {
        const std::string long_text(230, 'x');
        std::vector<std::size_t> lengths;
        for (const char* name : {"project_id", "project_name", "description", "location", "designer"}) {
            RunningProgram::line(RunningProgram::details(), name).setFocus();
            type(RunningProgram::details(), long_text);
            lengths.push_back(NewProject::text(name).size());
        }
        EXPECT_THAT(lengths, ElementsAre(20, 50, 200, 50, 25));
    });
}

TEST(DetailsForm, RefusesToSaveWithoutAnIdentifier) {
    const NewProject project([](NewProject& /*program*/) {
        press(RunningProgram::details(), Qt::Key_S, Qt::ControlModifier);
        EXPECT_TRUE(RunningProgram::details().isVisible());
    });
    EXPECT_THAT(project.boxes,
                ElementsAre(Box{BoxKind::warning, "Project ID is a Required Field!", "GullymarkAL"}));
}

TEST(DetailsForm, SavesWhatWasTypedAndGoesOnToTheWorkspace) {
    int workspaces = 0;
    const NewProject project([&](NewProject& /*program*/) {
        store::windows.show_workspace = [&] { ++workspaces; };
        type(RunningProgram::details(), "P-7");
        press(RunningProgram::details(), Qt::Key_Tab);
        type(RunningProgram::details(), "Mill Road");
        auto* county = RunningProgram::details().findChild<QComboBox*>("county");
        county->setFocus();
        county->lineEdit()->selectAll();
        type(RunningProgram::details(), "Nowhere");
        choose(RunningProgram::details(), "mnuProjFile", "mnuprojsave");
        EXPECT_FALSE(RunningProgram::details().isVisible());
    });
    EXPECT_THAT(project.boxes,
                ElementsAre(Box{BoxKind::information, "Project Details are Saved!", "GullymarkAL"}));
    EXPECT_EQ(workspaces, 1);
    EXPECT_EQ(store::session.projectId, "P-7");
    EXPECT_EQ(store::session.projectName, "Mill Road");
    EXPECT_EQ(store::session.projectCounty, "Nowhere");
    EXPECT_FALSE(RunningProgram::main().isVisible());
    EXPECT_EQ(RunningProgram::panel(RunningProgram::main(), "StatusBar_panel3"), "UNITS: ENGLISH");
}

TEST(DetailsForm, AsksBeforeItIsLeftWithChanges) {
    const NewProject project([](NewProject& program) {
        type(RunningProgram::details(), "P");
        program.robot.answers = {QMessageBox::No};
        RunningProgram::details().close();
        settle();
        EXPECT_TRUE(RunningProgram::details().isVisible());
    });
    EXPECT_THAT(project.boxes,
                ElementsAre(Box{BoxKind::warning_question, "Exit without saving? ", "GullymarkAL"}));
    EXPECT_FALSE(RunningProgram::details().isVisible());
}

TEST(DetailsForm, IsLeftWithoutAQuestionWhenNothingWasTyped) {
    const NewProject project([](NewProject& /*program*/) { RunningProgram::details().close(); });
    EXPECT_THAT(project.boxes, IsEmpty());
    EXPECT_FALSE(RunningProgram::details().isVisible());
}

TEST(DetailsForm, KeepsIdentifierAndUnitsOfAnExistingProject) {
    NewProject project([](NewProject& /*program*/) {
        store::windows.show_workspace = [] {};
        type(RunningProgram::details(), "P-7");
        press(RunningProgram::details(), Qt::Key_Tab);
        type(RunningProgram::details(), "Mill Road");
        press(RunningProgram::details(), Qt::Key_S, Qt::ControlModifier);
    });
    handle([] { store::frmsoftwaremain.visible = true; });
    testing_support::activate(RunningProgram::main());
    project.robot.in_window.emplace_back([](QWidget& form) {
        testing_support::activate(form);
        EXPECT_FALSE(RunningProgram::line(RunningProgram::details(), "project_id").isEnabled());
        EXPECT_FALSE(form.findChild<QComboBox*>("units")->isEnabled());
        EXPECT_EQ(NewProject::text("project_id"), "P-7");
        EXPECT_EQ(NewProject::text("units"), "ENGLISH");
        EXPECT_EQ(QApplication::focusWidget()->objectName(), "project_name");
        EXPECT_TRUE(form.findChild<QAction*>("mnuprojcancel")->isEnabled());
        choose(RunningProgram::details(), "mnuProjFile", "mnuprojexit");
    });
    choose(RunningProgram::main(), "mnuFile", "mnuupdateProj");
}

}  // namespace
}  // namespace gullymark::shell
