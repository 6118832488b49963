#include "engine/solvers/GI_SU_RESULTS.h"

#include "engine/engine_fixture.h"

namespace gullymark::engine {
namespace {

using enum Column;

const platform::Box no_discharge{.text = "No results computed.  Check your input for discharge."};

class GrateInSump : public EngineTest {
  protected:
    void SetUp() override {
        EngineTest::SetUp();
        fill({{INLET_LOCATION, "SUMP"}, {INLET_TYPE, "Grate Inlet"},
              {TOTAL_DISCHARGE, "6"},   {DISCHARGE1, "3"},
              {CARRYOVER1, "1"},        {DISCHARGE2, "2"},
              {CARRYOVER2, "0"},        {GRATEPERI, "7"},
              {GRATEAREA, "2.5"},       {GRATEWIDTH, "2"},
              {GUTWIDTH, "2"},          {LONGSLOPE, "0.01"},
              {MANNINGS, "0.016"},      {PAVXSLOPE, "0.02"},
              {GUTXSLOPE, "0.05"},      {LOCDEPWIDTH, "2"},
              {INLETXSLOPE, "0.1"},     {GRATEPERCLOG, "50"},
              {ALLOWABLE_SPREAD, "8"},  {INLETLENGTH, "3"},
              {CURBOPTION, "With Curb"}});
    }
};

TEST_F(GrateInSump, TheResultsAreThoseOfTheHandCalculation) {
    // Pe = 3 + (7 - 3) 0.5 = 5, Ae = 1.25, dw = (6 / 15)^0.6667 = 0.5429, do = (6 / (0.67 Ae))^2 / 64.348 =
    // 0.7976, h = 2 x 0.1 / 2, Ti = (do - h) / 0.02 + 2, the depths Ti 0.02 12 and (do + h) 12.
    EXPECT_EQ(solved(INLETPERF), "Orifice Flow");
    EXPECT_EQ(text(EFFPERI), "5.000");
    EXPECT_EQ(text(RPERI), "5.000");
    EXPECT_EQ(text(RAREA), "1.250");
    EXPECT_EQ(text(OPENSPREAD), "36.881");
    EXPECT_EQ(text(CURBDEPTH), "8.851");
    EXPECT_EQ(text(DEPTHATINLET), "10.771");
    EXPECT_NEAR(solved("dw"), 0.5428669422675035, 1e-15);
    EXPECT_NEAR(solved("Tg"), 11.72192, 1e-3);
}

TEST_F(GrateInSump, TheWholeFlowIsTakenAndNoneBypasses) {
    EXPECT_EQ(solved(QINT), "6.000");
    EXPECT_EQ(text(QCARRY), "");
}

TEST_F(GrateInSump, AShallowDepthSpreadsOverTheInletSlopeAlone) {
    // Q = 0.3, 0.2 of it from the left: d = dw = 0.07367 below h = 0.1: Ti = (h + d) / 0.1, and the gutter
    // spread of 2.5666 is the wider one for the depth at the curb.
    fill({{TOTAL_DISCHARGE, "0.3"}, {DISCHARGE1, "0.2"}, {CARRYOVER1, "0"}, {DISCHARGE2, "0.1"}});
    EXPECT_EQ(solved(INLETPERF), "Weir Flow");
    EXPECT_EQ(text(OPENSPREAD), "1.737");
    EXPECT_EQ(text(DEPTHATINLET), "2.084");
    EXPECT_EQ(text(CURBDEPTH), "0.616");
}

TEST_F(GrateInSump, AFullyCloggedGrateIsAWeirOfOneLength) {
    // Ae = 0 leaves no orifice depth; Pe = 3, dw = (6 / 9)^0.6667 = 0.7631.
    fill({{GRATEPERCLOG, "100"}});
    EXPECT_EQ(solved(INLETPERF), "Weir Flow");
    EXPECT_EQ(text(RAREA), "0.000");
    EXPECT_EQ(text(OPENSPREAD), "35.157");
    EXPECT_EQ(solved("do"), 0.0);
}

TEST_F(GrateInSump, EqualDepthsAreOrificeFlow) {
    // No length and no area: both depths stay 0.
    fill({{GRATEPERCLOG, "100"}, {INLETLENGTH, ""}});
    EXPECT_EQ(solved("dw"), solved("do"));
    EXPECT_EQ(text(INLETPERF), "Orifice Flow");
}

TEST_F(GrateInSump, AGrateWiderThanTheGutterWidensItBehindTheGutterSpread) {
    // h = 3 x 0.1 / 2, Ti = (0.7976 - h) / 0.02 + 3; the gutter spread is that of 2 ft.
    fill({{GRATEWIDTH, "3"}});
    EXPECT_EQ(solved(OPENSPREAD), "35.381");
    EXPECT_NEAR(solved("Tg"), 11.72192, 1e-3);
}

TEST_F(GrateInSump, AnInletSlopeBelowThatOfTheGutterGivesWayToIt) {
    // S'w = 0.05: h = 0.05, the depth at the inlet (0.7976 + 0.05) 12.
    fill({{INLETXSLOPE, "0.03"}});
    EXPECT_EQ(solved(DEPTHATINLET), "10.171");
    EXPECT_EQ(text(INLETXSLOPE), "0.03");
}

TEST_F(GrateInSump, WithoutAnySlopeThereIsNoSpreadAtTheInlet) {
    fill({{PAVXSLOPE, "0"}, {GUTXSLOPE, "0"}, {INLETXSLOPE, "0"}});
    EXPECT_EQ(solved(OPENSPREAD), "0.000");
    EXPECT_NE(text(DEPTHATINLET), "0.000");
}

TEST_F(GrateInSump, ABlankLengthLeavesTheOrificeDepthToDecide) {
    fill({{INLETLENGTH, ""}});
    EXPECT_EQ(solved(EFFPERI), "");
    EXPECT_EQ(text(RPERI), "0.000");
    EXPECT_EQ(text(INLETPERF), "Orifice Flow");
    EXPECT_EQ(solved("dw"), 0.0);
}

TEST_F(GrateInSump, ThePerimeterIsUsedAsItIsShownWithThreeDecimals) {
    // Pe = 3 + (7.0007 - 3) 0.5 = 5.00035.
    fill({{GRATEPERI, "7.0007"}});
    EXPECT_EQ(solved("Pe"), 5.0);
}

TEST_F(GrateInSump, ThePerimeterHasThreeDecimalsInMetricUnitsAsWell) {
    use_units("METRIC");
    fill({{GRATEPERI, "2.12345"}, {INLETLENGTH, "1"}, {GRATEPERCLOG, "0"}});
    EXPECT_EQ(solved("Pe"), 2.123);
    EXPECT_EQ(text(EFFPERI), "2.1230");
}

TEST_F(GrateInSump, ACurbHasNoEffect) {
    check_and_solve();
    const InletRecord with_curb = open_inlet;
    fill({{CURBOPTION, "Without Curb"}});
    check_and_solve();
    for (const auto column : {EFFPERI, OPENSPREAD, RAREA, RPERI, CURBDEPTH, DEPTHATINLET, QINT, INLETPERF}) {
        EXPECT_EQ(text(column), with_curb.text(column)) << column_name(column);
    }
}

TEST_F(GrateInSump, AnInputThatIsRefusedShowsABoxAndEmptiesAllResults) {
    const std::initializer_list<std::pair<Column, std::string_view>> refused = {
        {GRATEPERI, "0"},  {GRATEPERI, ""},  {GRATEPERI, "-1"},    {GRATEAREA, "0"},     {GRATEAREA, "abc"},
        {GRATEWIDTH, "0"}, {GRATEWIDTH, ""}, {PAVXSLOPE, "-0.01"}, {GUTXSLOPE, "0.019"},
    };
    for (const auto& [column, value] : refused) {
        SetUp();
        boxes.clear();
        fill({{column, value}});
        EXPECT_TRUE(check_and_solve());
        EXPECT_EQ(boxes, std::vector{refusal_box}) << column_name(column) << ' ' << value;
        for (const auto result : {EFFPERI, GUTTERSPREAD, OPENSPREAD, RAREA, CURBDEPTH, QINT, INLETPERF}) {
            EXPECT_EQ(text(result), "") << column_name(column) << ' ' << value;
        }
        EXPECT_TRUE(DataSolved);
    }
}

TEST_F(GrateInSump, TheRefusalComesBehindTheGutterSpreadAndItsBox) {
    fill({{DISCHARGE1, "0"}, {CARRYOVER1, "0"}, {DISCHARGE2, "0"}, {GRATEPERI, "0"}});
    check_and_solve();
    EXPECT_EQ(boxes, (std::vector{no_discharge, refusal_box}));
}

TEST_F(GrateInSump, ABlankInletSlopeIsATenthUnlessThePavementIsSteeper) {
    fill({{INLETXSLOPE, ""}});
    EXPECT_EQ(solved(INLETXSLOPE), "0.1");
    fill({{INLETXSLOPE, ""}, {PAVXSLOPE, "0.15"}, {GUTXSLOPE, "0.15"}});
    EXPECT_EQ(solved(INLETXSLOPE), "0.15");
}

}  // namespace
}  // namespace gullymark::engine
