#include "engine/solvers/SI_SU_RESULTS.h"

#include "engine/engine_fixture.h"

namespace gullymark::engine {
namespace {

using enum Column;

class SlotInSump : public EngineTest {
  protected:
    void SetUp() override {
        EngineTest::SetUp();
        fill({{INLET_LOCATION, "SUMP"},
              {INLET_TYPE, "Slotted Inlet"},
              {TOTAL_DISCHARGE, "2"},
              {DISCHARGE1, "1.2"},
              {CARRYOVER1, "0"},
              {DISCHARGE2, "0.5"},
              {CARRYOVER2, "0.3"},
              {GRATEPERCLOG, "0"},
              {SLOTWIDTH, "1.75"},
              {GUTWIDTH, "2"},
              {PAVXSLOPE, "0.02"},
              {GUTXSLOPE, "0.05"},
              {INLETXSLOPE, "0.1"},
              {LOCDEPWIDTH, "2"},
              {INLETLENGTH, "8"},
              {ALLOWABLE_SPREAD, "8"},
              {LONGSLOPE, "0.01"},
              {MANNINGS, "0.016"}});
    }
};

TEST_F(SlotInSump, BetweenTheFixedDepthsTheDepthIsTheMeanOfWeirAndOrifice) {
    // dw = (2 / (2.48 x 8))^0.667 = 0.21643, do = (2 / (0.8 x 8 x 1.75 / 12))^2 / (2 x 32.174) = 0.07136,
    // To = (dw + do) / 2 / 0.02, Dt = (D + 2 (0.05 - 0.02) + (0.1 - 0.05) 2) 12.
    EXPECT_EQ(solved(INLETPERF), "Transition flow");
    EXPECT_EQ(text(OPENSPREAD), "7.195");
    EXPECT_EQ(text(DEPTHATINLET), "3.647");
    EXPECT_EQ(text(EFFLEN), "8.000");
    EXPECT_EQ(text(QINT), "2.000");
}

TEST_F(SlotInSump, TheDepthAtTheCurbAddsBothSlopesOverTheirOwnWidths) {
    // The spread of 1.2 is 7.0612: ((T - 2) 0.02 + 2 x 0.05) 12.
    EXPECT_EQ(solved(GUTTERSPREAD), "7.061");
    EXPECT_EQ(text(CURBDEPTH), "2.415");
    // The spread of 0.05 is 1.3265, within the gutter: T x 0.05 x 12.
    fill({{DISCHARGE1, "0.05"}, {DISCHARGE2, "0"}, {CARRYOVER2, "0"}});
    EXPECT_EQ(solved(GUTTERSPREAD), "1.326");
    EXPECT_EQ(text(CURBDEPTH), "0.796");
}

TEST_F(SlotInSump, ADeepSlotIsAnOrificeWithNoLowerBoundFromTheWeir) {
    // L = 3: dw = 0.4163 > 0.4, do = 0.50744, To = do / 0.02.
    fill({{INLETLENGTH, "3"}});
    EXPECT_EQ(solved(INLETPERF), "Orifice Flow");
    EXPECT_EQ(text(OPENSPREAD), "25.372");
    // A slot of 12 in and 2 ft: do = 0.02428 lies far below dw = 0.5456 and still gives the spread.
    fill({{INLETLENGTH, "2"}, {SLOTWIDTH, "12"}});
    EXPECT_EQ(solved(INLETPERF), "Orifice Flow");
    EXPECT_EQ(text(OPENSPREAD), "1.214");
}

TEST_F(SlotInSump, AWeirDepthOfExactlyAFixedDepthIsTransitionFlow) {
    struct Row {
        const char* units;
        const char* Q;  // of a slot 1 long, whose dw = (Q / Cw)^0.667 is the depth to the last digit
        double depth;
    };
    for (const auto& [units, Q, depth] :
         {Row{"ENGLISH", "0.22208572271693183", 0.2}, Row{"ENGLISH", "0.6278269781196998", 0.4},
          Row{"METRIC", "0.02061915388412018", 0.06}, Row{"METRIC", "0.05828947901775811", 0.12}}) {
        use_units(units);
        fill({{INLETLENGTH, "1"}, {TOTAL_DISCHARGE, Q}});
        EXPECT_EQ(solved("dw"), depth);
        EXPECT_EQ(text(INLETPERF), "Transition flow") << units << ' ' << depth;
    }
}

TEST_F(SlotInSump, AnUnreadablePavementSlopeRaisesNothingForItIsNotReadAnew) {
    fill({{PAVXSLOPE, "abc"}, {INLETXSLOPE, "0.1"}});
    EXPECT_EQ(solved(INLETXSLOPE), "0.1");
}

TEST_F(SlotInSump, ABlankInletSlopeIsATenthUnlessThePavementIsSteeper) {
    fill({{INLETXSLOPE, ""}});
    EXPECT_EQ(solved(INLETXSLOPE), "0.1");
    fill({{INLETXSLOPE, ""}, {PAVXSLOPE, "0.15"}});
    EXPECT_EQ(solved(INLETXSLOPE), "0.15");
}

TEST_F(SlotInSump, AnUnreadableClogLeavesTheSlotWithoutLength) {
    fill({{GRATEPERCLOG, "abc"}});
    EXPECT_EQ(solved(EFFLEN), "0.000");
    EXPECT_EQ(text(INLETPERF), "Weir Flow");
}

TEST_F(SlotInSump, AFullyCloggedSlotReportsWeirFlowWithoutSpread) {
    fill({{GRATEPERCLOG, "100"}});
    EXPECT_EQ(solved(INLETPERF), "Weir Flow");
    EXPECT_EQ(text(OPENSPREAD), "0.000");
}

TEST_F(SlotInSump, ADeepSlotWithoutWidthReportsOrificeFlowWithoutDepth) {
    fill({{SLOTWIDTH, "0"}, {INLETLENGTH, "2"}});
    EXPECT_EQ(solved(INLETPERF), "Orifice Flow");
    EXPECT_EQ(text(OPENSPREAD), "0.000");
}

TEST_F(SlotInSump, AFlatPavementShowsNoSpread) {
    fill({{PAVXSLOPE, "0"}});
    EXPECT_EQ(solved(OPENSPREAD), "0.000");
}

TEST_F(SlotInSump, WhatASumpDoesNotKnowStaysEmpty) {
    check_and_solve();
    for (const auto column :
         {QCARRY, EFFICIENCY, FLOWRATIO, WT, COMPXSLOPE, DEPXSLOPE, INTLEN, FLOWVEL, EFFPERI}) {
        EXPECT_EQ(text(column), "") << column_name(column);
    }
}

}  // namespace
}  // namespace gullymark::engine
