#include "editor/editor_test.h"
#include "editor/form/field_events.h"
#include "editor/form/inlet_form.h"
#include "editor/form/screen_fields.h"
#include "editor/records/grid_events.h"
#include "editor/windows/workspace_menu.h"

namespace gullymark::editor {
namespace {

/// Inlets A to E in the file; C takes the bypass of B on its left, D that of E on its right; A was never solved.
struct Carryover : EditorTest {
    Carryover() {
        put_inlets({{{"INLET_NUMBER", "A"}, {"QCARRY", ""}},
                    {{"INLET_NUMBER", "B"}, {"QCARRY", "0.25"}},
                    {{"INLET_NUMBER", "C"}, {"PREINLET1", "B"}, {"QCARRY", "1.5"}},
                    {{"INLET_NUMBER", "D"}, {"PREINLET2", "E"}},
                    {{"INLET_NUMBER", "E"}, {"QCARRY", "0.750"}}});
        show_workspace();
        add_inlet("N1");
        pick(inlet_location, "SUMP");
        click_tab(1);
    }
    static bool leave_with(FieldId id, std::string_view number) {
        go_to(id);
        edited(id, number);
        return leave_focused_field();
    }
};

TEST_F(Carryover, ThePreviousInletBringsItsBypass) {
    EXPECT_TRUE(leave_with(preinlet1, "C"));
    EXPECT_EQ(shown(carryover1), "1.5");
    EXPECT_EQ(shown(QTotal), "1.500");
    EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(Carryover, EnteringShowsOneEntryAnInletAndSelectsTheText) {
    go_to(preinlet1);
    EXPECT_EQ(field(preinlet1).entries, (std::vector<std::string>{"A", "B", "C", "D", "E"}));
    EXPECT_EQ(frminletMDIC.wanted_selection, preinlet1);
}

TEST_F(Carryover, BlanksAroundTheNumberAreTrimmed) {
    EXPECT_TRUE(leave_with(preinlet1, " C "));
    EXPECT_EQ(shown(preinlet1), "C");
    EXPECT_EQ(shown(carryover1), "1.5");
}

TEST_F(Carryover, AnInletThatWasNeverSolvedBringsNothing) {
    EXPECT_TRUE(leave_with(preinlet1, "A"));
    EXPECT_EQ(shown(carryover1), "0.0");
    EXPECT_TRUE(leave_with(preinlet2, "D"));
    EXPECT_EQ(shown(carryover2), "0.0") << "a null";
}

TEST_F(Carryover, EmptyingThePreviousInletLeavesTheTotalStale) {
    leave_with(preinlet1, "C");
    EXPECT_TRUE(leave_with(preinlet1, ""));
    EXPECT_EQ(shown(carryover1), "0.0");
    EXPECT_EQ(shown(QTotal), "1.500");
    go_to(overland_flow);
    leave_focused_field();
    EXPECT_EQ(shown(QTotal), "0.000");
}

TEST_F(Carryover, TheInletItselfIsRefused) {
    leave_with(preinlet1, "C");
    EXPECT_FALSE(leave_with(preinlet1, "N1"));
    EXPECT_EQ(boxes(), Boxes{plain("Previous Inlet is same as Current Inlet")});
    EXPECT_EQ(shown(preinlet1), "");
    EXPECT_EQ(shown(carryover1), "0.0");
    EXPECT_EQ(shown(QTotal), "1.500");
    EXPECT_EQ(frminletMDIC.screen.tab, 1);
    EXPECT_EQ(frminletMDIC.wanted_focus, preinlet1);
    EXPECT_EQ(frminletMDIC.focused, preinlet1);
    EXPECT_TRUE(leave_focused_field());
}

TEST_F(Carryover, TheSameInletOnBothSidesIsRefusedByTheSideThatIsLeft) {
    leave_with(preinlet1, "C");
    EXPECT_FALSE(leave_with(preinlet2, "C"));
    EXPECT_EQ(boxes(), Boxes{plain("Previous Inlet for right side CANNOT be same as left side!")});
    EXPECT_EQ(shown(preinlet2), "");
    leave_with(preinlet2, "A");
    EXPECT_FALSE(leave_with(preinlet1, "A"));
    EXPECT_EQ(boxes(), Boxes{plain("Previous Inlet for left side CANNOT be same as right side!")});
}

Box used_by(const std::string& inlet) {
    return warning("This Inlet has already been used as a Previous Inlet for Inlet - " + inlet +
                   " - Please choose a different value!");
}

TEST_F(Carryover, AnInletFeedsOneOtherAtMost) {
    EXPECT_FALSE(leave_with(preinlet1, "B"));
    EXPECT_EQ(boxes(), Boxes{used_by("C")});
    EXPECT_FALSE(leave_with(preinlet1, "E"));
    EXPECT_EQ(boxes(), Boxes{used_by("D")});
    leave_with(preinlet1, "");
    EXPECT_FALSE(leave_with(preinlet2, "B"));
    EXPECT_EQ(boxes(), Boxes{used_by("C")});
    EXPECT_EQ(shown(preinlet2), "");
}

// X is named on the left by L and on the right by R: each field looks through its own column first.
TEST_F(Carryover, EachSideNamesTheInletOfItsOwnColumnFirst) {
    put_inlets({{{"INLET_NUMBER", "L"}, {"PREINLET1", "X"}},
                {{"INLET_NUMBER", "R"}, {"PREINLET2", "X"}},
                {{"INLET_NUMBER", "X"}}});
    leave_with(preinlet1, "X");
    EXPECT_EQ(boxes(), Boxes{used_by("L")});
    leave_with(preinlet1, "");
    leave_with(preinlet2, "X");
    EXPECT_EQ(boxes(), Boxes{used_by("R")});
}

// After a refusal the field was entered anew, empty, so its old number is checked like any other.
TEST_F(Carryover, AfterARefusalTheOldNumberIsCheckedAgain) {
    EXPECT_FALSE(leave_with(preinlet1, "B"));
    boxes();
    EXPECT_FALSE(leave_with(preinlet1, "B"));
    EXPECT_EQ(boxes(), Boxes{used_by("C")});
}

TEST_F(Carryover, ANumberThatNoInletHasShowsTheStoresErrorAndKeepsTheCarryover) {
    leave_with(preinlet1, "C");
    EXPECT_TRUE(leave_with(preinlet1, "Z"));
    const Boxes shown_boxes = boxes();
    ASSERT_EQ(shown_boxes.size(), 1U);
    EXPECT_EQ(shown_boxes[0].kind, BoxKind::plain);
    EXPECT_EQ(shown_boxes[0].title, "GullymarkAL");
    EXPECT_FALSE(shown_boxes[0].text.empty());
    EXPECT_EQ(shown(preinlet1), "Z");
    EXPECT_EQ(shown(carryover1), "1.5");
    EXPECT_EQ(shown(QTotal), "1.500");
    EXPECT_TRUE(leave_with(preinlet1, "A"));
    EXPECT_EQ(boxes(), Boxes{});
}

/// The whole road: B feeds C, C feeds D's left side.
struct Chain : EditorTest {
    Chain() {
        show_workspace();
        add_curb_inlet("A", "3");
        solve_and_save();
        add_curb_inlet("B", "2");
        take_bypass_of("A");
        solve_and_save();
        add_curb_inlet("C", "1");
        take_bypass_of("B");
        solve_and_save();
        boxes();
    }
    static void take_bypass_of(std::string_view number) {
        go_to(preinlet1);
        edited(preinlet1, number);
        leave_focused_field();
    }
    [[nodiscard]] std::string column(const std::string& name, const std::string& number) const {
        return stored("SELECT " + name + " FROM INLET WHERE INLET_NUMBER = '" + number + "'");
    }
    static void edit(int row) {
        pick_grid_row(row);
        mnuEditinlet_Click();
    }
};

Box next_inlet(const std::string& number) {
    return information("Current Inlet has Carryover Discharge to Inlet Number - " + number +
                       "\r\nPlease review the design, solve & save the results for Inlet - " + number);
}

TEST_F(Chain, AChangeTravelsDownByHandOneInletAtATime) {
    EXPECT_EQ(column("CARRYOVER1", "B"), column("QCARRY", "A"));
    const std::string old_bypass = column("QCARRY", "A");
    const std::string old_total = column("TOTAL_DISCHARGE", "B");

    edit(1);
    click_tab(1);
    type(discharge1, "5");
    solve_and_save();
    EXPECT_EQ(boxes(), (Boxes{information("Record Saved"), next_inlet("B")}));
    EXPECT_NE(column("QCARRY", "A"), old_bypass);
    EXPECT_EQ(column("CARRYOVER1", "B"), old_bypass);
    EXPECT_EQ(column("TOTAL_DISCHARGE", "B"), old_total);

    edit(2);
    go_to(preinlet1);
    leave_focused_field();
    EXPECT_EQ(boxes(), Boxes{}) << "an unchanged previous inlet is not checked";
    EXPECT_EQ(shown(carryover1), column("QCARRY", "A"));
    solve_and_save();
    EXPECT_EQ(boxes(), (Boxes{information("Record Saved"), next_inlet("C")}));
    EXPECT_EQ(column("CARRYOVER1", "B"), column("QCARRY", "A"));

    edit(3);
    go_to(preinlet1);
    leave_focused_field();
    solve_and_save();
    EXPECT_EQ(boxes(), Boxes{information("Record Saved")}) << "C is the last";
    EXPECT_EQ(column("CARRYOVER1", "C"), column("QCARRY", "B"));
}

TEST_F(Chain, ASaveInAddNamesNoInletDownstream) {
    put_inlets({{{"INLET_NUMBER", "Y"}, {"PREINLET1", "D"}}});
    mnuflexrefresh_Click();
    add_curb_inlet("D", "1");
    solve_and_save();
    EXPECT_EQ(boxes(), Boxes{information("Record Saved")});
}

TEST_F(Chain, TheRightColumnIsLookedAtAfterTheLeft) {
    put_inlets({{{"INLET_NUMBER", "S"}, {"PREINLET2", "C"}}});
    edit(3);
    solve_and_save();
    EXPECT_EQ(boxes(), (Boxes{information("Record Saved"), next_inlet("S")}));
}

}  // namespace
}  // namespace gullymark::editor
