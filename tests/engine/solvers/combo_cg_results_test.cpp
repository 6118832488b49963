#include "engine/solvers/COMBO_CG_RESULTS.h"

#include <array>
#include <cstdio>

#include "engine/engine_fixture.h"

namespace gullymark::engine {
namespace {

using enum Column;

class ComboOnGrade : public EngineTest {
  protected:
    void SetUp() override {
        EngineTest::SetUp();
        fill({{INLET_LOCATION, "CONTINUOUS GRADE"},
              {INLET_TYPE, "Combination Curb and Grate Inlet"},
              {TOTAL_DISCHARGE, "3"},
              {LONGSLOPE, "0.02"},
              {MANNINGS, "0.016"},
              {GUTWIDTH, "2"},
              {PAVXSLOPE, "0.02"},
              {GUTXSLOPE, "0.05"},
              {INLETXSLOPE, "0.1"},
              {LOCDEPWIDTH, "2"},
              {GRATEWIDTH, "1.5"},
              {INLETLENGTH, "3"},
              {GRATEPERCLOG, "20"},
              {GRATETYPE, "P-30"},
              {ALLOWABLE_SPREAD, "8"},
              {OPENLEN_GRATE, "4"}});
    }
};

TEST_F(ComboOnGrade, TheResultsAreThoseOfTheHandCalculation) {
    // Ec = 1 - (1 - 4 / 18.1565)^1.8, Qic = Ec 3, Qr = 3 - Qic, Vr = Qr / A, E = Eg + Rs (1 - Eg) at Vr,
    // Qig = Qr E, Qi = Qic + Qig.
    EXPECT_EQ(solved(QINTCURB), "1.083");
    EXPECT_EQ(text(FLOWVEL), "3.422");
    EXPECT_EQ(text(EFFICIENCY), "0.529");
    EXPECT_EQ(text(QINTGRATE), "1.014");
    EXPECT_EQ(text(QINT), "2.097");
    EXPECT_EQ(text(QCARRY), "0.903");
    EXPECT_NEAR(solved("Vr"), 2.1867171218282864, 1e-4);
}

TEST_F(ComboOnGrade, AGutterExactlyAsWideAsTheSpreadOnOneSlopeHasAllFlowInFront) {
    // n = 1/64 and Q = 64 K, to the last digit of K: T = (Q n / K)^(1 / 2.67) = 1 = W exactly, on slopes of 1.
    fill({{TOTAL_DISCHARGE, "35.84000015258789"},
          {MANNINGS, "0.015625"},
          {LONGSLOPE, "1"},
          {GUTWIDTH, "1"},
          {PAVXSLOPE, "1"},
          {GUTXSLOPE, "1"},
          {INLETXSLOPE, "1"}});
    ASSERT_EQ(solved("T"), 1.0);
    EXPECT_EQ(solved("Eo"), 1.0);
    EXPECT_EQ(text(WT), "1.000");
    EXPECT_EQ(text(FLOWRATIO), "1.000");
    EXPECT_EQ(text(FLOWVEL), "71.680");
}

TEST_F(ComboOnGrade, TheCompositeSlopeIsRoundedBeforeTheLengthFollowsFromIt) {
    // Se = 0.0648673 becomes 0.0649: LT = 18.15651 instead of 18.16200.
    EXPECT_EQ(solved("Se"), 0.0649);
    EXPECT_NEAR(solved("LT"), 18.156510521163078, 1e-9);
}

TEST_F(ComboOnGrade, AnOpeningOfExactlyTheLengthNeededTakesAllFlow) {
    std::array<char, 40> length{};
    ASSERT_GT(std::snprintf(length.data(), length.size(), "%.17g", solved("LT")), 0);
    fill({{OPENLEN_GRATE, length.data()}});
    EXPECT_EQ(solved("Ec"), 1.0);
    EXPECT_EQ(text(QINTCURB), "3.000");
    EXPECT_EQ(solved("Qr"), 0.0);
    EXPECT_EQ(solved("Vr"), 0.0);
}

TEST_F(ComboOnGrade, ALongerOpeningLeavesTheGrateNoFlowButItsEfficiency) {
    // Vr = 0: Rs = 1, Rf = 1 and E = Eg + (1 - Eg) = 1.
    fill({{OPENLEN_GRATE, "30"}});
    EXPECT_EQ(solved("Ec"), 1.0);
    EXPECT_EQ(text(EFFICIENCY), "1.000");
    EXPECT_EQ(text(QINTGRATE), "0.000");
    EXPECT_EQ(text(QCARRY), "0.000");
    EXPECT_EQ(solved("Rs"), 1.0);
}

TEST_F(ComboOnGrade, WithoutAnOpeningTheNumbersAreThoseOfTheGrateButForTheRoundedSlope) {
    fill({{OPENLEN_GRATE, "0"}});
    check_and_solve();
    const InletRecord combination = open_inlet;
    EXPECT_EQ(text(QINTCURB), "0.000");
    fill({{INLET_TYPE, "Grate Inlet"}});
    check_and_solve();
    for (const auto column :
         {OPENSPREAD, WT, FLOWRATIO, DEPXSLOPE, CURBDEPTH, FLOWVEL, EFFICIENCY, QINT, QCARRY}) {
        EXPECT_EQ(combination.text(column), text(column)) << column_name(column);
    }
    EXPECT_EQ(combination.text(QINTGRATE), text(QINT));
    EXPECT_NE(combination.text(INTLEN), text(INTLEN));
}

TEST_F(ComboOnGrade, AnEmptyOrUnreadableOpeningTakesAllFlow) {
    for (const auto* length : {"", "abc"}) {
        fill({{OPENLEN_GRATE, length}});
        EXPECT_EQ(solved(QINTCURB), "3.000") << length;
        EXPECT_EQ(solved("Qr"), 0.0);
    }
}

TEST_F(ComboOnGrade, TheGrateMayTakeMoreThanIsLeftAndTheBypassTurnsNegative) {
    // Weff / Wa = 3 and Eo = 1: Qig = 1 (3 - 2 Rs) = 2.647, though the efficiency shown is held at 1.
    fill({{OPENLEN_GRATE, "0"},
          {GRATEWIDTH, "3"},
          {LOCDEPWIDTH, "1"},
          {GRATEPERCLOG, "0"},
          {TOTAL_DISCHARGE, "1"},
          {GUTWIDTH, "6"}});
    EXPECT_EQ(solved(EFFICIENCY), "1.000");
    EXPECT_EQ(text(QINTGRATE), "2.647");
    EXPECT_EQ(text(QCARRY), "-1.647");
}

TEST_F(ComboOnGrade, AnInputThatIsRefusedShowsABoxAndLeavesAllResultsEmpty) {
    const std::initializer_list<std::pair<Column, std::string_view>> refused = {
        {LONGSLOPE, "0"}, {LONGSLOPE, "-0.01"}, {LONGSLOPE, ""},      {MANNINGS, "0"},
        {MANNINGS, "-1"}, {PAVXSLOPE, "-0.01"}, {GUTXSLOPE, "0.019"},
    };
    for (const auto& [column, value] : refused) {
        SetUp();
        boxes.clear();
        fill({{OPENSPREAD, "1"}, {column, value}});
        EXPECT_TRUE(check_and_solve());
        EXPECT_EQ(boxes, std::vector{refusal_box}) << column_name(column) << ' ' << value;
        for (const auto result : {OPENSPREAD, WT, COMPXSLOPE, QINT, QCARRY, EFFICIENCY}) {
            EXPECT_EQ(text(result), "") << column_name(column) << ' ' << value;
        }
        EXPECT_TRUE(DataSolved);
    }
}

TEST_F(ComboOnGrade, TheRefusalComesBehindTheRepairsOfTheInput) {
    fill({{LONGSLOPE, "0"}, {INLETXSLOPE, ""}, {GRATEPERCLOG, ""}});
    EXPECT_EQ(solved(INLETXSLOPE), "0.1");
    EXPECT_EQ(text(GRATEPERCLOG), "0");
}

TEST_F(ComboOnGrade, EqualSlopesAndALevelPavementAreNotRefused) {
    fill({{PAVXSLOPE, "0"}, {GUTXSLOPE, "0"}});
    EXPECT_NE(solved(QINT), "");
    EXPECT_TRUE(boxes.empty());
}

}  // namespace
}  // namespace gullymark::engine
