#include <set>

#include "review/texts.h"
#include "review_fixture.h"

namespace gullymark::review {
namespace {

struct Results : ReviewTest {};

TEST_F(Results, ARoadThatIsUpToDateHasNoFinding) {
    EXPECT_EQ(found(), Told{});
}

TEST_F(Results, AnAlteredCellIsToldWithBothTexts) {
    const std::string right = stored(0, Column::QINT);
    change(0, {{Column::QINT, "9.999"}});
    EXPECT_EQ(told_by("result-differs"),
              Told{"L1: Intercepted flow is stored as 9.999 cfs and comes out as " + right + " cfs."});
}

/// Each result cell of the road in turn: one finding, which names the cell.
TEST_F(Results, EveryAlteredCellOfTheRoadIsFoundByName) {
    for (std::size_t index = 0; index < project.inlets.size(); ++index) {
        for (const Column column : engine::all_result_columns()) {
            const std::string before = stored(index, column);
            change(index, {{column, before.empty() ? "0.001" : before + "1"}});
            const auto told = told_by("result-differs");
            ASSERT_EQ(told.size(), 1U) << stored(index, Column::INLET_NUMBER) << engine::column_name(column);
            EXPECT_EQ(told.front().find(stored(index, Column::INLET_NUMBER) + ": " + name_of(column) +
                                        " is stored as "),
                      0U)
                << told.front();
            change(index, {{column, before}});
        }
    }
    EXPECT_EQ(found(), Told{});
}

TEST_F(Results, AnInputThatChangedAfterTheSolveIsFound) {
    change(0, {{Column::INLETLENGTH, "5.001"}});
    EXPECT_FALSE(told_by("result-differs").empty());
    solve(0);
    EXPECT_EQ(told_by("result-differs"), Told{});
}

TEST_F(Results, AnInletWithoutResultsHasNotBeenSolved) {
    for (const Column column : engine::all_result_columns()) {
        change(0, {{column, ""}});
    }
    EXPECT_EQ(told_by("not-solved"), Told{"L1: The inlet has not been solved: no results are stored."});
    EXPECT_EQ(told_by("result-differs"), Told{});
    solve(0);
    EXPECT_EQ(told_by("not-solved"), Told{});
}

TEST_F(Results, AnInletThatSolveRefusesTellsWhy) {
    change(
        0,
        {{Column::RUNOFF_AREA, "0.0000"}, {Column::DISCHARGE1, "0.000"}, {Column::TOTAL_DISCHARGE, "0.000"}});
    EXPECT_EQ(told_by("not-solved"),
              Told{"L1: Solve gives no results for these inputs, those stored belong to others: No results "
                   "computed.  Check your input for discharge."});
}

TEST_F(Results, ABoxOfASolveThatGoesOnIsTold) {
    change(sump, {{Column::GUTWIDTH, "-2.000"}});
    solve(sump);
    EXPECT_EQ(told_by("solve-tells"), Told{"S1: Solve tells: You must enter valid data"});
    EXPECT_EQ(told_by("result-differs"), Told{});
}

TEST_F(Results, MetricResultsOfAnyDecimalsThatTheProgramStoresAreRight) {
    project.units = "METRIC";
    project.inlets.resize(1);
    change(0, {{Column::LONGSLOPE, "0.0300"}, {Column::GUTWIDTH, "0.600"}, {Column::LOCDEPWIDTH, "0.600"}});
    limits.bypass = "1";
    for (const char* format : {"0.000", "0.0000"}) {
        project.inlets[0] = calculation::solve_copy(project.inlets[0], "METRIC", format).inlet;
        EXPECT_EQ(told_by("result-differs"), Told{}) << format;
    }
}

TEST_F(Results, NothingThatIsOpenChanges) {
    engine::open_inlet.load(Column::QINT, "1.000");
    engine::UnitSystem = "METRIC";
    engine::unit_constants.numberFormat = "kept";
    static_cast<void>(judge(project, limits));
    EXPECT_EQ(text(Column::QINT), "1.000");
    EXPECT_EQ(engine::UnitSystem, "METRIC");
    EXPECT_EQ(engine::unit_constants.numberFormat, "kept");
    EXPECT_TRUE(boxes.empty());
}

TEST_F(Results, WhatIsWorseComesFirstThenTheOrderOfTheFile) {
    change(3, {{Column::OFFSET, "-12.000"}});
    change(2, {{Column::QINT, "9.999"}});
    change(1, {{Column::CURB_HEIGHT, "0.1"}});
    change(0, {{Column::OFFSET, "-12.000"}});
    EXPECT_EQ(found(), (Told{"result-differs L3", "balance-open ", "depth-above-curb L2", "offset-side L1",
                             "intercepts-more L3", "offset-side L4"}));
}

TEST_F(Results, EveryRuleHasANameOfItsOwn) {
    std::set<std::string> names;
    for (const auto& rule : all_rules()) {
        EXPECT_TRUE(names.insert(rule.name).second) << rule.name;
        EXPECT_EQ(std::string_view(rule.finds).back(), '.');
    }
    EXPECT_EQ(names.size(), 39U);
}

}  // namespace
}  // namespace gullymark::review
