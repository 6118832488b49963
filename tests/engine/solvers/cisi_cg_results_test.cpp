#include "engine/solvers/CISI_CG_RESULTS.h"

#include "engine/engine_fixture.h"

namespace gullymark::engine {
namespace {

class CurbOnGrade : public EngineTest {
  protected:
    void SetUp() override {
        EngineTest::SetUp();
        fill({{Column::INLET_LOCATION, "CONTINUOUS GRADE"},
              {Column::INLET_TYPE, "Curb Inlet"},
              {Column::TOTAL_DISCHARGE, "3.000"},
              {Column::LONGSLOPE, "0.0100"},
              {Column::MANNINGS, "0.016"},
              {Column::GUTWIDTH, "2.000"},
              {Column::PAVXSLOPE, "0.0208"},
              {Column::GUTXSLOPE, "0.0833"},
              {Column::INLETXSLOPE, "0.3333"},
              {Column::LOCDEPWIDTH, "2.000"},
              {Column::ALLOWABLE_SPREAD, "8.0"},
              {Column::INLETLENGTH, "10.250"},
              {Column::GRATEPERCLOG, "0"}});
    }
};

TEST_F(CurbOnGrade, ABlankInletSlopeTakesThatOfTheGutterSoThatNothingIsDepressed) {
    fill({{Column::INLETXSLOPE, ""}});
    EXPECT_EQ(solved(Column::INLETXSLOPE), "0.0833");
    // a = 0: the section drops by the gutter alone, S'd = Sw - Sx.
    EXPECT_EQ(open_inlet.text(Column::DEPXSLOPE), "0.0625");
}

TEST_F(CurbOnGrade, AnInletSlopeBelowThePavementIsRaisedToItAndTheRecordKeepsTheChange) {
    fill({{Column::INLETXSLOPE, "0.01"}, {Column::PAVXSLOPE, "0.0208"}});
    EXPECT_EQ(solved(Column::INLETXSLOPE), "0.0208");
}

TEST_F(CurbOnGrade, ABlankClogBecomesZero) {
    fill({{Column::GRATEPERCLOG, ""}});
    EXPECT_EQ(solved(Column::GRATEPERCLOG), "0");
}

TEST_F(CurbOnGrade, NoGutterPutsAllFlowOutsideIt) {
    fill({{Column::GUTWIDTH, "0"}});
    EXPECT_EQ(solved(Column::FLOWRATIO), "0.000");
    EXPECT_EQ(open_inlet.text(Column::WT), "0.000");
    EXPECT_EQ(open_inlet.text(Column::DEPXSLOPE), "0.0000");
    EXPECT_EQ(open_inlet.text(Column::COMPXSLOPE), "0.0208");
}

TEST_F(CurbOnGrade, ASpreadEqualToTheGutterWidthHasAllFlowWithinIt) {
    // With K = 0.56, n = 0.016, S = 0.01 and Sw = 1 the uniform spread is 1 for Q = 3.5000000149 = K 0.1 / 0.016;
    // the nearest text keeps T at 1 but for the last digits, so the gutter takes its width from the spread itself.
    fill({{Column::TOTAL_DISCHARGE, "3.500000014901161"}, {Column::GUTXSLOPE, "1"}, {Column::GUTWIDTH, "1"}});
    EXPECT_EQ(solved(Column::OPENSPREAD), "1.000");
    EXPECT_EQ(open_inlet.text(Column::WT), "1.000");
    EXPECT_EQ(open_inlet.text(Column::FLOWRATIO), "1.000");
}

TEST_F(CurbOnGrade, AGutterExactlyAsWideAsTheSpreadOnOneSlopeHasAllFlowWithinIt) {
    // n = 1/64 and Q = 64 K, to the last digit of K: T = (Q n / K)^(1 / 2.67) = 1 = W exactly, on slopes of 1. Neither
    // W < T nor W > T holds, so B keeps its 0. Se = 1, LT = C Q^0.42 64^0.6, A = 1 / 2, V = 2 Q.
    struct Sample {
        const char *units, *Q, *LT, *Dc, *V, *E, *Qi, *Qc;
    };
    for (const auto& [units, Q, LT, Dc, V, E, Qi, Qc] :
         {Sample{"ENGLISH", "35.84000015258789", "32.711", "12.000", "71.680", "0.492", "17.622", "18.218"},
          Sample{"METRIC", "24.06399917602539", "37.6794", "1000.0000", "48.1280", "0.4353", "10.4755",
                 "13.5885"}}) {
        use_units(units);
        fill({{Column::TOTAL_DISCHARGE, Q},
              {Column::MANNINGS, "0.015625"},
              {Column::LONGSLOPE, "1"},
              {Column::GUTWIDTH, "1"},
              {Column::PAVXSLOPE, "1"},
              {Column::GUTXSLOPE, "1"},
              {Column::INLETXSLOPE, "1"},
              {Column::LOCDEPWIDTH, "0"}});
        ASSERT_EQ(solved("T"), 1.0) << units;
        EXPECT_EQ(solved("B"), 0.0) << units;
        EXPECT_EQ(solved("Eo"), 1.0) << units;
        EXPECT_EQ(solved("Se"), 1.0) << units;
        EXPECT_EQ(open_inlet.text(Column::INTLEN), LT);
        EXPECT_EQ(open_inlet.text(Column::CURBDEPTH), Dc);
        EXPECT_EQ(open_inlet.text(Column::FLOWVEL), V);
        EXPECT_EQ(open_inlet.text(Column::EFFICIENCY), E);
        EXPECT_EQ(open_inlet.text(Column::QINT), Qi);
        EXPECT_EQ(open_inlet.text(Column::QCARRY), Qc);
    }
}

TEST_F(CurbOnGrade, OnOneSlopeAGutterBarelyNarrowerThanTheSpreadHasAllFlowOutsideIt) {
    // The leap at W = T: below it equal slopes without a depression give Eo = 0.
    fill({{Column::TOTAL_DISCHARGE, "35.84000015258789"},
          {Column::MANNINGS, "0.015625"},
          {Column::LONGSLOPE, "1"},
          {Column::PAVXSLOPE, "1"},
          {Column::GUTXSLOPE, "1"},
          {Column::INLETXSLOPE, "1"},
          {Column::LOCDEPWIDTH, "0"}});
    fill({{Column::GUTWIDTH, "0.99"}});
    EXPECT_EQ(solved("Eo"), 0.0);
    fill({{Column::GUTWIDTH, "1.01"}});
    EXPECT_EQ(solved("Eo"), 1.0);
}

TEST_F(CurbOnGrade, AGutterWiderThanTheSpreadHasAllFlowWithinIt) {
    fill({{Column::GUTWIDTH, "50"}});
    EXPECT_EQ(solved(Column::FLOWRATIO), "1.000");
}

TEST_F(CurbOnGrade, EqualSlopesWithoutADepressionCountAsAllFlowOutside) {
    fill({{Column::GUTXSLOPE, "0.0208"}, {Column::LOCDEPWIDTH, "0"}});
    EXPECT_EQ(solved(Column::FLOWRATIO), "0.000");
    EXPECT_EQ(open_inlet.text(Column::DEPXSLOPE), "0.0000");
}

TEST_F(CurbOnGrade, AFullyCloggedOpeningTakesNothing) {
    fill({{Column::GRATEPERCLOG, "100"}});
    EXPECT_EQ(solved(Column::EFFICIENCY), "0.000");
    EXPECT_EQ(open_inlet.text(Column::QINT), "0.000");
    EXPECT_EQ(open_inlet.text(Column::QCARRY), "3.000");
}

TEST_F(CurbOnGrade, AnOpeningLongerThanNeededTakesEverything) {
    fill({{Column::INLETLENGTH, "500"}});
    EXPECT_EQ(solved(Column::EFFICIENCY), "1.000");
    EXPECT_EQ(open_inlet.text(Column::QCARRY), "0.000");
}

TEST_F(CurbOnGrade, ASlottedInletGivesTheSameNumbers) {
    std::vector<std::string> curb;
    check_and_solve();
    for (const auto column : all_columns) {
        curb.push_back(open_inlet.text(column));
    }
    fill({{Column::INLET_TYPE, "Slotted Inlet"}});
    check_and_solve();
    for (const auto column : all_columns) {
        if (column != Column::INLET_TYPE) {
            EXPECT_EQ(open_inlet.text(column), curb[static_cast<std::size_t>(column)]) << column_name(column);
        }
    }
}

TEST_F(CurbOnGrade, MetricResultsHaveFourDecimalsAndSlopesAlways) {
    EXPECT_EQ(solved(Column::FLOWRATIO).size(), std::string("0.000").size());
    EXPECT_EQ(open_inlet.text(Column::COMPXSLOPE).size(), std::string("0.0000").size());
    use_units("METRIC");
    EXPECT_EQ(solved(Column::FLOWRATIO).size(), std::string("0.0000").size());
    EXPECT_EQ(open_inlet.text(Column::COMPXSLOPE).size(), std::string("0.0000").size());
}

TEST_F(CurbOnGrade, WithoutASlopeTheSpreadIsZeroAndTheSolveGoesOn) {
    fill({{Column::LONGSLOPE, "0"}});
    EXPECT_EQ(solved(Column::OPENSPREAD), "0.000");
    EXPECT_EQ(open_inlet.text(Column::WT), "0.000");
    EXPECT_EQ(open_inlet.text(Column::FLOWVEL), "0.000");
    EXPECT_EQ(open_inlet.text(Column::FLOWRATIO), "1.000");
    EXPECT_TRUE(boxes.empty());
}

TEST_F(CurbOnGrade, AZeroCompositeSlopeReportsFullInterception) {
    fill({{Column::PAVXSLOPE, "0"}, {Column::GUTXSLOPE, "0"}, {Column::INLETXSLOPE, "0"}});
    EXPECT_EQ(solved(Column::INTLEN), "0.000");
    EXPECT_EQ(open_inlet.text(Column::EFFICIENCY), "1.000");
}

TEST_F(CurbOnGrade, AnUnreadableClogLeavesTheLengthAtZero) {
    fill({{Column::GRATEPERCLOG, "abc"}});
    EXPECT_EQ(solved(Column::EFFICIENCY), "0.000");
    EXPECT_EQ(open_inlet.text(Column::GRATEPERCLOG), "abc");
}

TEST_F(CurbOnGrade, AnUnreadablePavementSlopeEntersTheRaisingBranch) {
    fill({{Column::PAVXSLOPE, "abc"}});
    EXPECT_EQ(solved(Column::INLETXSLOPE), "abc");
}

TEST_F(CurbOnGrade, TheCompositeSlopeIsRoundedBeforeTheLengthIsComputedFromIt) {
    // Sx = 0.00004 alone (no gutter): Se rounds to 0.0000 and the length faults to 0.
    fill({{Column::GUTWIDTH, "0"}, {Column::PAVXSLOPE, "0.00004"}});
    EXPECT_EQ(solved(Column::COMPXSLOPE), "0.0000");
    EXPECT_EQ(open_inlet.text(Column::INTLEN), "0.000");
}

}  // namespace
}  // namespace gullymark::engine
