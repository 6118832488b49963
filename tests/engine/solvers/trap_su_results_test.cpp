#include "engine/solvers/TRAP_SU_RESULTS.h"

#include "engine/engine_fixture.h"

namespace gullymark::engine {
namespace {

using enum Column;

class DitchInSump : public EngineTest {
  protected:
    void SetUp() override {
        EngineTest::SetUp();
        fill({{INLET_LOCATION, "SUMP"},
              {INLET_TYPE, "Grate Inlet in a Ditch"},
              {TOTAL_DISCHARGE, "8"},
              {GRATEPERCLOG, "0"},
              {GRATEPERI, "7"},
              {GRATEAREA, "2.5"},
              {GRATEWIDTH, "2"},
              {INLET_SUBTYPE, ""}});
    }
};

TEST_F(DitchInSump, TheGreaterOfWeirAndOrificeDepthCounts) {
    // dw = (8 / 21)^0.6667 = 0.52549, do = (8 / (2.5 x 0.67))^2 / 64.348 = 0.35450.
    EXPECT_EQ(solved(DEPTHATINLET), "6.306");
    EXPECT_EQ(text(INLETPERF), "Weir Flow");
    EXPECT_EQ(text(RAREA), "2.500");
    EXPECT_EQ(text(RPERI), "7.000");
    EXPECT_EQ(text(QINT), "8.000");
    EXPECT_EQ(text(EFFPERI), "");
    EXPECT_EQ(text(DSBH), "");
    // A = 1, Q = 20: (20 / 0.67)^2 / 64.348 = 13.848 ft.
    fill({{TOTAL_DISCHARGE, "20"}, {GRATEAREA, "1"}});
    EXPECT_EQ(solved(DEPTHATINLET), "166.172");
    EXPECT_EQ(text(INLETPERF), "Orifice Flow");
}

TEST_F(DitchInSump, CloggingIsInTheTablesAndIsNotAppliedAgain) {
    fill({{GRATEPERCLOG, "50"}});
    EXPECT_EQ(solved(DEPTHATINLET), "6.306");
}

TEST_F(DitchInSump, EqualDepthsAreOrificeFlow) {
    // Both formulas underflow to 0.
    fill({{GRATEPERI, "1e300"}, {GRATEAREA, "1e300"}, {TOTAL_DISCHARGE, "1e-300"}});
    EXPECT_EQ(solved("dw"), solved("do"));
    EXPECT_EQ(text(INLETPERF), "Orifice Flow");
}

struct Rated {
    const char* Q;
    const char* depth;  // 12 d by hand
};

TEST_F(DitchInSump, ACleanRatedGrateFollowsItsFourPiecesEachFromItsOwnBoundOn) {
    for (const auto* subtype : {"Y-Weld", "Y-DI Gr"}) {
        fill({{INLET_SUBTYPE, subtype}});
        // 0.255 + 0.0741 ln Q below 1, 0.0493 Q + 0.2129 from 1, 0.0303 Q + 0.3429 from 6, 0.0943 Q - 1.2857
        // from 25.
        for (const auto& [Q, depth] :
             {Rated{"0.5", "2.444"}, Rated{"1", "3.146"}, Rated{"3", "4.330"}, Rated{"6", "6.296"},
              Rated{"10", "7.751"}, Rated{"25", "12.862"}, Rated{"30", "18.520"}}) {
            fill({{TOTAL_DISCHARGE, Q}});
            EXPECT_EQ(solved(DEPTHATINLET), depth) << subtype << ' ' << Q;
        }
    }
}

TEST_F(DitchInSump, AHalfCloggedRatedGrateFollowsItsFivePiecesEachFromItsOwnBoundOn) {
    fill({{INLET_SUBTYPE, "Y-DI Gr"}, {GRATEPERCLOG, "50"}});
    // (0.1 / 0.21) Q below 0.21, 0.166 Q + 0.0666, 0.0594 Q + 0.2069 from 1.2, 0.14 Q - 0.6 from 10,
    // 0.2333 Q - 2 from 15.
    for (const auto& [Q, depth] : {Rated{"0.1", "0.571"}, Rated{"0.21", "1.218"}, Rated{"0.7", "2.194"},
                                   Rated{"1.2", "3.338"}, Rated{"5", "6.047"}, Rated{"10", "9.600"},
                                   Rated{"12", "12.960"}, Rated{"15", "17.994"}, Rated{"20", "31.992"}}) {
        fill({{TOTAL_DISCHARGE, Q}});
        EXPECT_EQ(solved(DEPTHATINLET), depth) << Q;
    }
}

TEST_F(DitchInSump, ARatedDepthOfATrickleIsNegative) {
    // 12 (0.255 + 0.0741 ln 0.01)
    fill({{INLET_SUBTYPE, "Y-Weld"}, {TOTAL_DISCHARGE, "0.01"}});
    EXPECT_EQ(solved(DEPTHATINLET), "-1.035");
}

TEST_F(DitchInSump, ARatingTakesAMetricDischargeAsItIs) {
    use_units("METRIC");
    fill({{INLET_SUBTYPE, "Y-Weld"}, {TOTAL_DISCHARGE, "3"}});
    EXPECT_EQ(solved(DEPTHATINLET), "360.8000");
}

TEST_F(DitchInSump, AnotherCloggingHasNoRatingAndNoMessage) {
    fill({{INLET_SUBTYPE, "Y-Weld"}, {GRATEPERCLOG, "25"}});
    EXPECT_EQ(solved(DEPTHATINLET), "0.000");
    EXPECT_TRUE(boxes.empty());
}

TEST_F(DitchInSump, ARatedInletWritesTheDepthAloneWhateverItsTableLeavesInTheRecord) {
    fill({{INLET_SUBTYPE, "Y-DI Gr"},
          {GRATEAREA, "-"},
          {GRATEPERI, "-"},
          {GRATEWIDTH, "-"},
          {INLETLENGTH, "-"}});
    EXPECT_EQ(solved(DEPTHATINLET), "7.024");  // 12 (0.0303 x 8 + 0.3429)
    for (const auto column : {INLETPERF, RAREA, RPERI, QINT}) {
        EXPECT_EQ(text(column), "") << column_name(column);
    }
    EXPECT_TRUE(boxes.empty());
}

TEST_F(DitchInSump, AnyFaultEndsTheSolveWithABox) {
    const std::initializer_list<std::pair<Column, std::string_view>> faults = {
        {GRATEPERCLOG, ""}, {GRATEPERI, ""},  {GRATEPERI, "0"}, {GRATEPERI, "-7"},
        {GRATEAREA, "abc"}, {GRATEAREA, "0"}, {GRATEWIDTH, ""},
    };
    for (const auto& [column, value] : faults) {
        SetUp();
        boxes.clear();
        fill({{column, value}});
        EXPECT_TRUE(check_and_solve());
        EXPECT_EQ(boxes, std::vector{refusal_warning}) << column_name(column) << ' ' << value;
        EXPECT_EQ(text(DEPTHATINLET), "") << column_name(column) << ' ' << value;
        EXPECT_TRUE(DataSolved);
    }
}

TEST_F(DitchInSump, WhatWasWrittenBeforeTheFaultStaysUnformatted) {
    onlooker.tripped_step = 18;
    fill({{GRATEAREA, "2.5"}, {TOTAL_DISCHARGE, "8"}});
    check_and_solve();
    EXPECT_EQ(boxes, std::vector{refusal_warning});
    EXPECT_EQ(text(INLETPERF), "Weir Flow");
    EXPECT_EQ(text(RAREA), "2.5");
    EXPECT_EQ(text(RPERI), "");
    EXPECT_EQ(text(QINT), "");
}

}  // namespace
}  // namespace gullymark::engine
