#include <algorithm>
#include <array>

#include "editor/form/field_events.h"
#include "editor/form/field_keys.h"
#include "editor/form/field_rules_test.h"
#include "editor/form/inlet_form.h"
#include "editor/form/screen_fields.h"
#include "editor/state/windows.h"

namespace gullymark::editor {
namespace {

// The families.

constexpr auto selecting = std::to_array<FieldId>({
    overland_flow, offset,        curb_height,     discharge1,  discharge2,
    RoadWay,       Station,       storm_frequency, runoff_area, runoff_area2,
    runoff_coeff,  runoff_coeff2, cboLCOUG,        cboLength,   allowable_spread,
    intensity,     intensity2,    TopElevation,    txtAngle,    txtArea,
    txthco,        txtn,          txtPeri,         txtS,        txtslotw,
    txtSw,         txtSdashW,     txtSx,           txtW,        txtWa,
    txtWg,         txtzl,         txtzr,
});

constexpr auto numeric = std::to_array<FieldId>({
    overland_flow, offset,       discharge1,    discharge2, storm_frequency, runoff_area,
    runoff_area2,  runoff_coeff, runoff_coeff2, cboLength,  cboLCOUG,        allowable_spread,
    intensity,     intensity2,   TopElevation,  txtAngle,   txtArea,         txthco,
    txtn,          txtPeri,      txtS,          txtslotw,   txtSw,           txtSdashW,
    txtSx,         txtW,         txtWa,         txtWg,      txtzl,           txtzr,
    cboClog,
});

constexpr auto list_checked = std::to_array<FieldId>({
    inlet_location,
    inlet_type,
    offset_location,
    cboType,
    cboCurb,
    cboThroat,
});

template <typename Fields>
bool is_among(FieldId id, const Fields& fields) {
    return std::find(fields.begin(), fields.end(), id) != fields.end();
}

TEST(FieldFamilies, EnteringSelectsTheTextOfItsMembers) {
    for (const FieldId id : all_fields) {
        EXPECT_EQ(has_rule(id, selects), is_among(id, selecting)) << field_name(id);
    }
}

TEST(FieldFamilies, TheKeyFilterGuardsItsMembers) {
    for (const FieldId id : all_fields) {
        EXPECT_EQ(filter_key(id, U'-', "", "") == 0, is_among(id, numeric)) << field_name(id);
    }
}

TEST(FieldFamilies, TheListCheckGuardsItsMembers) {
    for (const FieldId id : all_fields) {
        EXPECT_EQ(has_rule(id, checks_list), is_among(id, list_checked)) << field_name(id);
    }
}

TEST_F(FieldRules, EnteringAMemberWantsFocusAndSelection) {
    enter(txtS);
    EXPECT_EQ(frminletMDIC.wanted_focus, txtS);
    EXPECT_EQ(frminletMDIC.wanted_selection, txtS);
}

struct FormatRow {
    FieldId field;
    std::string_view english;
    std::string_view metric;
};

// What "1.23456" becomes when the field is left.
constexpr auto formats_on_leaving = std::to_array<FormatRow>({
    {cboLength, "1.235", "1.2346"},
    {cboLCOUG, "1.235", "1.2346"},
    {TopElevation, "1.235", "1.2346"},
    {txtArea, "1.235", "1.2346"},
    {txthco, "1.235", "1.2346"},
    {txtPeri, "1.235", "1.2346"},
    {txtslotw, "1.235", "1.2346"},
    {txtWa, "1.235", "1.2346"},
    {txtWg, "1.235", "1.2346"},
    {txtzl, "1.235", "1.2346"},
    {txtzr, "1.235", "1.2346"},
    {txtW, "1.235", "1.2346"},
    {offset, "1.235", "1.2346"},
    {txtS, "1.2346", "1.2346"},
    {txtSw, "1.2346", "1.2346"},
    {txtSx, "1.2346", "1.2346"},
    {txtSdashW, "1.2346", "1.2346"},
    {runoff_area, "1.2346", "1.2346"},
    {runoff_area2, "1.2346", "1.2346"},
    {runoff_coeff, "1.2346", "1.2346"},
    {runoff_coeff2, "1.2346", "1.2346"},
    {txtn, "1.235", "1.235"},
    {discharge1, "1.235", "1.235"},
    {discharge2, "1.235", "1.235"},
    {overland_flow, "1.235", "1.235"},
    {intensity, "1.23", "1.23"},
    {intensity2, "1.23", "1.23"},
    {curb_height, "1.2", "1.2"},
    {allowable_spread, "1.2", "1.2"},
    {txtAngle, "1.23456", "1.23456"},
    {storm_frequency, "1.23456", "1.23456"},
});

TEST_F(FieldRules, LeavingWritesTheTextInItsFormat) {
    for (const auto& row : formats_on_leaving) {
        enter(row.field);
        edited(row.field, "1.23456");
        leave_focused_field();
        EXPECT_EQ(shown(row.field), row.english) << field_name(row.field);
    }
}

TEST_F(MetricFieldRules, LeavingWritesTheTextInItsMetricFormat) {
    for (const auto& row : formats_on_leaving) {
        enter(row.field);
        edited(row.field, "1.23456");
        leave_focused_field();
        EXPECT_EQ(shown(row.field), row.metric) << field_name(row.field);
    }
}

TEST_F(FieldRules, ATextThatIsNoNumberGoesThroughItsFormatUnchanged) {
    EXPECT_EQ(typed(cboLength, "."), ".");
    EXPECT_EQ(typed(cboLength, ""), "");
}

TEST_F(FieldRules, TypingStopsAtTheLimit) {
    enter(Inlet_Number);
    edited(Inlet_Number, "123456789012345678901234");
    EXPECT_EQ(shown(Inlet_Number), "12345678901234567890");
    edited(inlet_type, "a text of a list that has no limit at all");
    EXPECT_EQ(shown(inlet_type), "a text of a list that has no limit at all");
}

// Keys.

struct KeyRow {
    char32_t key;
    std::string_view whole;
    std::string_view selected;
    bool passes;
};

TEST(NumericKeyFilter, PassesDigitsOnePointAndControlKeys) {
    for (const auto& row : std::to_array<KeyRow>({
             {U'0', "", "", true},
             {U'9', "1.5", "", true},
             {U'.', "", "", true},
             {U'.', "15", "", true},
             {U'.', "1.5", "", false},
             {U'.', "1.5", ".5", true},
             {U'.', "1.5", "5", false},
             {8, "1", "", true},
             {27, "1", "", true},
             {31, "1", "", true},
             {U' ', "1", "", false},
             {U'-', "", "", false},
             {U'/', "", "", false},
             {U':', "", "", false},
             {U'e', "1", "", false},
             {U',', "1", "", false},
             {U'\u0661', "", "", false},
         })) {
        EXPECT_EQ(filter_key(txtS, row.key, row.whole, row.selected), row.passes ? row.key : 0)
            << static_cast<unsigned>(row.key) << " in " << row.whole;
    }
}

TEST_F(FieldRules, EnterMovesOnAndInsertsNothing) {
    int moves = 0;
    windows.move_focus_on = [&moves] { ++moves; };
    EXPECT_EQ(filter_key(txtS, 13, "1", ""), 0U);
    EXPECT_EQ(filter_key(cboClog, 13, "1", ""), 0U);
    EXPECT_EQ(moves, 2);
    EXPECT_EQ(filter_key(Station, 13, "1", ""), 13U);
    EXPECT_EQ(moves, 2);
}

TEST_F(FieldRules, ASecondPointIsDropped) {
    type(txtS, "1.2.3");
    EXPECT_EQ(shown(txtS), "1.23");
}

struct PasteRow {
    std::string_view incoming;
    std::string_view whole;
    std::string_view selected;
    std::string_view passed;
};

TEST(PasteFilter, TakesANumberThatCouldHaveBeenTypedWholeAndNothingElse) {
    for (const auto& row : std::to_array<PasteRow>({
             {"1.25", "", "", "1.25"},
             {" 1.25\t", "", "", "1.25"},
             {"1.25\r\n", "", "", "1.25"},
             {".5", "1.0", "1.0", ".5"},
             {"5", "1.0", "", "5"},
             {"1234567890", "", "", "1234567890"},
             {"1e5", "", "", ""},
             {"1E-3", "", "", ""},
             {"-5", "", "", ""},
             {"12.5.7 ft", "", "", ""},
             {"-1,234.5 ft\n", "", "", ""},
             {"1 2", "", "", ""},
             {"1\n2\n", "", "", ""},
             {".5", "1.0", "", ""},
             {"12345678901", "", "", ""},
             {"234567890", "12", "", ""},
             {"234567890", "12", "2", "234567890"},
             {" ", "", "", ""},
             {"\u0661", "", "", ""},
         })) {
        EXPECT_EQ(filter_text(txtS, row.incoming, row.whole, row.selected), row.passed) << row.incoming;
    }
    EXPECT_EQ(filter_text(allowable_spread, "1234567", "", ""), "") << "six characters at most";
    EXPECT_EQ(filter_text(cboClog, "9 x 9", "", ""), "");
    EXPECT_EQ(filter_text(cboClog, " 25\n", "0", "0"), "25");
    EXPECT_EQ(filter_text(offset, "12345678901234567890", "", ""), "12345678901234567890");
    EXPECT_EQ(filter_text(Station, "STA 1+00", "", ""), "STA 1+00");
}

// List check.

const std::string not_listed = "Value not present in the list... Please enter a valid value..";

TEST_F(FieldRules, TheBeginningOfAnEntryPassesAndStays) {
    for (const std::string_view text : {"Cu", "Curb Inlet", "G", ""}) {
        go_to(inlet_type);
        edited(inlet_type, text);
        EXPECT_TRUE(leave_focused_field());
        EXPECT_EQ(shown(inlet_type), text);
    }
    EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(FieldRules, AnyOtherTextBecomesTheFirstEntryAndTheFocusStays) {
    for (const FieldId id : list_checked) {
        enter(id);
        edited(id, "Xx");
        EXPECT_FALSE(leave(id)) << field_name(id);
        EXPECT_EQ(shown(id), field(id).entries.front());
        EXPECT_EQ(boxes(), Boxes{plain(not_listed)});
        EXPECT_EQ(frminletMDIC.focused, id);
        EXPECT_TRUE(leave(id)) << field_name(id);
    }
}

TEST_F(FieldRules, TheListCheckCountsCase) {
    go_to(inlet_type);
    edited(inlet_type, "curb");
    EXPECT_FALSE(leave_focused_field());
}

}  // namespace
}  // namespace gullymark::editor
