#include "engine/solvers/CI_SU_RESULTS.h"

#include "engine/engine_fixture.h"

namespace gullymark::engine {
namespace {

using enum Column;

class CurbInSump : public EngineTest {
  protected:
    void SetUp() override {
        EngineTest::SetUp();
        fill({{INLET_LOCATION, "SUMP"}, {INLET_TYPE, "Curb Inlet"}, {TOTAL_DISCHARGE, "5"},
              {DISCHARGE1, "2"},        {CARRYOVER1, "1"},          {DISCHARGE2, "2"},
              {CARRYOVER2, "0"},        {GRATEPERCLOG, "0"},        {HEIGHTOFCURB, "6"},
              {THROATANGLE, "0"},       {THROATYPE, "Vertical"},    {GUTWIDTH, "2"},
              {PAVXSLOPE, "0.02"},      {GUTXSLOPE, "0.05"},        {INLETXSLOPE, "0.1"},
              {LOCDEPWIDTH, "2"},       {INLETLENGTH, "5"},         {ALLOWABLE_SPREAD, "8"},
              {LONGSLOPE, "0.01"},      {MANNINGS, "0.016"}});
    }
};

TEST_F(CurbInSump, AShallowSumpFlowsOverADepressedWeir) {
    // P = 5 + 1.8 x 2 = 8.6, dw = (5 / (2.3 P))^0.667 = 0.3996 < h = 0.5, To = dw / 0.02,
    // Dt = (To Sx + 2 (0.05 - 0.02) + (0.1 - 0.05) 2) 12.
    EXPECT_EQ(solved(INLETPERF), "Weir Flow");
    EXPECT_EQ(text(EFFPERI), "8.600");
    EXPECT_EQ(text(OPENSPREAD), "19.980");
    EXPECT_EQ(text(CURBDEPTH), "4.795");
    EXPECT_EQ(text(DEPTHATINLET), "6.715");
    EXPECT_EQ(text(QINT), "5.000");
}

TEST_F(CurbInSump, ADeepSumpFlowsThroughAnOrificeUnderItsThroat) {
    // Q = 20: dw = 1.007 > 1.4 h = 0.7, do = (20 / (0.67 x 0.5 x 5))^2 / (2 x 32.174) = 2.2156, ho by the
    // throat, To = (ho - a) / Sx + Wa.
    fill({{TOTAL_DISCHARGE, "20"}, {THROATANGLE, "30"}});
    EXPECT_EQ(solved(OPENSPREAD), "107.781");
    EXPECT_EQ(text(INLETPERF), "Orifice Flow");
    EXPECT_EQ(text(DEPTHATINLET), "27.787");
    fill({{THROATYPE, "Horizontal"}});
    EXPECT_EQ(solved(OPENSPREAD), "120.281");
    fill({{THROATYPE, "Inclined"}});
    EXPECT_EQ(solved(OPENSPREAD), "114.031");
}

TEST_F(CurbInSump, AnUnknownThroatLeavesNoHeadAndTheWeirDepthDecidesTheSpread) {
    fill({{TOTAL_DISCHARGE, "20"}, {THROATYPE, "vertical"}});
    EXPECT_EQ(solved("ho"), 0.0);
    EXPECT_EQ(text(OPENSPREAD), "50.370");
}

TEST_F(CurbInSump, OnlyAnInclinedThroatReadsTheAngle) {
    fill({{TOTAL_DISCHARGE, "20"}});
    for (const auto* throat : {"Vertical", "Horizontal", "Inclined"}) {
        fill({{THROATYPE, throat}, {THROATANGLE, "30"}});
        const std::string at_30 = solved(OPENSPREAD);
        fill({{THROATANGLE, "60"}});
        EXPECT_EQ(solved(OPENSPREAD) != at_30, std::string_view(throat) == "Inclined") << throat;
    }
}

TEST_F(CurbInSump, AWeirDepthOfExactlyTheHeightIsStillWeirFlow) {
    // No depression: dw = (6 / (3 x 2))^0.667 = 1 = h.
    fill({{LOCDEPWIDTH, "0"}, {INLETLENGTH, "2"}, {TOTAL_DISCHARGE, "6"}, {HEIGHTOFCURB, "12"}});
    EXPECT_EQ(solved("dw"), 1.0);
    EXPECT_EQ(text(INLETPERF), "Weir Flow");
    fill({{TOTAL_DISCHARGE, "6.000001"}});
    EXPECT_EQ(solved(INLETPERF), "Transition Flow");
}

TEST_F(CurbInSump, AWeirDepthOfExactlyOnePointFourHeightsIsStillTransitionFlow) {
    // dw = 1 again, and 1.4 x (8.57... / 12) = 1.
    fill({{LOCDEPWIDTH, "0"},
          {INLETLENGTH, "2"},
          {TOTAL_DISCHARGE, "6"},
          {HEIGHTOFCURB, "8.571428571428571"}});
    EXPECT_EQ(solved(INLETPERF), "Transition Flow");
    fill({{TOTAL_DISCHARGE, "6.000001"}});
    EXPECT_EQ(solved(INLETPERF), "Orifice Flow");
}

TEST_F(CurbInSump, ALengthOfExactlyTheLimitStillCountsAsDepressed) {
    fill({{INLETLENGTH, "12"}});
    EXPECT_EQ(solved(EFFPERI), "15.600");
    EXPECT_EQ(solved("Cw"), 2.3);
    fill({{INLETLENGTH, "12.001"}});
    EXPECT_EQ(solved(EFFPERI), "12.001");
    EXPECT_EQ(solved("Cw"), 3.0);
}

TEST_F(CurbInSump, TheMetricLimitIsFourMetres) {
    use_units("METRIC");
    fill({{INLETLENGTH, "4"}});
    EXPECT_EQ(solved(EFFPERI), "7.6000");
    EXPECT_EQ(solved("Cw"), 1.25);
    fill({{INLETLENGTH, "4.001"}});
    EXPECT_EQ(solved(EFFPERI), "4.0010");
    EXPECT_EQ(solved("Cw"), 1.6);
}

TEST_F(CurbInSump, TheGutterSpreadIsThatOfTheHeavierSide) {
    // 3 on the left against 2 on the right; the spread of 3 by hand is 10.4318.
    EXPECT_EQ(solved(GUTTERSPREAD), "10.432");
    fill({{DISCHARGE1, "0"}, {CARRYOVER2, "1"}});
    EXPECT_EQ(solved(GUTTERSPREAD), "10.432");
    fill({{DISCHARGE1, "2"}});
    EXPECT_EQ(solved("Qg"), 3.0);  // both alike
}

TEST_F(CurbInSump, WithoutSideFlowsTheSpreadIsZeroAndTheRestFollowsTheWholeFlow) {
    fill({{DISCHARGE1, "0"}, {CARRYOVER1, "0"}, {DISCHARGE2, "0"}});
    EXPECT_EQ(solved(GUTTERSPREAD), "0.000");
    EXPECT_EQ(boxes,
              std::vector{platform::Box{.text = "No results computed.  Check your input for discharge."}});
    EXPECT_EQ(text(OPENSPREAD), "19.980");
}

TEST_F(CurbInSump, ABlankInletSlopeTakesThatOfThePavement) {
    // With Wa = W the depression a = (Sx - Sw) W takes back what the gutter adds: no depth is left below the
    // curb's.
    fill({{INLETXSLOPE, ""}});
    EXPECT_EQ(solved(INLETXSLOPE), "0.02");
    EXPECT_NEAR(solved("a"), -0.06, 1e-15);
    EXPECT_EQ(text(DEPTHATINLET), text(CURBDEPTH));
}

TEST_F(CurbInSump, AnInletSlopeBelowThePavementIsRaisedToIt) {
    fill({{INLETXSLOPE, "0.01"}});
    EXPECT_EQ(solved(INLETXSLOPE), "0.02");
}

TEST_F(CurbInSump, AnUnreadablePavementSlopeRaisesNothingForItIsNotReadAnew) {
    fill({{PAVXSLOPE, "abc"}});
    EXPECT_EQ(solved(INLETXSLOPE), "0.1");
    EXPECT_EQ(text(OPENSPREAD), "0.000");
}

TEST_F(CurbInSump, AFullyCloggedOpeningKeepsTheWeirOfItsDepression) {
    fill({{GRATEPERCLOG, "100"}});
    EXPECT_EQ(solved(EFFPERI), "3.600");
    EXPECT_GT(solved("dw"), 0.0);
    EXPECT_EQ(solved("do"), 0.0);
}

TEST_F(CurbInSump, AnUnreadableClogCountsAsNone) {
    fill({{GRATEPERCLOG, "abc"}});
    EXPECT_EQ(solved(EFFPERI), "8.600");
    EXPECT_EQ(text(GRATEPERCLOG), "abc");
}

TEST_F(CurbInSump, AnOpeningWithoutHeightIsOrificeFlow) {
    fill({{HEIGHTOFCURB, "0"}});
    EXPECT_EQ(solved(INLETPERF), "Orifice Flow");
    EXPECT_EQ(solved("do"), 0.0);
}

TEST_F(CurbInSump, AFlatPavementShowsNoSpread) {
    fill({{PAVXSLOPE, "0"}});
    EXPECT_EQ(solved(OPENSPREAD), "0.000");
}

TEST_F(CurbInSump, ANegativeDepressionWidthLeavesTheWeirWithoutLength) {
    fill({{LOCDEPWIDTH, "-1"}});
    EXPECT_EQ(solved(EFFPERI), "0.000");
    EXPECT_EQ(solved("dw"), 0.0);
}

TEST_F(CurbInSump, WhatASumpDoesNotKnowStaysEmpty) {
    check_and_solve();
    for (const auto column :
         {QCARRY, EFFICIENCY, FLOWRATIO, WT, COMPXSLOPE, DEPXSLOPE, INTLEN, FLOWVEL, RAREA}) {
        EXPECT_EQ(text(column), "") << column_name(column);
    }
}

}  // namespace
}  // namespace gullymark::engine
