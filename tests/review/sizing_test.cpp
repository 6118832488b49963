#include "review/sizing.h"

#include <cmath>

#include "catalogue/standards.h"
#include "engine/words.h"
#include "review/station.h"
#include "review_fixture.h"
#include "tools/case_table.h"

namespace gullymark::review {
namespace {

/// The first inlet is the curb opening of these calculations by hand, in ft and cfs: S 0.03, n 0.016, W 2, Sx 0.0208,
/// Sw 0.0833, S'w 0.3333, allowable spread 8, runoff 6 in/hr x 0.75 x 0.6000 Ac = 2.700 cfs, nothing carried over.
class SizingTest : public ReviewTest {
  protected:
    void SetUp() override {
        ReviewTest::SetUp();
        change(0, {{Column::RUNOFF_AREA, "0.6000"},
                   {Column::DISCHARGE1, "2.700"},
                   {Column::TOTAL_DISCHARGE, "2.700"},
                   {Column::INLET_SUBTYPE, "S1 ONE WING"},
                   {Column::INLETLENGTH, "10.25"}});
    }

    [[nodiscard]] Sizing size(std::size_t index, std::optional<double> area_for_length = {}) const {
        return size_inlet(project.inlets.at(index), project.units, area_for_length);
    }

    static const SizedRow& row_of(const Sizing& sizing, std::string_view standard, std::string_view clogged,
                                  std::size_t clogged_column = 1) {
        for (const auto& row : sizing.rows) {
            if (row.standard != nullptr && platform::trim_blanks(row.fields.at(0)) == standard &&
                row.fields.at(clogged_column) == clogged) {
                return row;
            }
        }
        throw std::out_of_range(std::string(standard));
    }
};

TEST_F(SizingTest, SolvesEachRowOfTheTableAsAPickWouldWriteIt) {
    const auto sizing = size(0);
    ASSERT_EQ(sizing.rows.size(), 1U + 16U);
    EXPECT_EQ(sizing.rows.front().standard, nullptr);
    EXPECT_EQ(sizing.rows.front().fields, (std::vector<std::string>{"S1 ONE WING", "50", "10.25", ""}));
    // By hand: T = 6.947; Eo = 0.7510, S'd = (0.5 + 0.125) / 2, Se = 0.0208 + 0.3125 x 0.7510 = 0.2555;
    // LT = 0.6 x 2.7^0.42 x 0.03^0.3 x (1 / (0.016 x 0.2555))^0.6 = 8.621; half of 12.75 is 6.375;
    // E = 1 - (1 - 6.375 / 8.621)^1.8 = 0.9112; 0.9112 x 2.7 = 2.460 and 2.7 - 2.460 = 0.240.
    const auto& row = row_of(sizing, "S4 ONE WING", "50");
    EXPECT_EQ(row.spread, "6.947");
    EXPECT_EQ(row.intercepted, "2.460");
    EXPECT_EQ(row.bypass, "0.240");
    EXPECT_NEAR(row.share.value(), 0.9112, 0.0001);
    EXPECT_EQ(row.verdict, Verdict::within);
    EXPECT_EQ(row_of(sizing, "S4 ONE WING", "25").bypass, "0.000") << "9.5625 ft are more than LT";
}

TEST_F(SizingTest, FindsTheLargestAreaThatIsStillAllowed) {
    // By hand: with T = 8 the flow formula gives 3.5497 cfs and with T = 8.0005 3.5501, so that 3.550 is the last flow
    // with a spread of 8.000. 6 x 0.75 x 0.7889 = 3.55005, which is 3.550; 0.7890 gives 3.5505, which is 3.551.
    for (const auto& row : size(0).rows) {
        EXPECT_EQ(row.area.kind, LargestArea::Kind::found);
        EXPECT_EQ(row.area.left, "0.7889");
        EXPECT_EQ(row.area.right, "");
    }
}

TEST_F(SizingTest, VerifiesTheAreaByASolveOfTheInletWithItAndWithOneStepMore) {
    const std::string area = size(0).rows.front().area.left;
    const auto spread_with = [this](double tried) {
        auto inlet = project.inlets.front();
        inlet.load(Column::TOTAL_DISCHARGE, platform::format_number(6.0 * 0.75 * tried, "0.000"));
        return platform::read_number(
                   calculation::solve_copy(inlet, project.units, "0.000").inlet.text(Column::OPENSPREAD))
            .number;
    };
    const double found = platform::read_number(area).number;
    EXPECT_LE(spread_with(found), 8.0);
    EXPECT_GT(spread_with(found + 0.0001), 8.0);
}

TEST_F(SizingTest, CountsWhatIsCarriedOverAgainstTheArea) {
    change(0, {{Column::CARRYOVER1, "1.000"}, {Column::OVERLAND_FLOW, "0.500"}});
    // 3.550 - 1.5 = 2.050; 4.5 x 0.4556 = 2.0502 and 4.5 x 0.4557 = 2.05065.
    EXPECT_EQ(size(0).rows.front().area.left, "0.4556");
    change(0, {{Column::CARRYOVER1, "3.600"}, {Column::OVERLAND_FLOW, "0.000"}});
    EXPECT_EQ(size(0).rows.front().area.kind, LargestArea::Kind::none) << "too much without any runoff";
}

TEST_F(SizingTest, FindsHowFarApartTheInletsOfARowMayStand) {
    // q = 6 x 0.75 x 0.0008 Ac/ft = 0.0036 cfs/ft. The first inlet: 0.7889 / 0.0008 = 986.1 ft.
    // The next ones by hand, with 5.125 ft open: at 3.550 cfs T = 8.000, Eo = 0.6828, Se = 0.0208 + 0.3125 x 0.6828 = 0.2342,
    // LT = 0.6 x 3.55^0.42 x 0.03^0.3 x (1 / (0.016 x 0.2342))^0.6 = 10.190, E = 1 - (1 - 5.125 / 10.190)^1.8 = 0.7159;
    // 0.7159 x 3.550 = 2.541 are intercepted and 1.009 go on, so 2.541 may come in between: 2.541 / 0.0036 = 705.8 ft.
    const auto sizing = size(0, 0.0008);
    const auto& row = row_of(sizing, "S1 ONE WING", "50");
    EXPECT_EQ(row.first_distance, "986.1");
    EXPECT_EQ(row.next_distance, "705.8");
    // What takes all of the flow leaves the next inlet as free as the first one.
    EXPECT_EQ(row_of(sizing, "S4 ONE WING", "0").next_distance, "986.1");
}

TEST_F(SizingTest, ARowOfInletsAtThatDistanceStaysWithinWhatIsAllowedAndOneStepMoreDoesNot) {
    const auto row = row_of(size(0, 0.0008), "S1 ONE WING", "50");
    const double area = platform::read_number(row.next_distance).number * 0.0008;
    const auto worst = [this](double each) {
        auto inlet = project.inlets.front();
        double bypass = 0;
        double most = 0;
        for (int i = 0; i < 100; ++i) {
            inlet.load(Column::TOTAL_DISCHARGE, platform::format_number(4.5 * each + bypass, "0.000"));
            const auto solved = calculation::solve_copy(inlet, project.units, "0.000").inlet;
            bypass = platform::read_number(solved.text(Column::QCARRY)).number;
            most = std::max(most, platform::read_number(solved.text(Column::OPENSPREAD)).number);
        }
        return most;
    };
    EXPECT_LE(worst(area), 8.0);
    EXPECT_GT(worst(area + 0.0004), 8.0);
}

TEST_F(SizingTest, GrowsBothSidesOfASumpTogether) {
    const auto inlet = size(sump).rows.front();
    EXPECT_EQ(inlet.area.kind, LargestArea::Kind::found);
    const double left = platform::read_number(inlet.area.left).number;
    const double right = platform::read_number(inlet.area.right).number;
    EXPECT_NEAR(right, left / 2, 0.00006) << "0.2000 and 0.1000 are stored";
    EXPECT_EQ(inlet.first_distance, "");
    EXPECT_EQ(inlet.bypass, "");
}

TEST_F(SizingTest, LeavesASideOfASumpWhoseDischargeIsTypedAsItIs) {
    change(sump, {{Column::LDISCHARGE_OVERRIDE, "YES"}});
    const auto inlet = size(sump).rows.front();
    EXPECT_EQ(inlet.area.left, "");
    EXPECT_GT(platform::read_number(inlet.area.right).number, 0.1);
    EXPECT_TRUE(size(sump).has_area);
    change(sump, {{Column::RDISCHARGE_OVERRIDE, "YES"}});
    EXPECT_FALSE(size(sump).has_area);
    EXPECT_EQ(size(sump).rows.front().area.kind, LargestArea::Kind::none);
}

TEST_F(SizingTest, TellsThatASlottedInletHasNoTable) {
    change(0, {{Column::INLET_TYPE, engine::words::slotted_inlet}});
    const auto sizing = size(0);
    EXPECT_EQ(sizing.table, nullptr);
    ASSERT_EQ(sizing.rows.size(), 1U);
    EXPECT_EQ(sizing.rows.front().area.left, "0.7889");
}

TEST_F(SizingTest, HasNoSpreadAndNoAreaInADitch) {
    change(0, {{Column::INLET_TYPE, engine::words::ditch_inlet}, {Column::INLET_LOCATION, "SUMP"}});
    const auto sizing = size(0, 0.0008);
    EXPECT_FALSE(sizing.has_spread);
    ASSERT_EQ(sizing.rows.size(), 1U + 40U);
    for (const auto& row : sizing.rows) {
        EXPECT_EQ(row.verdict, Verdict::unknown);
        EXPECT_EQ(row.area.kind, LargestArea::Kind::none);
        EXPECT_EQ(row.first_distance, "");
    }
    EXPECT_NE(row_of(sizing, "C", "0", 3).depth, "");
}

TEST_F(SizingTest, TakesTheNumbersOfTheTableAsMetersInAMetricProject) {
    project.units = "METRIC";
    const auto sizing = size(0);
    EXPECT_EQ(row_of(sizing, "S4 ONE WING", "50").fields.at(2), "12.75");
    auto picked = project.inlets.front();
    picked.load(Column::INLETLENGTH, "12.75");
    EXPECT_EQ(row_of(sizing, "S4 ONE WING", "50").intercepted,
              calculation::solve_copy(picked, "METRIC", "#0.0000").inlet.text(Column::QINT));
}

TEST_F(SizingTest, LeavesTheEngineAsItWas) {
    engine::open_inlet.load(Column::INLET_NUMBER, "open");
    engine::UnitSystem = "METRIC";
    engine::set_unit_defaults();
    engine::DataSolved = true;
    const auto constants = engine::unit_constants;
    EXPECT_FALSE(size(0, 0.001).rows.empty());
    EXPECT_EQ(engine::open_inlet.text(Column::INLET_NUMBER), "open");
    EXPECT_EQ(engine::UnitSystem, "METRIC");
    EXPECT_EQ(engine::unit_constants.gutterFlowConstant, constants.gutterFlowConstant);
    EXPECT_EQ(engine::unit_constants.numberFormat, constants.numberFormat);
    EXPECT_TRUE(engine::DataSolved);
    EXPECT_TRUE(boxes.empty());
}

TEST_F(SizingTest, EndsWithAnAnswerForEveryKindOfText) {
    const auto table = cases::read_table(std::string(GULLYMARK_TEST_DIR) + "/cases/solves_unreadable.tsv");
    for (const auto& row : table.rows) {
        cases::solve_row(table, row);
        const engine::InletRecord inlet = engine::open_inlet;
        for (const auto& sized : size_inlet(inlet, engine::UnitSystem, 1e-300).rows) {
            EXPECT_TRUE(!sized.share || std::isfinite(*sized.share));
        }
    }
}

TEST_F(SizingTest, TakesTheRunoffForALengthFromTheDistanceToThePreviousInlet) {
    change(0, {{Column::STATION, "10+00.00"}});
    change(1, {{Column::STATION, "12+50.00"}});
    const auto runoff = runoff_for_length(project, 1);
    ASSERT_TRUE(runoff);
    EXPECT_DOUBLE_EQ(runoff->area, 0.2 / 250);
    EXPECT_EQ(runoff->sentence, "0.2000 Ac over 250.00 ft from inlet L1");
    EXPECT_FALSE(runoff_for_length(project, 0)) << "no previous inlet";
    change(1, {{Column::STATION, "10+00"}});
    EXPECT_FALSE(runoff_for_length(project, 1)) << "both on one station";
    change(1, {{Column::STATION, "at the church"}});
    EXPECT_FALSE(runoff_for_length(project, 1));
}

}  // namespace
}  // namespace gullymark::review
