#include "editor/form/field_rules_test.h"

#include <array>

#include "editor/form/field_events.h"
#include "editor/form/inlet_data_rules.h"
#include "editor/form/inlet_form.h"
#include "editor/form/screen_fields.h"
#include "editor/state/renumber_dialog.h"
#include "editor/state/workspace.h"
#include "editor/windows/workspace_menu.h"

namespace gullymark::editor {
namespace {

// Inlet number.

TEST_F(FieldRules, AnEmptyNumberIsAskedForAgain) {
    type(Inlet_Number, "");
    EXPECT_FALSE(leave_focused_field());
    EXPECT_EQ(boxes(), Boxes{information("Please enter a valid unique Inlet Number!")});
    EXPECT_EQ(frminletMDIC.focused, Inlet_Number);
    EXPECT_EQ(frminletMDIC.wanted_focus, Inlet_Number);
}

TEST_F(FieldRules, ANumberOfAnotherInletIsEmptied) {
    type(Inlet_Number, "1");
    EXPECT_FALSE(leave_focused_field());
    EXPECT_EQ(boxes(),
              Boxes{warning("1 already exists in the database! Please enter a valid unique Inlet Number")});
    EXPECT_EQ(shown(Inlet_Number), "");
    EXPECT_EQ(MDIInlet.screenmode[3], "");
}

TEST_F(FieldRules, ANewNumberShowsInTheStatusBar) {
    EXPECT_EQ(typed(Inlet_Number, "B7"), "B7");
    EXPECT_EQ(MDIInlet.screenmode[3], "B7");
    EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(FieldRules, EnteringTheNumberKeepsItAsTheCurrentOne) {
    go_to(Inlet_Number);
    EXPECT_EQ(frminletmodify.CurrentInletNumber, "N1");
    type(Inlet_Number, "N2");
    leave_focused_field();
    go_to(Inlet_Number);
    EXPECT_EQ(frminletmodify.CurrentInletNumber, "N2");
}

// Type and location.

TEST_F(FieldRules, APickOfTypeOrLocationOnGradeEmptiesTheRightSideDifferently) {
    struct Twin {
        FieldId list;
        const char* entry;
        const char* runoff;
    };
    for (const auto& twin : std::to_array<Twin>(
             {{inlet_type, "Grate Inlet", "7.5"}, {inlet_location, "CONTINUOUS GRADE", "0.0"}})) {
        for (const FieldId id :
             {preinlet2, carryover2, discharge2, runoff_area2, runoff_coeff2, intensity2}) {
            frminletMDIC.screen.set_text(id, "7.5");
        }
        frminletMDIC.screen.set_text(discharge1, "2");
        pick(twin.list, twin.entry);
        EXPECT_EQ(shown(preinlet2), "");
        EXPECT_EQ(shown(carryover2), "0.0");
        EXPECT_EQ(shown(discharge2), "0.000");
        for (const FieldId id : {runoff_area2, runoff_coeff2, intensity2}) {
            EXPECT_EQ(shown(id), twin.runoff) << field_name(twin.list) << " " << field_name(id);
        }
        EXPECT_EQ(shown(discharge1), "2.000");
        EXPECT_EQ(shown(QTotal), "2.000");
    }
}

TEST_F(FieldRules, APickInASumpKeepsTheRightSide) {
    pick(inlet_location, "SUMP");
    frminletMDIC.screen.set_text(discharge2, "7.5");
    pick(inlet_type, "Grate Inlet");
    EXPECT_EQ(shown(discharge2), "7.5");
}

TEST_F(FieldRules, APickOfTypeForgetsTheStandardAndOpensItsButton) {
    frminletMDIC.screen[inletstd_help].enabled = false;
    frminletMDIC.screen.set_text(inlet_subtype, "S1 ONE WING");
    pick(inlet_type, "Slotted Inlet");
    EXPECT_TRUE(field(inletstd_help).enabled);
    EXPECT_EQ(shown(inlet_subtype), "");
    EXPECT_EQ(MDIInlet.StatusBar[1], "Slotted Inlet - --CONTINUOUS GRADE");
    pick(inlet_location, "SUMP");
    EXPECT_EQ(MDIInlet.StatusBar[1], "Slotted Inlet - --SUMP");
}

TEST_F(FieldRules, APickOfTypeDisablesTheInletDataButTheInletSlope) {
    click_tab(2);
    EXPECT_TRUE(field(txtS).enabled);
    pick(inlet_type, "Grate Inlet");
    for (const FieldId id : {txtS,      txtn,     txtW,    txtSx,     txtSw,    txtWa,   txta,
                             txtWg,     txtzl,    txtzr,   cboLength, cboLCOUG, cboType, txthco,
                             cboThroat, txtAngle, txtPeri, txtArea,   cboClog,  cboCurb, txtslotw}) {
        EXPECT_FALSE(field(id).enabled) << field_name(id);
        EXPECT_EQ(field(id).color, Color::gray) << field_name(id);
    }
    EXPECT_TRUE(field(txtSdashW).enabled);
}

// Throat.

TEST_F(FieldRules, TheThroatSetsItsAngle) {
    pick(inlet_location, "SUMP");
    fill_results();
    pick(cboThroat, "Horizontal");
    EXPECT_EQ(shown(txtAngle), "0.00");
    EXPECT_TRUE(field(txtAngle).locked);
    EXPECT_EQ(field(txtAngle).color, Color::gray);
    EXPECT_EQ(shown(txtQi), "");

    pick(cboThroat, "Inclined");
    EXPECT_EQ(shown(txtAngle), "0.00");
    EXPECT_FALSE(field(txtAngle).locked);
    EXPECT_TRUE(field(txtAngle).enabled);
    EXPECT_EQ(field(txtAngle).color, Color::window);

    pick(cboThroat, "Vertical");
    EXPECT_EQ(shown(txtAngle), "90.00");
    EXPECT_TRUE(field(txtAngle).locked);
    EXPECT_EQ(field(txtAngle).color, Color::gray);
}

TEST_F(FieldRules, APickOfGrateTypeOrCurbClearsTheResults) {
    fill_results();
    picked(cboType, "Reticuline");
    EXPECT_EQ(shown(txtQi), "");
    fill_results();
    picked(cboCurb, "Without Curb");
    EXPECT_EQ(shown(txtQi), "");
}

TEST_F(FieldRules, AStandardWithACurbHasACurb) {
    for (const std::string_view standard : {"PR (Curb)", "PB (Curb)", "B (Curb/barrier)"}) {
        frminletMDIC.screen.set_text(inlet_subtype, standard);
        frminletMDIC.screen.set_text(cboCurb, "Without Curb");
        enter(cboCurb);
        leave(cboCurb);
        EXPECT_EQ(shown(cboCurb), "With Curb") << standard;
    }
    frminletMDIC.screen.set_text(inlet_subtype, "PR(Curb)");
    frminletMDIC.screen.set_text(cboCurb, "Without Curb");
    enter(cboCurb);
    leave(cboCurb);
    EXPECT_EQ(shown(cboCurb), "Without Curb");
}

// Standard.

TEST_F(FieldRules, ARevisedStandardIsWarnedOf) {
    go_to(inlet_subtype);
    EXPECT_EQ(frminletMDIC.wanted_selection, inlet_subtype);
    edited(inlet_subtype, "S1");
    leave_focused_field();
    EXPECT_EQ(boxes(), Boxes{}) << "an empty one was filled";
    go_to(inlet_subtype);
    leave_focused_field();
    EXPECT_EQ(boxes(), Boxes{}) << "nothing changed";
    type(inlet_subtype, "S2");
    EXPECT_TRUE(leave_focused_field());
    EXPECT_EQ(boxes(),
              Boxes{warning("Inlet Standard Has Been Revised!  Please Review Inlet Characteristics Data.")});
}

// Clogging.

TEST_F(FieldRules, OpeningTheListOfCloggingResetsIt) {
    click_tab(2);
    pick(cboClog, "25");
    EXPECT_EQ(shown(cboClog), "25");
    opened_list(cboClog);
    EXPECT_EQ(shown(cboClog), "0");
    EXPECT_EQ(field(cboClog).entries, (std::vector<std::string>{"0", "10", "25", "50", "75", "100"}));
}

TEST_F(FieldRules, InViewTheListOfCloggingOpensWithoutAChange) {
    user.answers = {Answer::yes};
    mnuExit_Click();
    frminletMDIC.screen.set_text(cboClog, "25");
    fill_results();
    opened_list(cboClog);
    picked(cboClog, "50");
    EXPECT_EQ(shown(cboClog), "50");
    EXPECT_EQ(shown(txtQi), "1.000");
}

TEST_F(FieldRules, ADitchInASumpHasNoCloggingToChoose) {
    pick(inlet_location, "SUMP");
    pick(inlet_type, "Grate Inlet in a Ditch");
    frminletMDIC.screen.set_text(cboClog, "25");
    frminletMDIC.screen[cboClog].enabled = true;
    FillClogList();
    EXPECT_FALSE(field(cboClog).enabled);
    EXPECT_EQ(shown(cboClog), "25");
}

struct ClogRow {
    std::string_view typed;
    std::string_view shown;
    bool leaves;
    int beeps;
};

TEST_F(FieldRules, CloggingIsCheckedWhenLeft) {
    click_tab(2);
    for (const auto& row : std::to_array<ClogRow>({
             {"10", "10", true, 0},
             {" 10 ", "10", true, 0},
             {"99", "99", true, 0},
             {"12.5", "13", true, 0},
             {"0", "0", true, 1},
             {"", "", true, 1},
             {"99.5", "0", false, 0},
             {"100", "0", false, 0},
         })) {
        user.beeps = 0;
        fill_results();
        enter(cboClog);
        edited(cboClog, row.typed);
        EXPECT_EQ(leave(cboClog), row.leaves) << row.typed;
        EXPECT_EQ(shown(cboClog), row.shown) << row.typed;
        EXPECT_EQ(user.beeps, row.beeps) << row.typed;
        EXPECT_EQ(shown(txtQi), "") << row.typed;
        EXPECT_EQ(boxes(),
                  row.leaves ? Boxes{} : Boxes{warning("Clogged cannot be 100%! Please enter new value.")});
    }
}

TEST_F(FieldRules, ALonePointOfCloggingBecomesZeroAndKeepsTheResults) {
    click_tab(2);
    enter(cboClog);
    edited(cboClog, ".");
    fill_results();
    EXPECT_TRUE(leave(cboClog));
    EXPECT_EQ(shown(cboClog), "0");
    EXPECT_EQ(shown(txtQi), "1.000");
    EXPECT_EQ(user.beeps, 0);
}

// Offset.

TEST_F(FieldRules, TheSignOfTheOffsetFollowsItsSide) {
    pick(offset_location, "LEFT");
    EXPECT_EQ(typed(offset, "-5-2"), "-52.000") << "the key of the minus sign is dropped, the side makes it";
    pick(offset_location, "RIGHT");
    EXPECT_EQ(shown(offset), "52.000");
    pick(offset_location, "LEFT");
    EXPECT_EQ(shown(offset), "-52.000");
}

TEST_F(MetricFieldRules, TheOffsetHasFourDecimalsInMetricUnits) {
    EXPECT_EQ(typed(offset, "5"), "5.0000");
}

TEST_F(FieldRules, AnEmptyOffsetBecomesZero) {
    EXPECT_EQ(typed(offset, ""), "0.000");
    // Past the check before leaving, as blanks are.
    enter(offset);
    edited(offset, "  ");
    leave(offset);
    EXPECT_EQ(shown(offset), "0.00");
}

TEST_F(FieldRules, ALonePointOfTheOffsetBecomesZeroAndTheFocusStays) {
    type(offset, ".");
    frminletMDIC.wanted_selection.reset();
    EXPECT_FALSE(leave_focused_field());
    EXPECT_EQ(shown(offset), "0.000");
    EXPECT_EQ(user.beeps, 1);
    EXPECT_EQ(frminletMDIC.wanted_selection, offset);
    EXPECT_TRUE(leave_focused_field());
    EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(FieldRules, AnOffsetThatWasNeverFilledStaysEmptyWhenTheSideIsPicked) {
    pick(offset_location, "LEFT");
    EXPECT_EQ(shown(offset), "");
}

// Allowable spread, cross slopes.

TEST_F(FieldRules, AnEmptyAllowableSpreadBecomesEight) {
    EXPECT_EQ(typed(allowable_spread, ""), "8.0");
}

TEST_F(MetricFieldRules, AnEmptyAllowableSpreadBecomesEightInMetricUnitsToo) {
    EXPECT_EQ(typed(allowable_spread, ""), "8.0");
}

TEST_F(FieldRules, AGutterOfNoWidthHasTheSlopeOfThePavement) {
    click_tab(2);
    typed(txtW, "0");
    EXPECT_EQ(typed(txtSx, "0.02"), "0.0200");
    EXPECT_EQ(shown(txtSw), "0.02");
    typed(txtW, "2");
    typed(txtSx, "0.03");
    EXPECT_EQ(shown(txtSw), "0.02");
}

TEST_F(FieldRules, AnUnreadableGutterWidthLeavesTheGutterSlopeAlone) {
    click_tab(2);
    typed(txtW, ".");
    EXPECT_EQ(typed(txtSx, "0.02"), "0.0200");
    EXPECT_EQ(shown(txtSw), "0.0833");
    EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(FieldRules, TheInletSlopeGivesTheLocalDepression) {
    click_tab(2);
    EXPECT_EQ(typed(txtSdashW, "0.25"), "0.2500");
    EXPECT_EQ(shown(txta), "4.00");
    EXPECT_EQ(typed(txtSdashW, "0.3333"), "0.3333");
    EXPECT_EQ(shown(txta), "6.00");
}

TEST_F(MetricFieldRules, TheInletSlopeGivesTheLocalDepressionInMillimetres) {
    click_tab(2);
    typed(txtSdashW, "0.3333");
    EXPECT_EQ(shown(txta), "150.00");
}

TEST_F(FieldRules, AnInletSlopeFlatterThanThePavementIsRaisedFirst) {
    click_tab(2);
    typed(txtSx, "0.2");
    EXPECT_EQ(typed(txtSdashW, "0.1"), "0.2000");
    EXPECT_EQ(shown(txta), "2.80");
}

TEST_F(FieldRules, AnEmptyInletSlopeTakesThatOfThePavement) {
    click_tab(2);
    EXPECT_EQ(typed(txtSdashW, ""), "0.0208");
    EXPECT_EQ(shown(txta), "-1.50");
}

TEST_F(FieldRules, TheDepressionStaysWhereASlopeIsNoNumber) {
    click_tab(2);
    typed(txtSw, ".");
    EXPECT_EQ(typed(txtSdashW, "0.25"), "0.2500");
    EXPECT_EQ(shown(txta), "6.00");
}

TEST_F(FieldRules, GutterWidthAndSlopeDoNotChangeTheDepression) {
    click_tab(2);
    typed(txtW, "3");
    typed(txtSw, "0.05");
    EXPECT_EQ(shown(txta), "6.00");
}

}  // namespace
}  // namespace gullymark::editor
