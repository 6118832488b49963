#include <array>

#include "editor/editor_test.h"
#include "editor/form/field_events.h"
#include "editor/form/screen_fields.h"
#include "editor/windows/workspace_menu.h"

namespace gullymark::editor {
namespace {

struct Defaults : EditorTest {
    explicit Defaults(const std::string& units = "ENGLISH") : EditorTest(units) { show_workspace(); }
};
struct MetricDefaults : Defaults {
    MetricDefaults() : Defaults("METRIC") {}
};

struct DefaultRow {
    FieldId field;
    std::string_view english;
    std::string_view metric;
};

// clang-format off
constexpr auto new_inlet = std::to_array<DefaultRow>({
    {cboLength,           "2.00",             "0.600"},
    {cboLCOUG,            "2.00",             "0.600"},
    {txtS,                "0.0100",           "0.01000"},
    {txtn,                "0.016",            "0.016"},
    {txtW,                "2.00",             "0.600"},
    {txtSx,               "0.0208",           "0.0208"},
    {txtSw,               "0.0833",           "0.0833"},
    {txtSdashW,           "0.3333",           "0.3333"},
    {txtWa,               "2.00",             "0.600"},
    {txta,                "6.00",             "150"},
    {txtWg,               "2.00",             "0.600"},
    {txtzl,               "3.00",             "3.000"},
    {txtzr,               "3.00",             "3.000"},
    {txthco,              "6.00",             "150"},
    {txtAngle,            "90.00",            "90.00"},
    {txtPeri,             "6.00",             "2.00"},
    {txtArea,             "4.000",            "1.200"},
    {txtslotw,            "4.00",             "100"},
    {allowable_spread,    "8.0",              "3.0"},
    {curb_height,         "6.0",              "150"},
    {discharge1,          "0.000",            "0.000"},
    {discharge2,          "0.000",            "0.000"},
    {overland_flow,       "0.0",              "0.0"},
    {carryover1,          "0.0",              "0.0"},
    {carryover2,          "0.0",              "0.0"},
    {preinlet1,           "",                 ""},
    {preinlet2,           "",                 ""},
    {Ldischarge_override, "NO",               "NO"},
    {Rdischarge_override, "NO",               "NO"},
    {storm_frequency,     "10",               "10"},
    {QTotal,              "0.000",            "0.0000"},
    {runoff_area2,        "0.0",              "0.0"},
    {runoff_coeff2,       "0.0",              "0.0"},
    {intensity2,          "0.0",              "0.0"},
    {inlet_type,          "Curb Inlet",       "Curb Inlet"},
    {inlet_location,      "CONTINUOUS GRADE", "CONTINUOUS GRADE"},
    {offset_location,     "RIGHT",            "RIGHT"},
    {cboCurb,             "With Curb",        "With Curb"},
    {cboThroat,           "Vertical",         "Vertical"},
    {cboClog,             "0",                "0"},
    {cboType,             "P-1-7/8",          "P-50"},
    {project_id,          "P-1",              "P-1"},
    {Inlet_Number,        "",                 ""},
    {Station,             "",                 ""},
    {TopElevation,        "",                 ""},
    {offset,              "",                 ""},
    {flow_direction,      "",                 ""},
    {inlet_subtype,       "",                 ""},
    {txtQi,               "",                 ""},
});
// clang-format on

TEST_F(Defaults, ANewInletInEnglishUnitsStartsWithThese) {
    mnuAddinlet_Click();
    for (const auto& row : new_inlet) {
        EXPECT_EQ(shown(row.field), row.english) << field_name(row.field);
    }
    EXPECT_EQ(engine::unit_constants.numberFormat, "#0.000");
    EXPECT_FALSE(field(Left_override).checked);
    EXPECT_FALSE(field(Right_override).checked);
}

TEST_F(MetricDefaults, ANewInletInMetricUnitsStartsWithThese) {
    mnuAddinlet_Click();
    for (const auto& row : new_inlet) {
        EXPECT_EQ(shown(row.field), row.metric) << field_name(row.field);
    }
    EXPECT_EQ(engine::unit_constants.numberFormat, "#0.0000");
}

TEST_F(Defaults, TheThroatAngleStartsGrayAndLocked) {
    mnuAddinlet_Click();
    EXPECT_TRUE(field(txtAngle).locked);
    EXPECT_EQ(field(txtAngle).color, Color::gray);
}

using Texts = std::vector<std::string>;

TEST_F(Defaults, TheListsOfferTheseEntries) {
    EXPECT_EQ(field(inlet_type).entries,
              (Texts{"Curb Inlet", "Grate Inlet", "Combination Curb and Grate Inlet", "Slotted Inlet",
                     "Grate Inlet in a Ditch"}));
    EXPECT_EQ(field(inlet_location).entries, (Texts{"CONTINUOUS GRADE", "SUMP"}));
    EXPECT_EQ(field(offset_location).entries, (Texts{"RIGHT", "LEFT"}));
    EXPECT_EQ(field(flow_direction).entries,
              (Texts{"Low Station", "High Station", "High/Low Station", "Overland"}));
    EXPECT_EQ(field(cboThroat).entries, (Texts{"Horizontal", "Inclined", "Vertical"}));
    EXPECT_EQ(field(cboCurb).entries, (Texts{"With Curb", "Without Curb"}));
    EXPECT_EQ(field(cboClog).entries, (Texts{"0", "10", "25", "50", "75", "100"}));
    EXPECT_EQ(field(cboType).entries, (Texts{"P-1-7/8", "P-1-1/8", "Curved Vane", "30\u00B0 Tilt Bar",
                                             "45\u00B0 Tilt Bar", "P-1-7/8-4", "Reticuline"}));
}

TEST_F(MetricDefaults, TheGrateTypesAreTheMetricOnes) {
    EXPECT_EQ(field(cboType).entries, (Texts{"P-50", "P-30", "Curved Vane", "30\u00B0- 85 Tilt Bar",
                                             "45\u00B0- 85 Tilt Bar", "P-50x100", "Reticuline"}));
}

struct CaptionRow {
    FieldId group;
    std::string_view english;
    std::string_view metric;
};

constexpr auto unit_captions = std::to_array<CaptionRow>({
    {ftm, "ft", "m"},
    {ftpftmpm, "ft/ft", "m/m"},
    {cfscms, "cfs", "cms"},
    {inmm, "in", "mm"},
    {sfsm, "sf", "sm"},
    {ftpsecmpsec, "ft/sec", "m/sec"},
    {inmmphr, "in/hr", "mm/hr"},
    {lblachc, "Ac", "Hc"},
});

TEST_F(Defaults, TheUnitLabelsKeepTheirEnglishCaptions) {
    for (const auto& row : unit_captions) {
        EXPECT_EQ(field(row.group).caption, row.english);
    }
}

TEST_F(MetricDefaults, TheUnitLabelsTakeTheirMetricCaptions) {
    for (const auto& row : unit_captions) {
        EXPECT_EQ(field(row.group).caption, row.metric);
    }
}

TEST_F(MetricDefaults, AnyTextOtherThanEnglishIsMetric) {
    mnuExit_Click();
    store::session.projectUnits = "English";
    show_workspace();
    EXPECT_EQ(field(ftm).caption, "m");
    mnuAddinlet_Click();
    EXPECT_EQ(shown(txtW), "0.600");
}

TEST_F(Defaults, AChangeOfTypeThrowsTheTypedInletDataAway) {
    add_inlet("N1");
    type(txtn, "0.02");
    type(cboLength, "12");
    type(txtSdashW, "0.4");
    pick(inlet_type, "Grate Inlet");
    EXPECT_EQ(shown(txtn), "0.016");
    EXPECT_EQ(shown(cboLength), "2.00");
    EXPECT_EQ(shown(txta), "6.00");
}

TEST_F(Defaults, TheCombinationInletAloneStartsWithoutAnOpeningUpstream) {
    add_inlet("N1");
    pick(inlet_type, "Combination Curb and Grate Inlet");
    EXPECT_EQ(shown(cboLCOUG), "0.0");
    pick(inlet_type, "Grate Inlet");
    EXPECT_EQ(shown(cboLCOUG), "2.00");
}

TEST_F(MetricDefaults, TheCombinationInletStartsWithoutAnOpeningUpstreamInMetricUnitsToo) {
    add_inlet("N1");
    pick(inlet_type, "Combination Curb and Grate Inlet");
    EXPECT_EQ(shown(cboLCOUG), "0.0");
}

TEST_F(Defaults, ACurbInletInASumpStartsCloggedByTenPercent) {
    add_inlet("N1");
    pick(inlet_location, "SUMP");
    EXPECT_EQ(shown(cboClog), "10");
    leave_focused_field();
    EXPECT_EQ(shown(cboClog), "10");
    pick(inlet_type, "Grate Inlet");
    EXPECT_EQ(shown(cboClog), "0");
}

// Leaving the type fills the list of clogging anew, after the defaults.
TEST_F(Defaults, LeavingAChangedTypeResetsTheCloggingOfACurbInletInASump) {
    add_inlet("N1");
    pick(inlet_type, "Grate Inlet");
    pick(inlet_location, "SUMP");
    pick(inlet_type, "Curb Inlet");
    EXPECT_EQ(shown(cboClog), "10");
    leave_focused_field();
    EXPECT_EQ(shown(cboClog), "0");
}

TEST_F(Defaults, ASlottedInletInASumpHasAWideSlotFromBothHandlersAndBothLeaves) {
    add_inlet("N1");
    pick(inlet_type, "Slotted Inlet");
    EXPECT_EQ(shown(txtslotw), "4.00");
    pick(inlet_location, "SUMP");
    EXPECT_EQ(shown(txtslotw), "21.00");
    leave_focused_field();
    EXPECT_EQ(shown(txtslotw), "21.00");
    pick(inlet_type, "Grate Inlet");
    EXPECT_EQ(shown(txtslotw), "4.00");
    pick(inlet_type, "Slotted Inlet");
    EXPECT_EQ(shown(txtslotw), "21.00");
    leave_focused_field();
    EXPECT_EQ(shown(txtslotw), "21.00");
}

TEST_F(MetricDefaults, ASlottedInletInASumpHasAWideSlotInMillimetres) {
    add_inlet("N1");
    pick(inlet_type, "Slotted Inlet");
    pick(inlet_location, "SUMP");
    EXPECT_EQ(shown(txtslotw), "525");
    leave_focused_field();
    EXPECT_EQ(shown(txtslotw), "525");
}

TEST_F(Defaults, TheSlopesOfASumpDifferByHandlerAndLastUntilTheFieldIsLeft) {
    add_inlet("N1");
    pick(inlet_location, "SUMP");
    EXPECT_EQ(shown(txtS), "0.003");
    leave_focused_field();
    EXPECT_EQ(shown(txtS), "0.0100");
    pick(inlet_type, "Grate Inlet");
    EXPECT_EQ(shown(txtS), "0.001");
    leave_focused_field();
    EXPECT_EQ(shown(txtS), "0.0100");
}

TEST_F(Defaults, ALeaveWithoutAChangeKeepsWhatWasTyped) {
    add_inlet("N1");
    type(txtn, "0.02");
    go_to(inlet_type);
    leave_focused_field();
    go_to(inlet_location);
    leave_focused_field();
    EXPECT_EQ(shown(txtn), "0.020");
}

}  // namespace
}  // namespace gullymark::editor
