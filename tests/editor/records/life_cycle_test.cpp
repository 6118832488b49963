#include "editor/records/life_cycle_test.h"

#include "editor/form/field_events.h"
#include "editor/form/inlet_form.h"
#include "editor/form/pages.h"
#include "editor/form/screen_fields.h"
#include "editor/records/grid_events.h"
#include "editor/records/inlet_rows.h"
#include "editor/state/inlet_grid.h"
#include "editor/state/workspace.h"
#include "editor/windows/workspace_menu.h"

namespace gullymark::editor {
namespace {

// Opening the form.

TEST_F(LifeCycle, TheFormOpensOnTheFirstRowInTextOrder) {
    mnuExit_Click();
    show_workspace();
    EXPECT_EQ(grid_cell(1, 0), "10");
    EXPECT_EQ(grid_cell(2, 0), "2");
    EXPECT_EQ(shown(Inlet_Number), "10");
    EXPECT_EQ(shown(txtProject), "Mill Road");
    EXPECT_EQ(frminletMDIC.screen.tab, 0);
    EXPECT_TRUE(engine::DataSolved);
    EXPECT_EQ(mode(), "VIEW");
    EXPECT_EQ(engine::unit_constants.numberFormat, "#0.000");
}

TEST_F(LifeCycle, TheWaitPointerEndsWithTheLoad) {
    user.wait_pointers.clear();
    mnuflexrefresh_Click();
    EXPECT_EQ(user.wait_pointers, (std::vector<bool>{true, false, true, false}));
}

// Add.

TEST_F(LifeCycle, AddStartsANewRowWithTheRoadOfTheLastOne) {
    pick_grid_row(2);
    mnuAddinlet_Click();
    EXPECT_EQ(mode(), "ADD");
    EXPECT_FALSE(engine::DataSolved);
    EXPECT_EQ(shown(RoadWay), "Main");
    EXPECT_EQ(shown(project_id), "P-1");
    EXPECT_EQ(shown(Inlet_Number), "");
    EXPECT_EQ(shown(txtQi), "");
    EXPECT_EQ(frminletMDIC.wanted_focus, Inlet_Number);
    EXPECT_EQ(MDIInlet.screenmode[3], "");
    EXPECT_EQ(all_numbers(), "10\n2") << "nothing is stored before the save";
}

TEST_F(LifeCycle, ASavedNewRowIsFoundInTheFileWithItsTexts) {
    EXPECT_EQ(stored("SELECT PROJECT_ID, ROADWAY, STATION, DISCHARGE1, LDISCHARGE_OVERRIDE, INLET_SUBTYPE "
                     "FROM INLET WHERE INLET_NUMBER = '2'"),
              "P-1|Main|2+00|2.000|YES|");
}

TEST_F(LifeCycle, AfterAnAddTheLastRowIsSelectedWhereverTheNewOneSorts) {
    add_curb_inlet("0", "1");
    solve_and_save();
    EXPECT_EQ(grid_cell(1, 0), "0");
    EXPECT_EQ(MDIInlet.CurrentGridRow, 3);
    EXPECT_EQ(frmgrid.row, 3);
    EXPECT_EQ(shown(Inlet_Number), "2");
}

TEST_F(LifeCycle, AddShowsTheStoresErrorWhenTheFileIsClosed) {
    store::project_store.connection.close();
    mnuAddinlet_Click();
    EXPECT_EQ(boxes(), Boxes{plain("no project file is open")});
    EXPECT_EQ(mode(), "VIEW") << "what is typed could never be saved";
}

// Copy.

TEST_F(LifeCycle, CopyAndEditShowTheStoresErrorWhenTheFileIsClosed) {
    store::project_store.connection.close();
    mnuflexcopyinlet_Click();
    EXPECT_EQ(boxes(), Boxes{plain("no project file is open")});
    mnuEditinlet_Click();
    EXPECT_EQ(boxes(), Boxes{plain("no project file is open")});
    EXPECT_EQ(mode(), "VIEW");
}

TEST_F(LifeCycle, ACopyTakesTheDataButNoNumberNoPreviousInletsAndNoResults) {
    put_inlets({{{"INLET_NUMBER", "P"}, {"QCARRY", "0.5"}}});
    mnuflexrefresh_Click();
    edit(2);
    click_tab(1);
    go_to(preinlet1);
    edited(preinlet1, "P");
    leave_focused_field();
    solve_and_save();
    boxes();
    EXPECT_EQ(shown(QTotal), "2.500");

    user.answers = {Answer::yes};
    mnuflexcopyinlet_Click();
    EXPECT_EQ(boxes(), (Boxes{{.kind = BoxKind::information_question,
                               .text = "Copy Inlet -  2 - Data as a New Inlet?",
                               .on_enter = Answer::yes}}));
    EXPECT_EQ(mode(), "ADD");
    EXPECT_FALSE(engine::DataSolved);
    EXPECT_EQ(frminletMDIC.wanted_focus, Inlet_Number);
    for (const FieldId id :
         {Inlet_Number, preinlet1, preinlet2, carryover1, carryover2, txtQi, txtQc, txtE}) {
        EXPECT_EQ(shown(id), "") << field_name(id);
    }
    EXPECT_EQ(shown(project_id), "P-1");
    EXPECT_EQ(shown(RoadWay), "Main");
    EXPECT_EQ(shown(Station), "2+00");
    EXPECT_EQ(shown(discharge1), "2.000");
    EXPECT_EQ(shown(QTotal), "2.500") << "the carryover of the old inlet is still in the sum";

    type(Inlet_Number, "3");
    leave_focused_field();
    mnuSaveinlet_Click();
    EXPECT_EQ(boxes(), Boxes{unsolved});
    solve_and_save();
    EXPECT_EQ(boxes(), Boxes{saved});
    EXPECT_EQ(stored("SELECT QINT FROM INLET WHERE INLET_NUMBER = '3'").empty(), false);
}

// Every column: what a copy takes, and what it leaves.
TEST_F(LifeCycle, ACopyTakesTheseColumns) {
    for (const FieldId id : all_fields) {
        if (screen_field(id).column) {
            frminletMDIC.screen.set_text(id, "x" + std::string(field_name(id)));
        }
    }
    user.answers = {Answer::yes};
    mnuflexcopyinlet_Click();
    std::vector<std::string> left_out;
    for (const FieldId id : all_fields) {
        if (!screen_field(id).column || screen_field(id).tab == 3) {
            continue;
        }
        if (shown(id) != "x" + std::string(field_name(id))) {
            left_out.emplace_back(field_name(id));
        }
    }
    EXPECT_EQ(left_out, (std::vector<std::string>{"project_id", "Inlet_Number", "preinlet1", "carryover1",
                                                  "preinlet2", "carryover2"}));
}

// Delete.

TEST_F(LifeCycle, DeleteAsksAndTakesTheRowOfTheGrid) {
    pick_grid_row(2);
    user.answers = {Answer::yes};
    mnuflexdeleteinlet_Click();
    EXPECT_EQ(boxes(),
              (Boxes{question("Delete Current Inlet - 2 ?"),
                     warning("Current record Deleted! Please Refresh the screen to verify the results")}));
    EXPECT_EQ(all_numbers(), "10");
    EXPECT_EQ(MDIInlet.CurrentGridRow, 1);
    EXPECT_EQ(shown(Inlet_Number), "10");
}

TEST_F(LifeCycle, DeletingTheFirstRowSelectsTheNewFirstRow) {
    pick_grid_row(1);
    user.answers = {Answer::yes};
    mnuflexdeleteinlet_Click();
    EXPECT_EQ(all_numbers(), "2");
    EXPECT_EQ(MDIInlet.CurrentGridRow, 1);
    EXPECT_EQ(shown(Inlet_Number), "2");
}

TEST_F(LifeCycle, DeleteTakesOnlyOneOfTwoRowsWithTheSameNumber) {
    put_inlets({{{"INLET_NUMBER", "2"}, {"STATION", "twin"}}});
    mnuflexrefresh_Click();
    pick_grid_row(3);
    user.answers = {Answer::yes};
    mnuflexdeleteinlet_Click();
    EXPECT_EQ(all_numbers(), "10\n2");
}

TEST_F(LifeCycle, ANoKeepsTheInlet) {
    user.answers = {Answer::no};
    mnuflexdeleteinlet_Click();
    EXPECT_EQ(boxes().size(), 1U);
    EXPECT_EQ(all_numbers(), "10\n2");
}

Box delete_denied(const std::string& number) {
    return warning("Current Inlet has Carryover Discharge to Inlet Number - " + number + " - Delete Denied!");
}

TEST_F(LifeCycle, AnInletThatFeedsAnotherIsNotDeleted) {
    put_inlets({{{"INLET_NUMBER", "L"}, {"PREINLET1", "10"}}, {{"INLET_NUMBER", "R"}, {"PREINLET2", "2"}}});
    mnuflexrefresh_Click();
    user.answers = {Answer::yes, Answer::yes};
    pick_grid_row(1);
    mnuflexdeleteinlet_Click();
    EXPECT_EQ(boxes(), (Boxes{question("Delete Current Inlet - 10 ?"), delete_denied("L")}));
    pick_grid_row(2);
    mnuflexdeleteinlet_Click();
    EXPECT_EQ(boxes(), (Boxes{question("Delete Current Inlet - 2 ?"), delete_denied("R")}));
    EXPECT_EQ(all_numbers(), "10\n2\nL\nR");
}

TEST_F(LifeCycle, DeletingTheLastInletShowsBothBoxesAndTheEmptyState) {
    user.answers = {Answer::yes, Answer::yes};
    mnuflexdeleteinlet_Click();
    boxes();
    mnuflexdeleteinlet_Click();
    EXPECT_EQ(boxes(),
              (Boxes{question("Delete Current Inlet - 10 ?"),
                     warning("Current record Deleted! Please Refresh the screen to verify the results"),
                     information("No Inlets in Project!  Please Add Inlets")}));
    EXPECT_FALSE(MDIInlet.mnuEditinlet.enabled);
    EXPECT_EQ(shown(Inlet_Number), "");
    mnuflexdeleteinlet_Click();
    EXPECT_EQ(boxes(), Boxes{information("No records to Delete!")});
}

// Cancel.

TEST_F(LifeCycle, ACancelledNewRowIsGone) {
    mnuAddinlet_Click();
    type(Inlet_Number, "3");
    user.answers = {Answer::yes};
    mnuExit_Click();
    EXPECT_EQ(boxes(), (Boxes{{.kind = BoxKind::information_question,
                               .text = "Exit without Saving?",
                               .title = "Gullymark"}}));
    EXPECT_EQ(mode(), "VIEW");
    EXPECT_EQ(all_numbers(), "10\n2");
    EXPECT_EQ(shown(Inlet_Number), "2");
}

TEST_F(LifeCycle, ACancelledChangeIsGone) {
    edit(1);
    type(cboLength, "7");
    user.answers = {Answer::yes};
    mnuExit_Click();
    EXPECT_EQ(shown(cboLength), "2.00");
    EXPECT_EQ(stored("SELECT INLETLENGTH FROM INLET WHERE INLET_NUMBER = '10'"), "2.00");
}

// Following the grid.

TEST_F(LifeCycle, APickInTheGridShowsTheInletOnTheFirstTab) {
    click_tab(3);
    pick_grid_row(2);
    EXPECT_EQ(frminletMDIC.screen.tab, 0);
    EXPECT_EQ(shown(Inlet_Number), "2");
    EXPECT_EQ(MDIInlet.screenmode[3], "2");
    pick_grid_row(1);
    EXPECT_EQ(shown(Inlet_Number), "10");
}

TEST_F(LifeCycle, AnUnknownNumberEmptiesTheForm) {
    Inletrecord_find("none");
    EXPECT_TRUE(frminletMDIC.adoInletRS.at_end());
    EXPECT_EQ(shown(Inlet_Number), "");
    Inletrecord_find("10");
    EXPECT_EQ(shown(Inlet_Number), "10");
}

// Tabs.

TEST_F(LifeCycle, TheResultsOfADitchOnGradeHaveCaptionsOfTheirOwn) {
    click_tab(3);
    EXPECT_EQ(field(rlbldepth).caption, "DEPTH AT CURB");
    EXPECT_EQ(field(rlblflowratio).caption, "GUTTER FLOW RATIO");
    frminletMDIC.screen.set_text(inlet_type, "Grate Inlet in a Ditch");
    set_tab_display(3);
    EXPECT_EQ(field(rlbldepth).caption, "DEPTH OF WATER");
    EXPECT_EQ(field(rlblflowratio).caption, "DITCH FLOW RATIO");
    frminletMDIC.screen.set_text(inlet_location, "SUMP");
    set_tab_display(3);
    EXPECT_EQ(field(rlbldepth).caption, "DEPTH AT CURB");
    EXPECT_EQ(field(rlblflowratio).caption, "GUTTER FLOW RATIO");
    EXPECT_FALSE(field(Results_Frame).enabled);
}

// An apostrophe.

TEST_F(LifeCycle, AnApostropheInANumberShowsTheStoresError) {
    mnuAddinlet_Click();
    type(Inlet_Number, "O'B");
    EXPECT_TRUE(leave_focused_field());
    const Boxes shown_boxes = boxes();
    ASSERT_EQ(shown_boxes.size(), 1U);
    EXPECT_EQ(shown_boxes[0].kind, BoxKind::plain);
    EXPECT_EQ(shown_boxes[0].title, "GullymarkAL");
    EXPECT_EQ(shown(Inlet_Number), "O'B");
}

}  // namespace
}  // namespace gullymark::editor
