#include "engine/solvers/GI_CG_RESULTS.h"

#include "engine/engine_fixture.h"

namespace gullymark::engine {
namespace {

using enum Column;

class GrateOnAGrade : public EngineTest {
  protected:
    void SetUp() override {
        EngineTest::SetUp();
        fill({{INLET_LOCATION, "CONTINUOUS GRADE"},
              {INLET_TYPE, "Grate Inlet"},
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
              {ALLOWABLE_SPREAD, "8"}});
    }
};

TEST_F(GrateOnAGrade, TheResultsAreThoseOfTheHandCalculation) {
    // a = 0.1, Spw = (a + 0.03 x 2) / 2 = 0.08, Eo from T = 9.03648 (found to 0.0001 cfs), Se = 0.02 + 0.08
    // Eo, V = 3 / (T^2 / 2 x 0.02 + 0.5 x 0.06 x 2), Vo > V, Eg = Eo (1.5 x 0.8) / 2, E = Eg + Rs (1 - Eg).
    EXPECT_NEAR(solved("T"), 9.03648, 5e-4);
    EXPECT_EQ(text(WT), "0.221");
    EXPECT_EQ(text(FLOWRATIO), "0.561");
    EXPECT_EQ(text(DEPXSLOPE), "0.0800");
    EXPECT_EQ(text(COMPXSLOPE), "0.0649");
    EXPECT_EQ(text(INTLEN), "18.162");
    EXPECT_EQ(text(CURBDEPTH), "2.889");
    EXPECT_EQ(text(FLOWVEL), "3.422");
    EXPECT_EQ(text(EFFICIENCY), "0.439");
    EXPECT_EQ(text(QINT), "1.316");
    EXPECT_EQ(text(QCARRY), "1.684");
    EXPECT_NEAR(solved("Rs"), 0.15411, 1e-4);
    EXPECT_NEAR(solved("Eg"), 0.33650, 1e-4);
}

TEST_F(GrateOnAGrade, TheTwoFlowEfficienciesAreNotShown) {
    EXPECT_EQ(solved(FFLOWEFF), "");
    EXPECT_EQ(text(SFLOWEFF), "");
}

TEST_F(GrateOnAGrade, AGutterExactlyAsWideAsTheSpreadOnOneSlopeHasAllFlowInFront) {
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

TEST_F(GrateOnAGrade, TheCompositeSlopeIsUsedUnrounded) {
    // LT = 0.6 x 3^0.42 x 0.02^0.3 (1 / (0.016 Se))^0.6 with Se = 0.0648673; 18.1565 would follow from
    // 0.0649.
    EXPECT_NEAR(solved("LT"), 18.16200, 1e-3);
}

TEST_F(GrateOnAGrade, WithoutADepressionWidthACloggedGrateTakesAsMuchAsACleanOne) {
    fill({{LOCDEPWIDTH, "0"}});
    const std::string clogged = solved(QINT);
    EXPECT_EQ(solved("Eg"), solved("Eo"));
    fill({{GRATEPERCLOG, "0"}});
    EXPECT_EQ(solved(QINT), clogged);
}

TEST_F(GrateOnAGrade, ALengthOfFourAndAHalfFeetTakesSideFlowAlone) {
    fill({{INLETLENGTH, "4.5"}});
    EXPECT_EQ(solved("Rf"), 0.0);
    EXPECT_NEAR(solved("E"), solved("Rs") * (1.0 - solved("Eg")), 1e-15);
}

TEST_F(GrateOnAGrade, AnUnknownGrateTakesSideFlowAlone) {
    fill({{GRATETYPE, "Unknown"}});
    EXPECT_NEAR(solved("E"), solved("Rs") * (1.0 - solved("Eg")), 1e-15);
    EXPECT_GT(solved("E"), 0.0);
}

TEST_F(GrateOnAGrade, AGutterWiderThanTheSpreadLeavesTheGrateItsShareOfTheDepression) {
    // Eo = 1, Eg = Weff / Wa = 1.2 / 2.
    fill({{GUTWIDTH, "4"}, {TOTAL_DISCHARGE, "0.3"}});
    EXPECT_EQ(solved(FLOWRATIO), "1.000");
    EXPECT_NEAR(solved("Eg"), 0.6, 1e-15);
    EXPECT_EQ(text(EFFICIENCY), "0.708");
    EXPECT_EQ(text(CURBDEPTH), "1.367");
}

TEST_F(GrateOnAGrade, WithoutAGutterTheCloggedGrateStandsForItBehindTheSpread) {
    // The spread is that of the pavement alone, W/T = 1.2 / 9.5765.
    fill({{GUTWIDTH, "0"}});
    EXPECT_EQ(solved(OPENSPREAD), "9.576");
    EXPECT_EQ(text(WT), "0.125");
    EXPECT_EQ(text(FLOWRATIO), "0.336");
    EXPECT_EQ(text(DEPXSLOPE), "0.0300");
    EXPECT_EQ(text(QINT), "1.014");
}

TEST_F(GrateOnAGrade, ALevelPavementHasNoSpreadAndNoSideFlow) {
    fill({{PAVXSLOPE, "0"}});
    EXPECT_EQ(solved(OPENSPREAD), "0.000");
    EXPECT_EQ(text(FLOWRATIO), "1.000");
    EXPECT_EQ(solved("Rs"), 0.0);
}

TEST_F(GrateOnAGrade, WithoutASpreadTheWidthRatioStaysEmptyAndTheVelocityIsZero) {
    // The ratio is written as it is computed; the velocity is computed first, and its 0 is written.
    fill({{LONGSLOPE, "0"}});
    EXPECT_EQ(solved(WT), "");
    EXPECT_EQ(text(FLOWVEL), "0.000");
    EXPECT_EQ(text(INTLEN), "0.000");
}

TEST_F(GrateOnAGrade, AGrateWithoutLengthTakesNothing) {
    fill({{INLETLENGTH, "0"}});
    EXPECT_EQ(solved(QINT), "0.000");
    EXPECT_EQ(text(QCARRY), "3.000");
    EXPECT_EQ(solved("Eg"), solved("Eo"));
}

TEST_F(GrateOnAGrade, AnUnreadableEnglishLengthTakesAllFrontalFlow) {
    fill({{INLETLENGTH, "2 ft"}});
    EXPECT_EQ(solved("Rf"), 1.0);
    EXPECT_EQ(solved("Rs"), 0.0);
    EXPECT_EQ(text(EFFICIENCY), text(FLOWRATIO));
}

TEST_F(GrateOnAGrade, AnUnreadableMetricLengthTakesNothing) {
    use_units("METRIC");
    fill({{INLETLENGTH, "2 m"}});
    EXPECT_EQ(solved("Rf"), 0.0);
    EXPECT_EQ(text(QINT), "0.0000");
}

TEST_F(GrateOnAGrade, ABlankInletSlopeIsATenthUnlessThePavementIsSteeper) {
    fill({{INLETXSLOPE, ""}});
    EXPECT_EQ(solved(INLETXSLOPE), "0.1");
    fill({{INLETXSLOPE, ""}, {PAVXSLOPE, "0.15"}});
    EXPECT_EQ(solved(INLETXSLOPE), "0.15");
}

TEST_F(GrateOnAGrade, AnUnreadablePavementSlopeReplacesTheInletSlopeForItIsReadAnew) {
    fill({{PAVXSLOPE, "abc"}});
    EXPECT_EQ(solved(INLETXSLOPE), "abc");
}

TEST_F(GrateOnAGrade, ABlankClogBecomesZero) {
    fill({{GRATEPERCLOG, ""}});
    EXPECT_EQ(solved(GRATEPERCLOG), "0");
}

TEST_F(GrateOnAGrade, TheDepressionSlopeSpreadsOverTheLargerOfTheTwoWidths) {
    // a = 0.1: (0.1 + 0.06) / 2 for Wa up to W, (0.1 + 0.06) / 4 for Wa = 4, 0.03 without a depression.
    fill({{LOCDEPWIDTH, "1"}});
    EXPECT_EQ(solved(DEPXSLOPE), "0.0800");
    fill({{LOCDEPWIDTH, "4"}});
    EXPECT_EQ(solved(DEPXSLOPE), "0.0400");
    fill({{LOCDEPWIDTH, "0"}});
    EXPECT_EQ(solved(DEPXSLOPE), "0.0300");
    // A gutter no steeper than the pavement: a / Wa = (0.1 - 0.02) 2 / 4.
    fill({{LOCDEPWIDTH, "4"}, {GUTXSLOPE, "0.02"}});
    EXPECT_EQ(solved(DEPXSLOPE), "0.0400");
    // Neither steeper nor alike, and a negative width: nothing.
    fill({{GUTXSLOPE, "0.01"}});
    EXPECT_EQ(solved(DEPXSLOPE), "0.0000");
    fill({{GUTXSLOPE, "0.05"}, {LOCDEPWIDTH, "-1"}});
    EXPECT_EQ(solved(DEPXSLOPE), "0.0000");
}

}  // namespace
}  // namespace gullymark::engine
