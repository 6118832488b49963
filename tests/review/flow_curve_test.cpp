#include "review/flow_curve.h"

#include <cmath>

#include "catalogue/standards.h"
#include "engine/words.h"
#include "review_fixture.h"
#include "tools/case_table.h"

namespace gullymark::review {
namespace {

using FlowCurveTest = ReviewTest;

TEST_F(FlowCurveTest, HasThePointOfTheInletWithItsResults) {
    const auto curve = flow_curve(project.inlets.front(), project.units, nullptr);
    ASSERT_TRUE(curve.inlet);
    EXPECT_DOUBLE_EQ(curve.inlet->flow, 0.9);
    EXPECT_EQ(platform::format_number(curve.inlet->spread.value(), "0.000"), stored(0, Column::OPENSPREAD));
    EXPECT_NEAR(curve.inlet->share.value(), platform::read_number(stored(0, Column::EFFICIENCY)).number,
                0.001);
    EXPECT_EQ(curve.allowable, 8.0);
}

TEST_F(FlowCurveTest, GoesOnUntilTheAllowableSpreadIsReached) {
    const auto curve = flow_curve(project.inlets.front(), project.units, nullptr, 40);
    ASSERT_EQ(curve.points.size(), 40U);
    EXPECT_DOUBLE_EQ(curve.points.back().flow, 3.6) << "1.8 cfs are within the allowable spread";
    EXPECT_GT(curve.points.back().spread, 8.0);
    for (std::size_t i = 1; i < curve.points.size(); ++i) {
        EXPECT_GT(curve.points[i].flow, curve.points[i - 1].flow);
        EXPECT_GE(curve.points[i].spread, curve.points[i - 1].spread);
        EXPECT_LE(curve.points[i].share, curve.points[i - 1].share);
    }
}

TEST_F(FlowCurveTest, GrowsAllSharesOfASumpInProportion) {
    const auto curve = flow_curve(project.inlets.at(sump), project.units, nullptr, 2);
    ASSERT_TRUE(curve.inlet);
    EXPECT_EQ(platform::format_number(curve.inlet->spread.value(), "0.000"),
              std::max(stored(sump, Column::GUTTERSPREAD), stored(sump, Column::OPENSPREAD)));
    for (const auto& point : curve.points) {
        EXPECT_EQ(point.share, 1.0);
    }
}

TEST_F(FlowCurveTest, IsThatOfAStandardWhereOneIsPicked) {
    const auto* const table = catalogue::table_for("CONTINUOUS GRADE", "Curb Inlet");
    const auto own = flow_curve(project.inlets.front(), project.units, nullptr, 5);
    const auto standard = flow_curve(project.inlets.front(), project.units, table->rows.data(), 5);
    EXPECT_GT(standard.points.back().share, own.points.back().share) << "10.25 ft open instead of 2.5";
}

TEST_F(FlowCurveTest, HasNoSpreadInADitch) {
    change(0, {{Column::INLET_TYPE, engine::words::ditch_inlet}});
    EXPECT_FALSE(flow_curve(project.inlets.front(), project.units, nullptr).has_spread);
}

TEST_F(FlowCurveTest, IsFiniteWhateverTheTextsAre) {
    for (const char* name : {"solves_unreadable.tsv", "solves_boundary.tsv"}) {
        const auto table = cases::read_table(std::string(GULLYMARK_TEST_DIR) + "/cases/" + name);
        for (const auto& row : table.rows) {
            cases::solve_row(table, row);
            const engine::InletRecord inlet = engine::open_inlet;
            for (const auto& point : flow_curve(inlet, engine::UnitSystem, nullptr, 3).points) {
                EXPECT_TRUE(std::isfinite(point.flow) && std::isfinite(point.spread.value_or(0)) &&
                            std::isfinite(point.depth.value_or(0)) && std::isfinite(point.share.value_or(0)));
            }
        }
    }
}

}  // namespace
}  // namespace gullymark::review
