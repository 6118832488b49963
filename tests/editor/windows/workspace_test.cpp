#include "editor/windows/workspace_test.h"

#include <array>

#include "editor/form/field_events.h"
#include "editor/form/inlet_form.h"
#include "editor/form/screen_fields.h"
#include "editor/form/status_bar.h"
#include "editor/records/grid_events.h"
#include "editor/records/screen_mode.h"
#include "editor/state/inlet_grid.h"
#include "editor/state/windows.h"
#include "editor/state/workspace.h"
#include "editor/windows/workspace_menu.h"

namespace gullymark::editor {
namespace {

// The enable table: "View" with rows, "View" without, "Add", "Edit"; u is unchanged.

struct EnableRow {
    const char* name;
    platform::Field Workspace::*item;
    const char* states;
};

constexpr auto enable_rows = std::to_array<EnableRow>({
    {"mnuAddinlet", &Workspace::mnuAddinlet, "++--"},
    {"mnuSaveinlet", &Workspace::mnuSaveinlet, "--++"},
    {"mnuEditinlet", &Workspace::mnuEditinlet, "+---"},
    {"mnuflexrefresh", &Workspace::mnuflexrefresh, "++--"},
    {"mnuflexcopyinlet", &Workspace::mnuflexcopyinlet, "+---"},
    {"mnuflexmodifyinlet", &Workspace::mnuflexmodifyinlet, "+---"},
    {"mnuflexdeleteinlet", &Workspace::mnuflexdeleteinlet, "+---"},
    {"mnuflex_inlet_report", &Workspace::mnuflex_inlet_report, "+---"},
    {"mnuInletDesignForm", &Workspace::mnuInletDesignForm, "+---"},
    {"mnuExit", &Workspace::mnuExit, "++uu"},
});

void expect_states(std::size_t column, bool before) {
    for (const auto& row : enable_rows) {
        const char state = row.states[column];
        EXPECT_EQ((MDIInlet.*row.item).enabled, state == 'u' ? before : state == '+')
            << row.name << " in column " << column;
    }
    const bool view = column < 2;
    EXPECT_EQ(frmgrid.enabled, view);
    for (const FieldId frame : {Project_Details_Frame, Input_Details_Frame, Flow_Data_Frame, CG_frame}) {
        EXPECT_EQ(frminletMDIC.screen[frame].enabled, !view) << field_name(frame);
    }
    constexpr std::array modes = {"VIEW", "VIEW", "ADD", "EDIT"};
    EXPECT_EQ(MDIInlet.screenmode[1], modes.at(column));
}

void set_all(bool enabled) {
    for (const auto& row : enable_rows) {
        (MDIInlet.*row.item).enabled = enabled;
    }
    frminletMDIC.screen[Inlet_Number].enabled = enabled;
}

TEST_F(WorkspaceTest, ActivateMenuSetsTheModeAndWhatFollowsIt) {
    show_with(1);
    for (const bool before : {true, false}) {
        set_all(before);
        tab_clicked(2);
        Activate_menu("View");
        expect_states(0, before);
        EXPECT_EQ(field(Inlet_Number).enabled, before);
        EXPECT_EQ(frminletMDIC.screen.tab, 2);

        set_all(before);
        Activate_menu("Edit");
        expect_states(3, before);
        EXPECT_FALSE(field(Inlet_Number).enabled);
        EXPECT_EQ(frminletMDIC.screen.tab, 2);

        set_all(before);
        Activate_menu("Add");
        expect_states(2, before);
        EXPECT_TRUE(field(Inlet_Number).enabled);
        EXPECT_EQ(frminletMDIC.screen.tab, 0);
    }
}

TEST_F(WorkspaceTest, WithoutRowsViewLeavesAddRefreshAndExit) {
    show_with(0);
    for (const bool before : {true, false}) {
        set_all(before);
        Activate_menu("View");
        expect_states(1, before);
    }
}

TEST_F(WorkspaceTest, AnyOtherWordDoesNothing) {
    show_with(1);
    for (const char* word : {"VIEW", "view", "", "Save"}) {
        set_all(false);
        Activate_menu(word);
        EXPECT_EQ(mode(), "VIEW");
        EXPECT_FALSE(MDIInlet.mnuAddinlet.enabled) << word;
    }
}

TEST_F(WorkspaceTest, AnEmptyProjectOpensWithTheNoRowsState) {
    show_with(0);
    expect_states(1, true);
    EXPECT_EQ(frmgrid.row, 0);
    EXPECT_EQ(shown(Inlet_Number), "");
}

TEST_F(WorkspaceTest, AProjectWithRowsOpensOnItsFirstRow) {
    show_with(2);
    expect_states(0, true);
    EXPECT_EQ(frmgrid.row, 1);
    EXPECT_EQ(MDIInlet.CurrentGridRow, 1);
    EXPECT_EQ(shown(Inlet_Number), "1");
    EXPECT_TRUE(MDIInlet.visible);
}

TEST_F(WorkspaceTest, ThePanelsShowModeNumberProjectKindAndUnits) {
    show_with(1);
    EXPECT_EQ(MDIInlet.screenmode,
              (std::array<std::string, 4>{"SCREEN MODE - ", "VIEW", "INLET NUMBER - ", "1"}));
    EXPECT_EQ(MDIInlet.StatusBar,
              (std::array<std::string, 3>{"AL - Mobile: Mill Road", "Curb Inlet - --CONTINUOUS GRADE",
                                          "UNITS: ENGLISH"}));
    EXPECT_EQ(MDIInlet.caption, "GullymarkAL");
}

TEST_F(WorkspaceTest, TheCurrentPanelsAloneFollowTheRecord) {
    show_with(1);
    store::session.projectName = "Other";
    store::session.projectUnits = "METRIC";
    frminletMDIC.screen.set_text(inlet_type, "Slotted Inlet");
    update_currentstatusbar();
    EXPECT_EQ(MDIInlet.StatusBar,
              (std::array<std::string, 3>{"AL - Mobile: Mill Road", "Slotted Inlet - --CONTINUOUS GRADE",
                                          "UNITS: ENGLISH"}));
}

// Menu.

TEST(WorkspaceMenu, HasTheseItems) {
    constexpr auto items = std::to_array<std::array<std::string_view, 2>>({
        {"mnufile", "&File"},
        {"mnuAddinlet", "&Add New Inlet"},
        {"mnuEditinlet", "&Edit Inlet"},
        {"mnuSaveinlet", "&Save Inlet"},
        {"mnuflexrefresh", "&Refresh"},
        {"mnuviewInlets", "&View Inlets"},
        {"mnuflexcopyinlet", "Copy Inlet"},
        {"mnuflexmodifyinlet", "&Modify Inlet Number"},
        {"mnuflexdeleteinlet", "&Delete Inlet"},
        {"mnuflex_inlet_report", "&Print Report"},
        {"mnuInletDesignForm", "Inlet Design Form"},
        {"mnuExit", "E&xit"},
        {"mnuhelp", "&Help"},
        {"mnuInlethelp", "&Help on GullymarkAL"},
        {"mnuabout", "About GullymarkAL"},
    });
    ASSERT_EQ(workspace_menu.size(), items.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        EXPECT_EQ(workspace_menu.at(i).name, items.at(i)[0]);
        EXPECT_EQ(workspace_menu.at(i).caption, items.at(i)[1]);
    }
}

TEST_F(WorkspaceTest, WithoutRowsEditAndCopySayThatThereIsNothing) {
    show_with(0);
    mnuEditinlet_Click();
    EXPECT_EQ(boxes(), Boxes{information("No records to Edit!")});
    EXPECT_EQ(mode(), "VIEW");
    mnuflexcopyinlet_Click();
    EXPECT_EQ(boxes(), Boxes{information("No records to Copy!")});
}

TEST_F(WorkspaceTest, ACopyIsMadeOnlyAfterAYes) {
    show_with(1);
    user.answers = {Answer::no};
    mnuflexcopyinlet_Click();
    EXPECT_EQ(mode(), "VIEW");
    EXPECT_EQ(boxes().size(), 1U);
}

TEST_F(WorkspaceTest, OutsideViewCommandsThatChangeRowsDoNothing) {
    show_with(1);
    mnuEditinlet_Click();
    int reports = 0;
    windows.inlet_report = [&reports] { ++reports; };
    mnuflexcopyinlet_Click();
    mnuflexmodifyinlet_Click();
    mnuflexdeleteinlet_Click();
    mnuflexrefresh_Click();
    mnuflex_inlet_report_Click();
    EXPECT_EQ(boxes(), Boxes{});
    EXPECT_EQ(mode(), "EDIT");
    EXPECT_EQ(reports, 0);
}

TEST_F(WorkspaceTest, TheDesignFormTestsNoMode) {
    show_with(1);
    int reports = 0;
    int forms = 0;
    windows.inlet_report = [&reports] { ++reports; };
    windows.InletDesignForm = [&forms] { ++forms; };
    mnuflex_inlet_report_Click();
    mnuInletDesignForm_Click();
    EXPECT_EQ(reports, 1);
    EXPECT_EQ(forms, 1);
    mnuEditinlet_Click();
    mnuInletDesignForm_Click();
    EXPECT_EQ(forms, 2);
}

// Refresh.

TEST_F(WorkspaceTest, RefreshShowsWhatAnotherProgramWrote) {
    show_with(2);
    pick_grid_row(2);
    stored("UPDATE INLET SET STATION = '9+99'; INSERT INTO INLET (INLET_NUMBER) VALUES ('3')");
    mnuflexrefresh_Click();
    EXPECT_EQ(frmgrid.row, 2);
    EXPECT_EQ(shown(Station), "9+99");
    EXPECT_EQ(grid_cell(3, 0), "3");
}

TEST_F(WorkspaceTest, RefreshFollowsRowsThatCameIntoAnEmptyProject) {
    show_with(0);
    put_inlets({{{"INLET_NUMBER", "1"}}});
    mnuflexrefresh_Click();
    expect_states(0, true);
    EXPECT_EQ(shown(Inlet_Number), "1");
}

TEST_F(WorkspaceTest, RefreshStaysWithinRowsThatWereTakenAway) {
    show_with(3);
    pick_grid_row(3);
    stored("DELETE FROM INLET WHERE INLET_NUMBER > '1'");
    mnuflexrefresh_Click();
    EXPECT_EQ(frmgrid.row, 1);
    EXPECT_EQ(shown(Inlet_Number), "1");
}

}  // namespace
}  // namespace gullymark::editor
