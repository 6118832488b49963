#include "engine/solvers/TRAP_CG_RESULTS.h"

#include "engine/engine_fixture.h"

namespace gullymark::engine {
namespace {

using enum Column;

class DitchOnGrade : public EngineTest {
  protected:
    void SetUp() override {
        EngineTest::SetUp();
        fill({{INLET_LOCATION, "CONTINUOUS GRADE"},
              {INLET_TYPE, "Grate Inlet in a Ditch"},
              {TOTAL_DISCHARGE, "9.9"},
              {LONGSLOPE, "0.03"},
              {MANNINGS, "0.03"},
              {GUTWIDTH, "2"},
              {LSCOPERATIO, "6"},
              {RSCOPERATIO, "6"},
              {GRATEWIDTH, "2"},
              {INLETLENGTH, "2"},
              {GRATETYPE, "P-1-7/8"},
              {INLET_SUBTYPE, ""}});
    }
};

TEST_F(DitchOnGrade, TheResultsAreThoseOfTheHandCalculation) {
    // Unequal sides of 4:1 and 3:1, 6 cfs, grate of 1.5 ft: y = 0.44082, Eo = 1.5 / (3.5 y + 2),
    // A = 2 y + 3.5 y^2, Pw = 2 + (17^0.5 + 10^0.5) y, Rf = 1, Ss = 0.01,
    // Rs = 1 / (0.15 V^1.8 / (2^2.3 Ss) + 1), berm (6 / (3 x 2 (2 + 1.5)))^0.67 in ft.
    fill({{TOTAL_DISCHARGE, "6"}, {LSCOPERATIO, "4"}, {RSCOPERATIO, "3"}, {GRATEWIDTH, "1.5"}});
    EXPECT_EQ(solved(CURBDEPTH), "5.290");
    EXPECT_EQ(text(FLOWRATIO), "0.423");
    EXPECT_EQ(text(FLOWAREA), "1.562");
    EXPECT_EQ(text(FLOWVEL), "3.842");
    EXPECT_NEAR(solved("Pw"), 5.21152, 1e-4);
    EXPECT_EQ(text(HYDRAD), "0.300");
    EXPECT_EQ(text(FFLOWEFF), "1.0000");
    EXPECT_EQ(text(SFLOWEFF), "0.0283");
    EXPECT_EQ(text(EFFICIENCY), "0.440");
    EXPECT_EQ(text(QINT), "2.638");
    EXPECT_EQ(text(QCARRY), "3.362");
    EXPECT_EQ(text(DSBH), "0.432");
    for (const auto column : {EFFPERI, RAREA, RPERI, OPENSPREAD}) {
        EXPECT_EQ(text(column), "") << column_name(column);
    }
}

TEST_F(DitchOnGrade, AGrateWiderThanTheFlowShowsARatioAboveOne) {
    // Wg = 8, Q = 2: Eo = 8 / (6 x 0.23106 + 2) = 2.362; the efficiency is held at 1.
    fill({{GRATEWIDTH, "8"}, {TOTAL_DISCHARGE, "2"}});
    EXPECT_EQ(solved(FLOWRATIO), "2.362");
    EXPECT_EQ(text(EFFICIENCY), "1.000");
    EXPECT_EQ(text(QCARRY), "0.000");
}

TEST_F(DitchOnGrade, ARatioAboveOneMakesTheSideTermNegative) {
    // Rf = 0 of a grate that is not listed: E = Rs (1 - Eo) = 0.5026 (1 - 2.362), and is held at 1 alone.
    fill({{GRATEWIDTH, "8"}, {TOTAL_DISCHARGE, "2"}, {GRATETYPE, "Unknown"}});
    EXPECT_EQ(solved(FLOWRATIO), "2.362");
    EXPECT_EQ(text(SFLOWEFF), "0.5026");
    EXPECT_EQ(text(EFFICIENCY), "-0.685");
    EXPECT_EQ(text(QINT), "-1.369");
    EXPECT_EQ(text(QCARRY), "3.369");
}

TEST_F(DitchOnGrade, AGrateWithoutLengthTakesNothing) {
    for (const auto* length : {"0", "", "abc"}) {
        fill({{INLETLENGTH, length}, {GRATETYPE, length == std::string_view("0") ? "P-50" : "Unknown"}});
        EXPECT_EQ(solved(FFLOWEFF), "0.0000") << length;
        EXPECT_EQ(text(SFLOWEFF), "0.0000") << length;
        EXPECT_EQ(text(QINT), "0.000") << length;
        EXPECT_EQ(text(QCARRY), "9.900") << length;
    }
}

TEST_F(DitchOnGrade, AnUnreadableEnglishLengthTakesAllFrontalFlowAndLeavesTheBermEmpty) {
    fill({{INLETLENGTH, "-"}});
    EXPECT_EQ(solved(FFLOWEFF), "1.0000");
    EXPECT_EQ(text(SFLOWEFF), "0.0000");
    EXPECT_EQ(text(DSBH), "");
}

TEST_F(DitchOnGrade, AnUprightSideGivesTheSteepestSideSlopeWhateverTheOtherIs) {
    fill({{LSCOPERATIO, "0"}, {RSCOPERATIO, "5"}});
    EXPECT_EQ(solved("Ss"), 0.99);
    EXPECT_EQ(text(SFLOWEFF), "0.6840");
    fill({{LSCOPERATIO, "2"}, {RSCOPERATIO, "0"}});
    EXPECT_EQ(solved("Ss"), 0.99);
}

TEST_F(DitchOnGrade, AGrateNarrowerThanTheBottomHasTheFlattestSideSlopeWhateverTheSidesAre) {
    fill({{GRATEWIDTH, "1.999"}});
    EXPECT_EQ(solved("Ss"), 0.01);
    fill({{LSCOPERATIO, "0"}});
    EXPECT_EQ(solved("Ss"), 0.01);
    fill({{GRATEWIDTH, "2"}, {LSCOPERATIO, "6"}});
    EXPECT_EQ(solved("Ss"), 1.0 / 6.0);
}

TEST_F(DitchOnGrade, TwoStandardInletsAreShownWithTheDepthAlone) {
    for (const auto* subtype : {"X - DI Grate", "X - Welded Steel"}) {
        for (const auto* typed : {"-", "3"}) {
            SetUp();
            fill({{INLET_SUBTYPE, subtype}, {GRATEWIDTH, typed}, {INLETLENGTH, typed}});
            EXPECT_EQ(solved(CURBDEPTH), "6.026") << subtype;
            for (const auto column : {FLOWRATIO, FLOWAREA, FLOWVEL, WETPERI, HYDRAD, FFLOWEFF, SFLOWEFF,
                                      EFFICIENCY, QINT, QCARRY, DSBH}) {
                EXPECT_EQ(text(column), "") << column_name(column);
            }
            EXPECT_EQ(text(GRATEWIDTH), typed);
        }
    }
}

TEST_F(DitchOnGrade, CloggingPlaysNoPartAndIsNotRepaired) {
    const std::string clean = solved(QINT);
    fill({{GRATEPERCLOG, ""}});
    EXPECT_EQ(solved(QINT), clean);
    EXPECT_EQ(text(GRATEPERCLOG), "");
    fill({{GRATEPERCLOG, "90"}});
    EXPECT_EQ(solved(QINT), clean);
}

TEST_F(DitchOnGrade, ASearchForTheDepthThatCannotEndLeavesItAtZero) {
    fill({{LONGSLOPE, "0"}});
    EXPECT_EQ(solved(CURBDEPTH), "0.000");
    EXPECT_EQ(text(FLOWVEL), "0.000");
    EXPECT_EQ(text(FLOWRATIO), "1.000");
    EXPECT_TRUE(boxes.empty());
}

}  // namespace
}  // namespace gullymark::engine
