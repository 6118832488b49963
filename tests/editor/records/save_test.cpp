#include "editor/form/field_events.h"
#include "editor/form/inlet_form.h"
#include "editor/records/grid_events.h"
#include "editor/records/life_cycle_test.h"
#include "editor/state/workspace.h"
#include "editor/windows/toolbar.h"
#include "editor/windows/workspace_menu.h"

namespace gullymark::editor {
namespace {

// Edit and save.

TEST_F(LifeCycle, SaveRightAfterEditIsRefused) {
    edit(1);
    EXPECT_EQ(mode(), "EDIT");
    mnuSaveinlet_Click();
    EXPECT_EQ(boxes(), Boxes{unsolved});
    EXPECT_EQ(mode(), "EDIT");
    EXPECT_EQ(frminletMDIC.screen.tab, 3);
}

TEST_F(LifeCycle, EditLeavesTheTabAndLocksTheNumber) {
    pick_grid_row(1);
    click_tab(2);
    mnuEditinlet_Click();
    EXPECT_EQ(frminletMDIC.screen.tab, 2);
    EXPECT_FALSE(field(Inlet_Number).enabled);
    EXPECT_TRUE(frminletMDIC.screen.editable(txtS));
}

TEST_F(LifeCycle, AnEmptyNumberIsTestedBeforeTheSolve) {
    mnuAddinlet_Click();
    mnuSaveinlet_Click();
    EXPECT_EQ(boxes(),
              Boxes{warning("Inlet number can't be blank.  Please enter a valid unique Inlet Number")});
    EXPECT_EQ(frminletMDIC.screen.tab, 0);
    EXPECT_EQ(mode(), "ADD");
}

TEST_F(LifeCycle, ASolvedInletIsSavedAndOnlyItsRowChanges) {
    const std::string other = stored("SELECT * FROM INLET WHERE INLET_NUMBER = '2'");
    edit(1);
    type(cboLength, "5");
    Toolbar1_ButtonClick(10);
    EXPECT_TRUE(engine::DataSolved);
    EXPECT_EQ(frminletMDIC.screen.tab, 3);
    EXPECT_FALSE(field(Results_Frame).enabled);
    mnuSaveinlet_Click();
    EXPECT_EQ(boxes(), Boxes{saved});
    EXPECT_EQ(mode(), "VIEW");
    EXPECT_EQ(shown(Inlet_Number), "10");
    EXPECT_EQ(stored("SELECT INLETLENGTH FROM INLET WHERE INLET_NUMBER = '10'"), "5.000");
    EXPECT_EQ(stored("SELECT * FROM INLET WHERE INLET_NUMBER = '2'"), other);
}

TEST_F(LifeCycle, AChangeAfterTheSolveMustBeSolvedAgain) {
    edit(1);
    click_tab(2);
    Toolbar1_ButtonClick(10);
    click_tab(2);
    EXPECT_TRUE(engine::DataSolved) << "looking at the inlet data again changes nothing";
    type(txtn, "0.02");
    EXPECT_FALSE(engine::DataSolved);
    EXPECT_NE(shown(txtQi), "") << "old results stay on view";
    mnuSaveinlet_Click();
    EXPECT_EQ(boxes(), Boxes{unsolved});
    solve_and_save();
    EXPECT_EQ(boxes(), Boxes{saved});
}

// What the first look at the inlet data empties is a change like any other.
TEST_F(LifeCycle, EmptyingFieldsAfterTheSolveIsAChange) {
    edit(1);
    Toolbar1_ButtonClick(10);
    click_tab(2);
    EXPECT_FALSE(engine::DataSolved);
}

TEST_F(LifeCycle, PassingThroughAFieldWithoutAChangeKeepsTheInletSolved) {
    edit(1);
    click_tab(2);
    Toolbar1_ButtonClick(10);
    click_tab(1);
    go_to(discharge1);
    leave_focused_field();
    click_tab(2);
    go_to(txtSdashW);
    go_to(txtSx);
    leave_focused_field();
    EXPECT_TRUE(engine::DataSolved);
}

TEST_F(LifeCycle, ARefusedSolveDoesNotMakeTheInletSavable) {
    edit(1);
    click_tab(1);
    type(discharge1, "0");
    Toolbar1_ButtonClick(10);
    EXPECT_EQ(boxes(), (Boxes{{.kind = BoxKind::warning,
                               .text = "No results computed.  Check your input for discharge.",
                               .title = "Errur"}}));
    EXPECT_EQ(shown(QTotal), "0.000") << "the field was left first";
    EXPECT_EQ(frminletMDIC.screen.tab, 1);
    EXPECT_EQ(frminletMDIC.focused, discharge1);
    mnuSaveinlet_Click();
    EXPECT_EQ(boxes(), Boxes{unsolved});
}

TEST_F(LifeCycle, ARefusedLeaveStopsTheSolve) {
    edit(1);
    click_tab(2);
    go_to(cboClog);
    edited(cboClog, "100");
    Toolbar1_ButtonClick(10);
    EXPECT_EQ(boxes(), Boxes{warning("Clogged cannot be 100%! Please enter new value.")});
    EXPECT_FALSE(engine::DataSolved);
    EXPECT_EQ(frminletMDIC.screen.tab, 2);
}

TEST_F(LifeCycle, TheSpeakingCheckOfTheNumberDoesNotStopTheSolve) {
    add_curb_inlet("3", "1");
    type(Inlet_Number, "");
    Toolbar1_ButtonClick(10);
    EXPECT_EQ(boxes(), Boxes{information("Please enter a valid unique Inlet Number!")});
    EXPECT_TRUE(engine::DataSolved);
    EXPECT_EQ(frminletMDIC.screen.tab, 3);
    EXPECT_EQ(frminletMDIC.focused, std::nullopt);
    EXPECT_EQ(frminletMDIC.wanted_focus, std::nullopt);
}

TEST_F(LifeCycle, SaveForcesNoLeave) {
    edit(1);
    click_tab(2);
    Toolbar1_ButtonClick(10);
    click_tab(2);
    go_to(cboClog);
    mnuSaveinlet_Click();
    EXPECT_EQ(boxes(), Boxes{saved});
}

TEST_F(LifeCycle, AFailedWriteIsNotTold) {
    edit(1);
    type(cboLength, "5");
    Toolbar1_ButtonClick(10);
    stored("DELETE FROM INLET WHERE INLET_NUMBER = '10'");
    mnuSaveinlet_Click();
    EXPECT_EQ(boxes(), Boxes{saved});
    EXPECT_EQ(mode(), "VIEW");
    EXPECT_EQ(all_numbers(), "2");
}

TEST_F(LifeCycle, SaveReleasesTheButtons) {
    Toolbar1_ButtonClick(1);
    EXPECT_TRUE(MDIInlet.Toolbar1[1].checked);
    type(Inlet_Number, "3");
    leave_focused_field();
    click_tab(1);
    clicked(Left_override);
    type(discharge1, "1");
    Toolbar1_ButtonClick(10);
    Toolbar1_ButtonClick(7);
    for (const std::size_t button : {1U, 3U, 5U, 7U}) {
        EXPECT_FALSE(MDIInlet.Toolbar1.at(button).checked) << button;
    }
    EXPECT_TRUE(MDIInlet.Toolbar1[10].checked);
}

}  // namespace
}  // namespace gullymark::editor
