#include "engine/solvers/COMBO_SU_RESULTS.h"

#include <cmath>

#include "engine/engine_fixture.h"

namespace gullymark::engine {
namespace {

using enum Column;

class ComboInSump : public EngineTest {
  protected:
    void SetUp() override {
        EngineTest::SetUp();
        fill({{INLET_LOCATION, "SUMP"}, {INLET_TYPE, "Combination Curb and Grate Inlet"},
              {TOTAL_DISCHARGE, "6"},   {DISCHARGE1, "3"},
              {CARRYOVER1, "1"},        {DISCHARGE2, "2"},
              {CARRYOVER2, "0"},        {GRATEPERI, "7"},
              {GRATEAREA, "2.5"},       {GRATEWIDTH, "2"},
              {GUTWIDTH, "2"},          {LONGSLOPE, "0.01"},
              {MANNINGS, "0.016"},      {PAVXSLOPE, "0.02"},
              {GUTXSLOPE, "0.05"},      {LOCDEPWIDTH, "2"},
              {INLETXSLOPE, "0.1"},     {GRATEPERCLOG, "50"},
              {ALLOWABLE_SPREAD, "8"},  {INLETLENGTH, "3"},
              {HEIGHTOFCURB, "6"},      {THROATYPE, "Vertical"},
              {THROATANGLE, "30"}});
    }
};

TEST_F(ComboInSump, TheResultsAreThoseOfTheHandCalculation) {
    // Pe = 5, Ae = 1.25, dw = (6 / 15)^0.6667 = 0.5429 > h = 0.5, do = 0.008 by the march, e = 2 x 0.1 / 2,
    // Ti = (dw - e) / 0.02 + 2, the depths Ti 0.02 12 and (dw + e) 12.
    EXPECT_EQ(solved(INLETPERF), "Weir Flow");
    EXPECT_EQ(text(EFFPERI), "5.000");
    EXPECT_EQ(text(RPERI), "5.000");
    EXPECT_EQ(text(RAREA), "1.250");
    EXPECT_EQ(text(OPENSPREAD), "24.143");
    EXPECT_EQ(text(CURBDEPTH), "5.794");
    EXPECT_EQ(text(DEPTHATINLET), "7.714");
    EXPECT_EQ(text(QINT), "6.000");
    EXPECT_EQ(text(QCARRY), "");
    EXPECT_NEAR(solved("do"), 0.008, 1e-12);
}

TEST_F(ComboInSump, AGrateThatIsMoreThanCloggedIsNoCurbOpeningAlone) {
    // Pe = 7 - 1.1 x 4 = 2.6, Ae = -0.1 x 2.5, dw = (6 / (3 x 2.6))^0.6667 = 0.8395, Ti = (dw - 0.1) / 0.02 + 2.
    fill({{GRATEPERCLOG, "110"}});
    EXPECT_EQ(solved(EFFPERI), "2.600");
    EXPECT_EQ(text(RAREA), "-0.250");
    EXPECT_EQ(text(OPENSPREAD), "38.976");
}

TEST_F(ComboInSump, TheThroatDecidesTheDepthOfTheMarch) {
    // Q = 40, h = 14 in, Ae = 0.1, L = 1, every depth tried outside the program.
    fill({{TOTAL_DISCHARGE, "40"},
          {HEIGHTOFCURB, "14"},
          {GRATEAREA, "0.2"},
          {INLETLENGTH, "1"},
          {GRATEPERI, "3"}});
    EXPECT_NEAR(solved("do"), 0.620, 1e-9);
    fill({{THROATYPE, "Inclined"}});
    EXPECT_NEAR(solved("do"), 0.908, 1e-9);
    fill({{THROATYPE, "Horizontal"}});
    EXPECT_NEAR(solved("do"), 1.198, 1e-9);
    fill({{THROATYPE, "horizontal"}});
    EXPECT_NEAR(solved("do"), 5538.774, 1e-3);
    EXPECT_EQ(text(INLETPERF), "Orifice Flow");
    EXPECT_EQ(text(OPENSPREAD), "276935.700");
}

TEST_F(ComboInSump, AWeirDepthUpToTheHeightOfTheOpeningNeedsNoMarch) {
    fill({{HEIGHTOFCURB, "6.6"}});
    EXPECT_EQ(solved("do"), 0.0);
    EXPECT_EQ(text(INLETPERF), "Weir Flow");
    // dw = (15 / 15)^0.6667 = 1 = h exactly.
    fill({{TOTAL_DISCHARGE, "15"}, {HEIGHTOFCURB, "12"}});
    EXPECT_EQ(solved("dw"), 1.0);
    EXPECT_EQ(solved("do"), 0.0);
}

TEST_F(ComboInSump, AGrateThatIsCloggedOutOrHasNoSizeLeavesTheCurbOpeningAlone) {
    // dw = (6 / (2.3 x 3))^0.667 = 0.91099, do = (6 / (0.67 x 0.5 x 3))^2 / 64.348 = 0.55391,
    // Ti = (dw - e) / 0.02 + 2.
    for (const auto& [column, value] : {std::pair{GRATEPERCLOG, "100"}, {GRATEPERI, "0"}, {GRATEAREA, "0"}}) {
        SetUp();
        fill({{column, value}});
        EXPECT_EQ(solved(OPENSPREAD), "42.550") << column_name(column);
        EXPECT_EQ(text(INLETPERF), "Weir Flow");
        EXPECT_NEAR(solved("dw"), 0.9109919524054362, 1e-14);
        EXPECT_NEAR(solved("do"), 0.5539050529695201, 1e-14);
    }
}

TEST_F(ComboInSump, NearlyCloggedOutIsStillTheCombination) {
    fill({{GRATEPERCLOG, "99.999"}});
    EXPECT_NE(solved(OPENSPREAD), "42.550");
}

TEST_F(ComboInSump, EqualDepthsTakeTheWeirAndReportOrificeFlow) {
    // Pe = -7 + (7 + 7) 0.5 = 0 leaves dw at 0, and so does do.
    fill({{INLETLENGTH, "-7"}});
    EXPECT_EQ(solved("Pe"), 0.0);
    EXPECT_EQ(solved("d"), 0.0);
    EXPECT_EQ(text(INLETPERF), "Orifice Flow");
}

TEST_F(ComboInSump, AGrateWiderThanTheGutterWidensItBeforeTheGutterSpread) {
    // W = 4: the spread of 4 cfs is 10.3968, Ti = (0.5429 - 0.2) / 0.02 + 4.
    fill({{GRATEWIDTH, "4"}});
    EXPECT_NEAR(solved("Tg"), 10.39683, 1e-3);
    EXPECT_EQ(text(OPENSPREAD), "21.143");
}

TEST_F(ComboInSump, AnInletSlopeOfZeroNeedsNoDivision) {
    // e = 0, so the depth at the inlet is dw 12; a level pavement has no spread at the edge.
    fill({{PAVXSLOPE, "0"}, {INLETXSLOPE, "0"}});
    EXPECT_EQ(solved(DEPTHATINLET), "6.514");
    EXPECT_EQ(text(OPENSPREAD), "0.000");
}

TEST_F(ComboInSump, ADepthBelowTheGutterEdgeGivesNoSpreadBelowZero) {
    // d = 0.0737, e = 0.3: (d - e) / 0.02 + 2 is negative.
    fill({{TOTAL_DISCHARGE, "0.3"}, {INLETXSLOPE, "0.3"}});
    EXPECT_EQ(solved(OPENSPREAD), "0.000");
}

TEST_F(ComboInSump, TheMetricWeirCoefficientOfTheGrateIsASinglePrecisionNumber) {
    use_units("METRIC");
    fill({{TOTAL_DISCHARGE, "0.4"},
          {GRATEPERCLOG, "0"},
          {INLETLENGTH, "1"},
          {GRATEPERI, "2"},
          {HEIGHTOFCURB, "900"}});
    EXPECT_EQ(solved("dw"), std::pow(0.4 / (1.600000023841858 * 2.0), 0.6667));
    EXPECT_NE(solved("dw"), std::pow(0.4 / (1.6 * 2.0), 0.6667));
}

TEST_F(ComboInSump, ABlankLengthCountsAsNoneAndThePerimeterIsStillWritten) {
    // Unlike the grate alone, whose perimeter then stays empty: 0 + (7 - 0) 0.5.
    fill({{INLETLENGTH, ""}});
    EXPECT_EQ(solved(EFFPERI), "3.500");
}

TEST_F(ComboInSump, ABlankAngleDoesNoHarm) {
    fill({{THROATANGLE, ""}, {THROATYPE, "Inclined"}});
    const std::string flat = solved(OPENSPREAD);
    fill({{THROATANGLE, "0"}});
    EXPECT_EQ(solved(OPENSPREAD), flat);
}

TEST_F(ComboInSump, ItShowsNoMessageOfItsOwnWhateverIsMissing) {
    for (const auto column :
         {GRATEPERI, GRATEAREA, GRATEWIDTH, PAVXSLOPE, GUTXSLOPE, INLETLENGTH, HEIGHTOFCURB}) {
        SetUp();
        fill({{column, ""}});
        EXPECT_EQ(solved(QINT), "6.000") << column_name(column);
        EXPECT_TRUE(boxes.empty()) << column_name(column);
    }
}

TEST_F(ComboInSump, AMarchThatCannotEndShowsTheDischargeMessage) {
    // A negative area, and a throat that nothing reaches.
    fill({{GRATEAREA, "-1"}, {THROATYPE, ""}});
    EXPECT_EQ(solved("do"), 0.0);
    EXPECT_EQ(boxes.front().text, "No results computed.  Check your input for discharge.");
}

}  // namespace
}  // namespace gullymark::engine
