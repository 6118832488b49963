#include "engine/solve.h"

#include "engine/engine_fixture.h"

namespace gullymark::engine {
namespace {

using platform::Box;
using platform::BoxKind;

using SolveCommand = EngineTest;

void fill_curb_example() {
    // FHWA HEC-22, fourth edition, example 7.2 (A): a curb opening without a depression.
    const std::initializer_list<std::pair<Column, const char*>> values = {
        {Column::INLET_LOCATION, "CONTINUOUS GRADE"},
        {Column::INLET_TYPE, "Curb Inlet"},
        {Column::TOTAL_DISCHARGE, "1.77"},
        {Column::LONGSLOPE, "0.01"},
        {Column::MANNINGS, "0.016"},
        {Column::GUTWIDTH, "0"},
        {Column::PAVXSLOPE, "0.02"},
        {Column::GUTXSLOPE, "0.02"},
        {Column::INLETXSLOPE, "0.02"},
        {Column::LOCDEPWIDTH, "0"},
        {Column::ALLOWABLE_SPREAD, "10"},
        {Column::INLETLENGTH, "9.84"},
        {Column::GRATEPERCLOG, "0"},
    };
    for (const auto& [column, text] : values) {
        open_inlet.load(column, text);
    }
}

TEST_F(SolveCommand, ADischargeOfZeroOrBelowShowsTheMessageAndLeavesOldResults) {
    for (const auto* discharge : {"0", "-1", "0.000"}) {
        boxes.clear();
        DataSolved = false;
        open_inlet.load(Column::TOTAL_DISCHARGE, discharge);
        open_inlet.load(Column::QINT, "9.999");
        EXPECT_FALSE(check_and_solve());
        EXPECT_EQ(boxes,
                  std::vector{(Box{BoxKind::warning, "No results computed.  Check your input for discharge.",
                                   "Errur"})});
        EXPECT_EQ(open_inlet.text(Column::QINT), "9.999");
        EXPECT_FALSE(DataSolved);
    }
}

TEST_F(SolveCommand, ARefusedSolveLeavesASolvedInletSolved) {
    for (const auto* discharge : {"0", "abc"}) {
        DataSolved = true;
        open_inlet.load(Column::TOTAL_DISCHARGE, discharge);
        EXPECT_FALSE(check_and_solve());
        EXPECT_TRUE(DataSolved) << discharge;
    }
}

TEST_F(SolveCommand, ABlankOrUnreadableDischargeShowsInvalidInputAndDoesNotCountAsSolved) {
    for (const auto* discharge : {"", "abc", ".", "1e999"}) {
        boxes.clear();
        open_inlet.load(Column::TOTAL_DISCHARGE, discharge);
        open_inlet.load(Column::QINT, "9.999");
        EXPECT_FALSE(check_and_solve());
        EXPECT_EQ(boxes, std::vector{
                             (Box{BoxKind::warning, "No results computed.  Invalid input.", "GullymarkAL"})});
        EXPECT_EQ(open_inlet.text(Column::QINT), "9.999");
        EXPECT_FALSE(DataSolved);
    }
}

TEST_F(SolveCommand, ATypeOrLocationOutsideTheTableEndsWithEmptyResultsAndCountsAsSolved) {
    for (const auto& [location, type] : std::vector<std::pair<std::string, std::string>>{
             {"SUMP ", "Curb Inlet"}, {"CONTINUOUS GRADE", "curb inlet"}, {"", ""}}) {
        fill_curb_example();
        open_inlet.load(Column::INLET_LOCATION, location);
        open_inlet.load(Column::INLET_TYPE, type);
        open_inlet.load(Column::QINT, "9.999");
        open_inlet.load(Column::INLETPERF, "Weir Flow");
        DataSolved = false;
        EXPECT_TRUE(check_and_solve());
        EXPECT_EQ(open_inlet.text(Column::QINT), "");
        EXPECT_EQ(open_inlet.text(Column::INLETPERF), "");
        EXPECT_TRUE(DataSolved);
        EXPECT_TRUE(boxes.empty());
    }
}

TEST_F(SolveCommand, TheWorkedCurbOpeningExampleComesWithinTheManualsRounding) {
    fill_curb_example();
    EXPECT_TRUE(check_and_solve());
    // Published: length for total interception 23.9 ft, efficiency 0.61, intercepted 1.08 cfs.
    EXPECT_EQ(open_inlet.text(Column::INTLEN), "23.945");
    EXPECT_EQ(open_inlet.text(Column::EFFICIENCY), "0.614");
    EXPECT_EQ(open_inlet.text(Column::QINT), "1.087");
    EXPECT_EQ(open_inlet.text(Column::QCARRY), "0.683");
}

TEST_F(SolveCommand, AChangeAfterASolveIsAFirstChangeAgain) {
    fill_curb_example();
    open_inlet.on_first_change = [] { DataSolved = false; };
    EXPECT_TRUE(check_and_solve());
    EXPECT_TRUE(DataSolved);
    open_inlet.set(Column::INLETLENGTH, "5");
    EXPECT_FALSE(DataSolved);
}

}  // namespace
}  // namespace gullymark::engine
