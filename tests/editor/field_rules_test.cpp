#include <array>

#include "editor/field_rules.h"
#include "editor_test.h"

namespace gullymark::editor {
namespace {

/// A new inlet in "ADD", its number typed.
struct FieldRules : EditorTest {
    explicit FieldRules(const std::string& units = "ENGLISH") : EditorTest(units) {
        put_inlets({{{"INLET_NUMBER", "1"}, {"PREINLET1", "7"}}});
        show_workspace();
        add_inlet("N1");
    }
    /// Types into a field and leaves it; what it then shows.
    static std::string typed(FieldId id, std::string_view keys) {
        type(id, keys);
        leave_focused_field();
        return shown(id);
    }
    void fill_results() { engine::open_inlet.set(engine::Column::QINT, "1.000"); }
};
struct MetricFieldRules : FieldRules {
    MetricFieldRules() : FieldRules("METRIC") {}
};

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

TEST(PasteFilter, KeepsWhatTypingWouldKeep) {
    for (const auto& row : std::to_array<PasteRow>({
             {"1.25", "", "", "1.25"},
             {"-1,234.5 ft\n", "", "", "1234.5"},
             {"1.2.3", "", "", "1.23"},
             {".5", "1.0", "", "5"},
             {".5", "1.0", "1.0", ".5"},
             {"\u0661", "", "", ""},
         })) {
        EXPECT_EQ(filter_text(txtS, row.incoming, row.whole, row.selected), row.passed);
    }
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
        EXPECT_EQ(field(id).colour, Colour::grey) << field_name(id);
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
    EXPECT_EQ(field(txtAngle).colour, Colour::grey);
    EXPECT_EQ(shown(txtQi), "");

    pick(cboThroat, "Inclined");
    EXPECT_EQ(shown(txtAngle), "0.00");
    EXPECT_FALSE(field(txtAngle).locked);
    EXPECT_TRUE(field(txtAngle).enabled);
    EXPECT_EQ(field(txtAngle).colour, Colour::window);

    pick(cboThroat, "Vertical");
    EXPECT_EQ(shown(txtAngle), "90.00");
    EXPECT_TRUE(field(txtAngle).locked);
    EXPECT_EQ(field(txtAngle).colour, Colour::grey);
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
    EXPECT_EQ(typed(offset, "-5"), "-5.000") << "the key of the minus sign is dropped, the side makes it";
    pick(offset_location, "RIGHT");
    EXPECT_EQ(shown(offset), "5.000");
    pick(offset_location, "LEFT");
    EXPECT_EQ(shown(offset), "-5.000");
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
