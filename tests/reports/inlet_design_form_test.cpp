#include "reports/inlet_design_form.h"

#include <array>

#include "reports/design_form_fixture.h"

namespace gullymark::reports {
namespace {

using platform::Box;
using platform::BoxKind;
using testing_support::run_sql;

Texts with(Texts inlet, const Texts& more) {
    for (const auto& [column, text] : more) {
        inlet[column] = text;
    }
    return inlet;
}

/// `inlet` with a number of its own in every column that it leaves.
Texts with_own_numbers(Texts inlet) {
    for (const Column column : engine::all_columns) {
        inlet.emplace(engine::column_name(column), own_number(column));
    }
    return inlet;
}

double own(Column column) {
    return platform::read_number(own_number(column)).number;
}

// What stands in the cells.

struct Expected {
    int column;
    CellValue value;
};

TEST_F(DesignForm, AnInletOnGradeTakesOneRow) {
    print(with_own_numbers(on_grade));
    using enum Column;
    const std::vector<Expected> row = {
        {1, own(INLET_NUMBER)},
        {3, own(ROADWAY)},
        {4, own(STATION)},
        {5, own_number(OFFSET) + " " + own_number(OFFSET_LOCATION)},
        {6, own(TOP_ELEVATION)},
        {7, own(INLET_SUBTYPE)},
        {8, "Curb Inlet / CONTINUOUS GRADE"s},
        {9, own(FLOW_DIRECTION)},
        {10, "Gutter Flow"s},
        {11, own(PREINLET1)},
        {13, own(RUNOFF_AREA)},
        {14, own(RUNOFF_COEFF)},
        {15, own(STORM_FREQUENCY)},
        {16, own(INTENSITY)},
        {17, own(DISCHARGE1)},
        {18, own(CARRYOVER1)},
        {19, own(TOTAL_DISCHARGE)},
        {20, own(LONGSLOPE)},
        {21, own(PAVXSLOPE)},
        {22, own(GUTXSLOPE)},
        {23, own(INLETXSLOPE)},
        {24, own(GUTWIDTH)},
        {25, own(GRATEWIDTH)},
        {26, own(GUTWIDTH) * own(GUTXSLOPE) * 12.0},
        {27, own(MANNINGS)},
        {28, own(ALLOWABLE_SPREAD)},
        {29, own(GUTTERSPREAD)},
        {30, "YES"s},
        {31, own(LOCALDEP)},
        {32, own(INLETLENGTH)},
        {33, own(OPENLEN_GRATE)},
        {34, own(INLETLENGTH) + own(OPENLEN_GRATE)},
        {35, own(GRATEPERCLOG)},
        {36, own(EFFPERI)},
        {37, own(GRATEAREA)},
        {38, own(CURB_HEIGHT)},
        {39, own(INTLEN)},
        {40, own(EFFICIENCY)},
        {41, own(QINT)},
        {42, own(QCARRY)},
        {43, own(RUNOFF_AREA) * own(RUNOFF_COEFF)},
        {44, own(CURBDEPTH)},
        {45, "YES"s},
    };
    for (const auto& [column, value] : row) {
        EXPECT_EQ(at(15, column), value) << column;
    }
    const std::size_t header_cells = 5;
    EXPECT_EQ(spreadsheet.cells.size(), row.size() + header_cells);
}

TEST_F(DesignForm, AnInletInASumpTakesThreeRowsWithItsFlowsOnEachSideAndTheirTotals) {
    print(with_own_numbers(in_sump));
    using enum Column;
    const std::vector<std::pair<platform::CellPosition, CellValue>> cells = {
        {{15, 8}, "Curb Inlet / SUMP"s},
        {{15, 11}, own_number(PREINLET1) + "," + own_number(PREINLET2)},
        {{15, 13}, own(RUNOFF_AREA)},
        {{15, 14}, own(RUNOFF_COEFF)},
        {{15, 15}, own(STORM_FREQUENCY)},
        {{15, 16}, own(INTENSITY)},
        {{15, 17}, own(DISCHARGE1)},
        {{15, 18}, own(CARRYOVER1)},
        {{15, 19}, nothing},
        {{16, 13}, own(RUNOFF_AREA2)},
        {{16, 14}, own(RUNOFF_COEFF2)},
        {{16, 15}, nothing},
        {{16, 16}, own(INTENSITY2)},
        {{16, 17}, own(DISCHARGE2)},
        {{16, 18}, own(CARRYOVER2)},
        {{17, 17}, own(DISCHARGE1) + own(DISCHARGE2)},
        {{17, 18}, own(CARRYOVER1) + own(CARRYOVER2)},
        {{17, 19}, own(TOTAL_DISCHARGE)},
        {{15, 43}, own(RUNOFF_AREA) * own(RUNOFF_COEFF) + own(RUNOFF_AREA2) * own(RUNOFF_COEFF2)},
        {{15, 20}, own(LONGSLOPE)},
        {{15, 45}, "YES"s},
    };
    for (const auto& [cell, value] : cells) {
        EXPECT_EQ(at(cell.row, cell.column), value) << cell.row << ',' << cell.column;
    }
    // 43 in the first row, without the total; 5 and 3 below; 5 in the header; none for an inlet downstream.
    EXPECT_EQ(spreadsheet.cells.size(), 42U + 5U + 3U + 5U);
}

TEST_F(DesignForm, TheHeaderTellsTheProject) {
    store::session.projectUnits = "METRIC";
    print();
    EXPECT_EQ(spreadsheet.cells, (platform::Cells{{{2, 3}, "P-1"s},
                                                  {{3, 3}, "Main Street"s},
                                                  {{3, 42}, "J. Doe"s},
                                                  {{4, 3}, "MOBILE"s},
                                                  {{6, 42}, "METRIC"s}}));
}

TEST_F(DesignForm, InletsFollowInTheOrderOfTheirTextsEachWithItsRows) {
    add("9", on_grade);
    add("10", in_sump);
    add("2", on_grade);
    add("100", in_sump);
    print();
    EXPECT_EQ(at(15, 1), CellValue(10.0));
    EXPECT_EQ(at(18, 1), CellValue(100.0));
    EXPECT_EQ(at(21, 1), CellValue(2.0));
    EXPECT_EQ(at(22, 1), CellValue(9.0));
    EXPECT_EQ(at(23, 30), nothing);
}

TEST_F(DesignForm, TheFlowIsNamedForEveryTypeButTheGrateInlet) {
    const std::vector<std::pair<std::string, CellValue>> flows = {
        {"Curb Inlet", "Gutter Flow"s},    {"Combination Curb and Grate Inlet", "Gutter Flow"s},
        {"Slotted Inlet", "Gutter Flow"s}, {"Grate Inlet in a Ditch", "Ditch Flow"s},
        {"Grate Inlet", nothing},          {"Spillway", nothing},
    };
    for (const std::string location : {"SUMP", "CONTINUOUS GRADE"}) {
        for (const auto& [type, flow] : flows) {
            print({{"INLET_TYPE", type}, {"INLET_LOCATION", location}});
            EXPECT_EQ(at(15, 10), flow) << type;
            EXPECT_EQ(at(15, 8), CellValue(type + " / " + location));
        }
    }
}

TEST_F(DesignForm, ANullReadsAsAnEmptyText) {
    run_sql(project, "INSERT INTO INLET (INLET_NUMBER) VALUES (NULL)");
    print();
    EXPECT_EQ(at(15, 5), CellValue(" "s));
    EXPECT_EQ(at(15, 8), CellValue(" / "s));
}

TEST_F(DesignForm, PreviousInletsStandTogetherInASumpAlone) {
    const Texts both = {{"PREINLET1", "1.50"}, {"PREINLET2", "4"}};
    print(with(on_grade, both));
    EXPECT_EQ(at(15, 11), CellValue(1.5));
    print(with(in_sump, both));
    EXPECT_EQ(at(15, 11), CellValue("1.5,4"s));
    print(with(in_sump, {{"PREINLET1", "7"}}));
    EXPECT_EQ(at(15, 11), CellValue(7.0));
    print(with(in_sump, {{"PREINLET2", "4"}}));
    EXPECT_EQ(at(15, 11), CellValue(",4"s));
    spreadsheet.content.text_cells = {{{15, 11}, {99, 11}}};
    print(with(in_sump, both));
    EXPECT_EQ(at(15, 11), CellValue("1.50,4"s));
}

TEST_F(DesignForm, TheNextInletIsTheFirstThatNamesThisOneOnItsLeftOrElseOnItsRight) {
    add("1", on_grade);
    add("2", with(on_grade, {{"PREINLET1", "1"}}));
    add("3", with(in_sump, {{"PREINLET1", "1"}, {"PREINLET2", "2"}}));
    print();
    EXPECT_EQ(at(15, 12), CellValue(2.0));
    EXPECT_EQ(at(16, 12), CellValue(3.0));
    EXPECT_EQ(at(17, 12), nothing);
    EXPECT_FALSE(spreadsheet.cells.contains({17, 12}));
}

TEST_F(DesignForm, TheLeftSideOfALaterInletIsAskedBeforeTheRightSideOfAnEarlierOne) {
    add("1", on_grade);
    add("2", with(in_sump, {{"PREINLET2", "1"}}));
    add("3", with(on_grade, {{"PREINLET1", "1"}}));
    print();
    EXPECT_EQ(at(15, 12), CellValue(3.0));
}

TEST_F(DesignForm, TheNextInletIsLookedForByTheNumberInTheSheet) {
    add("1.0", on_grade);
    add("2", with(on_grade, {{"PREINLET1", "1.0"}}));
    print();
    EXPECT_EQ(at(15, 12), nothing);
    spreadsheet.content.text_cells = {{{15, 1}, {99, 1}}};
    print();
    EXPECT_EQ(at(15, 12), CellValue(2.0));
}

TEST_F(DesignForm, AQuoteMarkInANumberIsToldForEachQuestionAndTheRestIsWritten) {
    run_sql(project, "INSERT INTO INLET (INLET_NUMBER, QCARRY) VALUES ('O''Neil', '0.5')");
    print();
    ASSERT_EQ(outside.boxes.size(), 2U);
    EXPECT_EQ(outside.boxes[0].kind, BoxKind::plain);
    EXPECT_EQ(at(15, 1), CellValue("O'Neil"s));
    EXPECT_EQ(at(15, 12), nothing);
    EXPECT_EQ(at(15, 42), CellValue(0.5));
}

TEST_F(DesignForm, ANumberThatIsNoneLeavesItsCellAndTheRestOfTheRowIsWritten) {
    spreadsheet.content.cells = {{{15, 16}, "-"s}, {{15, 17}, "-"s}, {{15, 32}, "-"s}};
    print(with(on_grade,
               {{"INTENSITY", ""}, {"DISCHARGE1", "1/2"}, {"STORM_FREQUENCY", "10"}, {"QCARRY", "0.5"}}));
    EXPECT_EQ(at(15, 16), CellValue("-"s));
    EXPECT_EQ(at(15, 17), CellValue("-"s));
    EXPECT_EQ(at(15, 32), CellValue("-"s));
    EXPECT_EQ(at(15, 15), CellValue(10.0));
    EXPECT_EQ(at(15, 42), CellValue(0.5));
}

TEST_F(DesignForm, NumbersAreReadByTheGrammarOfANumber) {
    print(with(on_grade, {{"INTENSITY", "0123"}, {"DISCHARGE1", "1e5"}, {"CARRYOVER1", " +5 "}}));
    EXPECT_EQ(at(15, 16), CellValue(123.0));
    EXPECT_EQ(at(15, 17), CellValue(1e5));
    EXPECT_EQ(at(15, 18), CellValue(5.0));
}

TEST_F(DesignForm, TextsThatASpreadsheetCouldTakeForMoreStayTexts) {
    for (const std::string text :
         {"=1+1", "=HYPERLINK(\"http://example.com\")", "0123", "1/2", "-", "1e5", "+5"}) {
        print(with(on_grade, {{"ROADWAY", text}, {"MANNINGS", text}}));
        EXPECT_EQ(at(15, 3), CellValue(text));
        EXPECT_EQ(at(15, 27), CellValue(text));
    }
}

TEST_F(DesignForm, TotalsOfASumpCountAMissingSideAsZero) {
    print(with(in_sump, {{"DISCHARGE1", "1.5"}, {"CARRYOVER2", "0.25"}}));
    EXPECT_EQ(at(17, 17), CellValue(1.5));
    EXPECT_EQ(at(17, 18), CellValue(0.25));
    EXPECT_EQ(at(17, 19), nothing);
}

TEST_F(DesignForm, TheGutterWidthHasTwoDecimalsAndTheDropItsRoundedWidth) {
    print(with(on_grade, {{"GUTWIDTH", "2.005"}, {"GUTXSLOPE", "0.05"}}));
    EXPECT_EQ(at(15, 24), CellValue(2.01));
    EXPECT_EQ(at(15, 26), CellValue(2.01 * 0.05 * 12.0));
    print(with(on_grade, {{"GUTWIDTH", "wide"}, {"GUTXSLOPE", "0.05"}}));
    EXPECT_EQ(at(15, 24), CellValue("wide"s));
    EXPECT_EQ(at(15, 26), nothing);
    print(on_grade);
    EXPECT_EQ(at(15, 24), nothing);
    EXPECT_EQ(at(15, 26), CellValue(0.0));
}

TEST_F(DesignForm, TheFactorOfTheDropDoesNotFollowTheUnits) {
    store::session.projectUnits = "METRIC";
    print(with(on_grade, {{"GUTWIDTH", "0.5"}, {"GUTXSLOPE", "0.05"}}));
    EXPECT_EQ(at(15, 26), CellValue(0.5 * 0.05 * 12.0));
}

struct SpreadRow {
    const char* gutter;
    const char* opening;
    const char* allowable;
    CellValue larger;
    const char* exceeds;
};

TEST_F(DesignForm, TheLargerSpreadStandsAgainstTheAllowableOne) {
    const std::vector<SpreadRow> rows = {
        {"9.5", "10.2", "10", 10.2, "YES"}, {"10.2", "9.5", "10", 10.2, "YES"},
        {"9.5", "9.8", "10", 9.8, "NO"},    {"10", "10", "10", 10.0, "NO"},
        {"", "5.5", "5", 5.5, "YES"},  // on grade no gutter spread is computed
        {"7", "", "5", nothing, "NO"},      {"", "", "5", nothing, "NO"},
        {"7", "wide", "5", "wide"s, "YES"}, {"7", "8", "", 8.0, "YES"},
        {"7", "8", "any", 8.0, "NO"},
    };
    for (const SpreadRow& row : rows) {
        print(with(on_grade, {{"GUTTERSPREAD", row.gutter},
                              {"OPENSPREAD", row.opening},
                              {"ALLOWABLE_SPREAD", row.allowable}}));
        EXPECT_EQ(at(15, 29), row.larger) << row.gutter << ' ' << row.opening;
        EXPECT_EQ(at(15, 30), CellValue(std::string(row.exceeds))) << row.gutter << ' ' << row.opening;
    }
}

TEST_F(DesignForm, TheDepthStandsAgainstTheCurbHeight) {
    const std::vector<std::array<const char*, 3>> rows = {
        {"6", "6.5", "YES"}, {"6", "6", "NO"}, {"10", "9", "NO"}, {"", "0.1", "YES"}, {"6", "", "NO"},
    };
    for (const auto& [height, depth, exceeds] : rows) {
        print(with(on_grade, {{"CURB_HEIGHT", height}, {"CURBDEPTH", depth}}));
        EXPECT_EQ(at(15, 45), CellValue(std::string(exceeds))) << height << ' ' << depth;
    }
}

TEST_F(DesignForm, TheTotalLengthNeedsBothLengths) {
    print(with(on_grade, {{"INLETLENGTH", "3"}, {"OPENLEN_GRATE", "2.5"}}));
    EXPECT_EQ(at(15, 34), CellValue(5.5));
    print(with(on_grade, {{"INLETLENGTH", "3"}, {"OPENLEN_GRATE", ""}}));
    EXPECT_EQ(at(15, 32), CellValue(3.0));
    EXPECT_EQ(at(15, 34), nothing);
}

TEST_F(DesignForm, TheRunoffOfASumpAddsItsRightSide) {
    const Texts left = {{"RUNOFF_AREA", "2"}, {"RUNOFF_COEFF", "0.5"}};
    const Texts right = {{"RUNOFF_AREA2", "3"}, {"RUNOFF_COEFF2", "0.25"}};
    print(with(with(in_sump, left), right));
    EXPECT_EQ(at(15, 43), CellValue(1.75));
    print(with(with(on_grade, left), right));
    EXPECT_EQ(at(15, 43), CellValue(1.0));
    print(with(in_sump, left));
    EXPECT_EQ(at(15, 43), CellValue(1.0));
    print(with(in_sump, right));
    EXPECT_EQ(at(15, 43), CellValue(0.75));
}

}  // namespace
}  // namespace gullymark::reports
