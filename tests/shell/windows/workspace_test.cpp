#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QAccessible>
#include <QComboBox>
#include <QTabWidget>
#include <QTableView>

#include "editor/form/screen_fields.h"
#include "engine/inlet_record.h"
#include "shell/new_road.h"

namespace gullymark::shell {
namespace {

using platform::Box;
using platform::BoxKind;
using testing::ElementsAre;
using testing_support::activate;
using testing_support::choose;
using testing_support::click;
using testing_support::line;
using testing_support::mode;
using testing_support::NewRoad;
using testing_support::page;
using testing_support::press;
using testing_support::RunningProgram;
using testing_support::saved;
using testing_support::type;
using testing_support::workspace;

void type_curb_inlet() {
    press(workspace(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(mode(), "ADD");
    EXPECT_EQ(QApplication::focusWidget(), &line("Inlet_Number"));
    type(workspace(), "I-1");
    press(workspace(), Qt::Key_Tab);
    type(workspace(), "10+50");
    press(workspace(), Qt::Key_L, Qt::AltModifier);
    EXPECT_EQ(page(), 1);
    auto& override_box = *workspace().findChild<QWidget*>("Left_override");
    click(override_box, {8, override_box.height() / 2});
    click(line("discharge1"));
    type(workspace(), "2.5");
}

TEST(Workspace, ARoadFromAnEmptyFolderToASavedInletAndBack) {
    NewRoad road;
    type_curb_inlet();
    press(workspace(), Qt::Key_F9);
    EXPECT_EQ(page(), 3);
    EXPECT_EQ(line("QTotal").text(), "2.500");
    // The defaults of a curb inlet on grade with 2.5 cfs, as the solver's own tests have them.
    EXPECT_EQ(line("txtSpread").text(), "8.813");
    EXPECT_EQ(line("txtQi").text(), "1.198");
    EXPECT_EQ(line("txtQc").text(), "1.302");
    road.robot.boxes.clear();
    press(workspace(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_THAT(road.robot.boxes, ElementsAre(Box{BoxKind::information, "Record Saved"}));
    EXPECT_EQ(mode(), "VIEW");
    EXPECT_EQ(saved(road, "INLET_NUMBER, TOTAL_DISCHARGE, OPENSPREAD, QINT"), "I-1|2.500|8.813|1.198");

    road.leave();
    EXPECT_FALSE(workspace().isVisible());
    activate(RunningProgram::main());
    choose(RunningProgram::main(), "mnuFile", "mnucloseProj");
    road.robot.files.emplace_back(road.folder.path("road.gmk"));
    choose(RunningProgram::main(), "mnuFile", "mnuopenProj");
    activate(workspace());
    EXPECT_EQ(line("Inlet_Number").text(), "I-1");
    EXPECT_EQ(line("Station").text(), "10+50");
    EXPECT_EQ(line("discharge1").text(), "2.500");
    EXPECT_EQ(line("txtQi").text(), "1.198");
    EXPECT_EQ(workspace().findChild<QTableView*>("flexgrid")->model()->index(0, 0).data(), "I-1");
    road.leave();
}

TEST(Workspace, SaveRefusesAnInletThatChangedAfterItsSolve) {
    NewRoad road;
    type_curb_inlet();
    road.robot.boxes.clear();
    press(workspace(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_THAT(
        road.robot.boxes,
        ElementsAre(Box{BoxKind::plain, "Data has changed! Please 'Solve' Inlet Analysis before saving"}));
    EXPECT_EQ(mode(), "ADD");
    road.leave();
}

TEST(Workspace, AnUndoWithinAFieldGoesIntoTheInletToo) {
    NewRoad road;
    const auto station = [] { return engine::open_inlet.text(engine::Column::STATION); };
    press(workspace(), Qt::Key_N, Qt::ControlModifier);
    type(workspace(), "I-1");
    press(workspace(), Qt::Key_Tab);
    type(workspace(), "10+50");
    EXPECT_EQ(station(), "10+50");
    press(workspace(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(line("Station").text(), "");
    EXPECT_EQ(station(), "");
    press(workspace(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(line("Station").text(), "10+50");
    EXPECT_EQ(station(), "10+50");
    road.leave();
}

TEST(Workspace, AnUndoDoesNotBringBackTheTextBeforeItsFormat) {
    NewRoad road;
    press(workspace(), Qt::Key_N, Qt::ControlModifier);
    type(workspace(), "I-1");
    click(line("TopElevation"));
    type(workspace(), "1.5");
    press(workspace(), Qt::Key_Tab);
    EXPECT_EQ(line("TopElevation").text(), "1.500");
    click(line("TopElevation"));
    press(workspace(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(line("TopElevation").text(), "1.500");
    type(workspace(), "2");
    press(workspace(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(line("TopElevation").text(), "1.500");
    road.leave();
}

TEST(Workspace, ARefusedLeaveKeepsTheFocusAndTheClickDoesNotAct) {
    NewRoad road;
    press(workspace(), Qt::Key_N, Qt::ControlModifier);
    type(workspace(), "I-1");
    auto& list = *workspace().findChild<QComboBox*>("inlet_type");
    click(*list.lineEdit());
    list.lineEdit()->selectAll();
    type(workspace(), "Xx");
    road.robot.boxes.clear();
    auto& tabs = *workspace().findChild<QTabWidget*>("SSTab1")->tabBar();
    click(tabs, tabs.tabRect(2).center());
    EXPECT_THAT(
        road.robot.boxes,
        ElementsAre(Box{BoxKind::plain, "Value not present in the list... Please enter a valid value.."}));
    EXPECT_EQ(page(), 0);
    EXPECT_EQ(list.currentText(), "Curb Inlet");
    press(workspace(), Qt::Key_I, Qt::AltModifier);
    EXPECT_EQ(page(), 2);
    road.leave();
}

TEST(Workspace, ThePagesTurnByTheirLettersAndByThePageKeys) {
    NewRoad road;
    press(workspace(), Qt::Key_N, Qt::ControlModifier);
    type(workspace(), "I-1");
    const std::vector<std::pair<Qt::Key, int>> letters = {
        {Qt::Key_L, 1}, {Qt::Key_I, 2}, {Qt::Key_R, 3}, {Qt::Key_D, 0}};
    for (const auto& [key, expected] : letters) {
        press(workspace(), key, Qt::AltModifier);
        EXPECT_EQ(page(), expected);
    }
    press(workspace(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(page(), 1);
    press(workspace(), Qt::Key_PageUp, Qt::ControlModifier);
    press(workspace(), Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(page(), 0);
    EXPECT_EQ(line("Inlet_Number").text(), "I-1");
    road.leave();
}

TEST(Workspace, EveryFieldHasANameForAReaderAndATipWithItsUnit) {
    NewRoad road;
    for (const auto id : editor::all_fields) {
        const auto& field = editor::screen_field(id);
        if (!field.column || editor::has_rule(id, editor::hidden)) {
            continue;
        }
        const QString name = QString::fromStdString(std::string(editor::field_name(id)));
        auto* widget = workspace().findChild<QWidget*>(name);
        EXPECT_FALSE(widget->toolTip().isEmpty()) << name.toStdString();
        const auto labels = workspace().findChildren<QLabel*>();
        const bool labeled =
            !widget->accessibleName().isEmpty() ||
            std::ranges::any_of(labels, [&](QLabel* label) { return label->buddy() == widget; });
        EXPECT_TRUE(labeled) << name.toStdString();
    }
    EXPECT_EQ(line("txtSpread").toolTip(), "Spread of water at the opening (ft)");
    road.leave();
}

TEST(Workspace, BothSidesOfTheFlowHaveTheirNamesForAScreenReader) {
    NewRoad road;
    for (const auto& [frame, side] : {std::pair("discharge1_frame", "LEFT"), {"discharge2_frame", "RIGHT"}}) {
        auto* widget = workspace().findChild<QWidget*>(frame);
        EXPECT_EQ(QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name), side);
    }
    road.leave();
}

}  // namespace
}  // namespace gullymark::shell
