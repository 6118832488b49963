// Worked examples of FHWA's HEC-22, ENGLISH units; doc/sources.md tells which. Its numbers are read from charts and
// rounded on the way; beside each stands the value that the formulas of this system give by hand.

#include "engine/engine_fixture.h"

namespace gullymark::engine {
namespace {

using enum Column;

class WorkedExamples : public EngineTest {};

struct Expected {
    Column column;
    double published;
    const char* by_hand;
    double within;  // how far the manual's rounding takes the published value away
};

void compare(std::initializer_list<Expected> values) {
    for (const auto& [column, published, by_hand, within] : values) {
        EXPECT_EQ(open_inlet.text(column), by_hand) << column_name(column);
        EXPECT_NEAR(number_in(column).value().number(), published, within) << column_name(column);
    }
}

TEST_F(WorkedExamples, GratesInAGutterOnGrade) {
    fill({{INLET_LOCATION, "CONTINUOUS GRADE"},
          {INLET_TYPE, "Grate Inlet"},
          {TOTAL_DISCHARGE, "6.62"},
          {LONGSLOPE, "0.04"},
          {MANNINGS, "0.016"},
          {PAVXSLOPE, "0.025"},
          {GUTXSLOPE, "0.025"},
          {INLETXSLOPE, "0.025"},
          {GUTWIDTH, "2"},
          {GRATEWIDTH, "2"},
          {LOCDEPWIDTH, "2"},
          {INLETLENGTH, "2"},
          {ALLOWABLE_SPREAD, "10"},
          {GRATEPERCLOG, "0"}});
    fill({{GRATETYPE, "P-1-7/8"}});
    EXPECT_EQ(solved("Rf"), 1.0);  // published: 1.0
    compare({{FLOWVEL, 5.4, "5.471", 0.1}, {QINT, 3.15, "3.145", 0.01}});
    fill({{GRATETYPE, "Reticuline"}});
    check_and_solve();
    compare({{QINT, 2.80, "2.787", 0.02}});
}

TEST_F(WorkedExamples, AGrateInADitchOnGrade) {
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
          {GRATETYPE, "P-1-7/8"}});
    check_and_solve();
    compare({{CURBDEPTH, 12.0 * 0.5, "6.026", 0.06},
             {FLOWRATIO, 0.40, "0.399", 0.005},
             {FFLOWEFF, 1.0, "1.0000", 0.0},
             {SFLOWEFF, 0.315, "0.3175", 0.005},
             {EFFICIENCY, 0.59, "0.590", 0.005},
             {QINT, 5.8, "5.839", 0.05},
             {QCARRY, 4.1, "4.061", 0.05}});
}

class CurbOpeningInASag : public WorkedExamples {
  protected:
    void SetUp() override {
        WorkedExamples::SetUp();
        // An opening of 8.2 ft by 0.43 ft, cross slope 0.05; the manual fixes a spread of 8.2 ft and asks for
        // the flow, here the flow is given and the spread follows.
        fill({{INLET_LOCATION, "SUMP"},
              {INLET_TYPE, "Curb Inlet"},
              {DISCHARGE1, "1"},
              {CARRYOVER1, "0"},
              {DISCHARGE2, "0"},
              {CARRYOVER2, "0"},
              {GRATEPERCLOG, "0"},
              {HEIGHTOFCURB, "5.16"},
              {THROATYPE, "Vertical"},
              {THROATANGLE, "0"},
              {PAVXSLOPE, "0.05"},
              {GUTXSLOPE, "0.05"},
              {INLETXSLOPE, "0.05"},
              {INLETLENGTH, "8.2"},
              {ALLOWABLE_SPREAD, "8"},
              {LONGSLOPE, "0.01"},
              {MANNINGS, "0.016"}});
    }
};

TEST_F(CurbOpeningInASag, WithoutADepression) {
    fill({{TOTAL_DISCHARGE, "6.46"}, {GUTWIDTH, "0"}, {LOCDEPWIDTH, "0"}});
    check_and_solve();
    EXPECT_EQ(text(INLETPERF), "Weir Flow");
    compare({{OPENSPREAD, 8.2, "8.198", 0.05}, {CURBDEPTH, 12.0 * 0.41, "4.919", 0.05}});
}

TEST_F(CurbOpeningInASag, WithADepressionOfTwoFeet) {
    fill({{TOTAL_DISCHARGE, "7.1"}, {GUTWIDTH, "2"}, {LOCDEPWIDTH, "2"}});
    check_and_solve();
    EXPECT_EQ(text(INLETPERF), "Weir Flow");
    compare({{EFFPERI, 11.8, "11.800", 0.0},
             {OPENSPREAD, 8.2, "8.177", 0.05},
             {CURBDEPTH, 12.0 * 0.41, "4.906", 0.05}});
}

}  // namespace
}  // namespace gullymark::engine
