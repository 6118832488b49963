#include "editor/form/discharge.h"
#include "editor/form/field_events.h"
#include "editor/form/inlet_form.h"
#include "editor/form/pages.h"
#include "editor/form/screen_fields.h"
#include "editor/windows/workspace_menu.h"

#include <array>

#include "editor/editor_test.h"

namespace gullymark::editor {
namespace {

struct Discharge : EditorTest {
    explicit Discharge(const std::string& units = "ENGLISH") : EditorTest(units) {
        show_workspace();
        add_inlet("N1");
        click_tab(1);
    }
    static void set(FieldId id, std::string_view text) { frminletMDIC.screen.set_text(id, text); }
};
struct MetricDischarge : Discharge {
    MetricDischarge() : Discharge("METRIC") {}
};

TEST_F(Discharge, OnGradeTheRightSideDoesNotCount) {
    set(discharge1, "1");
    set(overland_flow, "2");
    set(carryover1, "3");
    set(discharge2, "9");
    set(carryover2, "9");
    ComputeTotalDischarge();
    EXPECT_EQ(shown(QTotal), "6.000");
}

TEST_F(Discharge, InASumpBothSidesCount) {
    set(inlet_location, "SUMP");
    set(discharge1, "1");
    set(overland_flow, "2");
    set(carryover1, "3");
    set(discharge2, "9");
    ComputeTotalDischarge();
    EXPECT_EQ(shown(QTotal), "15.000");
    set(carryover2, "0.5");
    ComputeTotalDischarge();
    EXPECT_EQ(shown(QTotal), "15.500");
}

TEST_F(MetricDischarge, TheTotalHasFourDecimalsInMetricUnits) {
    set(discharge1, "0.05");
    ComputeTotalDischarge();
    EXPECT_EQ(shown(QTotal), "0.0500");
}

TEST_F(Discharge, EmptyFlowsBecomeZero) {
    for (const FieldId id : {discharge1, discharge2, overland_flow, carryover1, carryover2}) {
        set(id, "");
    }
    ComputeTotalDischarge();
    for (const FieldId id : {discharge1, discharge2, overland_flow}) {
        EXPECT_EQ(shown(id), "0.000");
    }
    for (const FieldId id : {carryover1, carryover2}) {
        EXPECT_EQ(shown(id), "0.0");
    }
    EXPECT_EQ(shown(QTotal), "0.000");
}

TEST_F(Discharge, AFlowThatIsNoNumberCountsAsZero) {
    set(discharge1, ".");
    set(overland_flow, "2");
    ComputeTotalDischarge();
    EXPECT_EQ(shown(discharge1), ".");
    EXPECT_EQ(shown(QTotal), "2.000");
}

TEST_F(Discharge, TheRationalDischargeIsThePlainProduct) {
    type(runoff_area, "0.5");
    type(runoff_coeff, "0.7");
    type(intensity, "4.5");
    leave_focused_field();
    EXPECT_EQ(shown(discharge1), "1.575");
    EXPECT_EQ(shown(QTotal), "1.575");
}

TEST_F(MetricDischarge, TheRationalDischargeHasNoUnitFactor) {
    type(runoff_area, "0.5");
    type(runoff_coeff, "0.7");
    type(intensity, "4.5");
    leave_focused_field();
    EXPECT_EQ(shown(discharge1), "1.575");
    EXPECT_EQ(shown(QTotal), "1.5750");
}

TEST_F(Discharge, TheTotalTakesTheRoundedDischarge) {
    set(inlet_location, "SUMP");
    set(runoff_area, "0.1");
    set(runoff_coeff, "0.1");
    set(intensity, "0.04");
    set(runoff_area2, "0.1");
    set(runoff_coeff2, "0.1");
    set(intensity2, "0.04");
    ComputeLeftDischarge();
    ComputeRightDischarge();
    EXPECT_EQ(shown(QTotal), "0.000") << "0.0004 on each side is 0.000";
}

TEST_F(Discharge, AnUnreadableFactorLeavesTheDischargeAndTheTotalFollowsIt) {
    set(discharge1, "2.34567");
    type(runoff_area, ".");
    leave_focused_field();
    EXPECT_EQ(shown(runoff_area), ".");
    EXPECT_EQ(shown(discharge1), "2.346");
    EXPECT_EQ(shown(QTotal), "2.346");
}

TEST_F(Discharge, TheRightSideIsComputedOnGradeToo) {
    set(runoff_area2, "1");
    set(runoff_coeff2, "0.5");
    set(intensity2, "3");
    ComputeRightDischarge();
    EXPECT_EQ(shown(discharge2), "1.500");
    EXPECT_EQ(shown(QTotal), "0.000");
}

TEST_F(Discharge, TheOverrideTakesATypedDischarge) {
    type(runoff_area, "0.5");
    type(runoff_coeff, "0.7");
    type(intensity, "4.5");
    leave_focused_field();
    EXPECT_FALSE(field(discharge1).enabled);
    clicked(Left_override);
    EXPECT_TRUE(field(Left_override).checked);
    EXPECT_EQ(shown(Ldischarge_override), "YES");
    EXPECT_TRUE(field(discharge1).enabled);
    for (const FieldId id : {runoff_area, runoff_coeff, intensity}) {
        EXPECT_FALSE(field(id).enabled);
    }
    EXPECT_EQ(shown(discharge1), "1.575");
    EXPECT_EQ(shown(QTotal), "1.575");
    type(discharge1, "3.3");
    EXPECT_EQ(shown(QTotal), "1.575") << "the typed value counts when the field is left";
    leave_focused_field();
    EXPECT_EQ(shown(QTotal), "3.300");
    ComputeLeftDischarge();
    EXPECT_EQ(shown(discharge1), "3.300");

    clicked(Left_override);
    EXPECT_FALSE(field(Left_override).checked);
    EXPECT_EQ(shown(Ldischarge_override), "NO");
    EXPECT_FALSE(field(discharge1).enabled);
    for (const FieldId id : {runoff_area, runoff_coeff, intensity}) {
        EXPECT_TRUE(field(id).enabled);
    }
    EXPECT_EQ(shown(discharge1), "1.575");
    EXPECT_EQ(shown(QTotal), "1.575");
}

TEST_F(Discharge, TheRightOverrideDoesTheSameOnItsSide) {
    set(inlet_location, "SUMP");
    clicked(Right_override);
    EXPECT_EQ(shown(Rdischarge_override), "YES");
    EXPECT_EQ(shown(Ldischarge_override), "NO");
    EXPECT_TRUE(field(discharge2).enabled);
    EXPECT_TRUE(field(runoff_area).enabled);
    for (const FieldId id : {runoff_area2, runoff_coeff2, intensity2}) {
        EXPECT_FALSE(field(id).enabled) << field_name(id);
    }
    clicked(Right_override);
    EXPECT_EQ(shown(Rdischarge_override), "NO");
    EXPECT_FALSE(field(discharge2).enabled);
    for (const FieldId id : {runoff_area2, runoff_coeff2, intensity2}) {
        EXPECT_TRUE(field(id).enabled) << field_name(id);
    }
}

TEST_F(Discharge, InViewTheOverrideDoesNothing) {
    user.answers = {Answer::yes};
    mnuExit_Click();
    frminletMDIC.screen[Left_override].checked = true;
    Left_override_Click();
    EXPECT_EQ(shown(Ldischarge_override), "");
}

TEST_F(Discharge, TheFramesFollowTheLocation) {
    ShowDischargeFrames();
    EXPECT_EQ(field(discharge1_frame).caption, "");
    EXPECT_FALSE(field(discharge2_frame).visible);
    EXPECT_TRUE(field(discharge1_frame).visible);
    set(inlet_location, "SUMP");
    ShowDischargeFrames();
    EXPECT_EQ(field(discharge1_frame).caption, "LEFT");
    EXPECT_EQ(field(discharge2_frame).caption, "RIGHT");
    EXPECT_TRUE(field(discharge2_frame).visible);
    set(inlet_location, "CONTINUOUS GRADE");
    ShowDischargeFrames();
    EXPECT_EQ(field(discharge1_frame).caption, "");
    EXPECT_FALSE(field(discharge2_frame).visible);
}

TEST_F(Discharge, OpeningTheFlowTabSetsTheOverridesFromTheirTexts) {
    click_tab(0);
    set(Ldischarge_override, "YES");
    set(Rdischarge_override, "yes");
    click_tab(1);
    EXPECT_TRUE(field(Left_override).checked);
    EXPECT_TRUE(field(discharge1).enabled);
    EXPECT_FALSE(field(runoff_area).enabled);
    EXPECT_FALSE(field(Right_override).checked);
    EXPECT_FALSE(field(discharge2).enabled);
    EXPECT_TRUE(field(runoff_area2).enabled);
}

}  // namespace
}  // namespace gullymark::editor
