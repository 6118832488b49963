#include "engine/results.h"

#include "engine/engine_fixture.h"

namespace gullymark::engine {
namespace {

using Results = EngineTest;

TEST_F(Results, TwoColumnsWithTheSameValueCanDifferInDecimals) {
    open_inlet.load(Column::EFFICIENCY, "0.5");
    open_inlet.load(Column::FFLOWEFF, "0.5");
    open_inlet.load(Column::SFLOWEFF, "0.5");
    open_inlet.load(Column::COMPXSLOPE, "0.5");
    open_inlet.load(Column::DEPXSLOPE, "0.5");
    format_results();
    EXPECT_EQ(open_inlet.text(Column::EFFICIENCY), "0.500");
    for (const auto column : {Column::FFLOWEFF, Column::SFLOWEFF, Column::COMPXSLOPE, Column::DEPXSLOPE}) {
        EXPECT_EQ(open_inlet.text(column), "0.5000");
    }
    use_units("METRIC");
    open_inlet.load(Column::EFFICIENCY, "0.5");
    format_results();
    EXPECT_EQ(open_inlet.text(Column::EFFICIENCY), "0.5000");
    // The lists and the record view leave another format behind them.
    unit_constants.numberFormat = "0.000";
    format_results();
    EXPECT_EQ(open_inlet.text(Column::EFFICIENCY), "0.500");
}

TEST_F(Results, AColumnThatNoSolverWroteStaysEmptyAfterFormatting) {
    clear_results();
    open_inlet.load(Column::INLETPERF, "1");
    format_results();
    EXPECT_EQ(open_inlet.text(Column::OPENSPREAD), "");
    EXPECT_EQ(open_inlet.text(Column::EFFLEN), "");
    EXPECT_EQ(open_inlet.text(Column::INLETPERF), "1");
}

}  // namespace
}  // namespace gullymark::engine
