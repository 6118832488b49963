#include "review/road_plan.h"

#include <cmath>

#include "engine/words.h"
#include "review_fixture.h"

namespace gullymark::review {
namespace {

/// The inlets of the left side stand every 250 ft from 10+00, those of the right side from 30+00 back, the sump at 20+00.
class RoadPlanTest : public ReviewTest {
  protected:
    void SetUp() override {
        ReviewTest::SetUp();
        for (std::size_t i = 0; i < 5; ++i) {
            change(i, {{Column::STATION, "1" + std::to_string(i) + "+00"},
                       {Column::OFFSET, "-12.000"},
                       {Column::OFFSET_LOCATION, "LEFT"}});
        }
        for (std::size_t i = 5; i < 9; ++i) {
            change(i, {{Column::STATION, std::to_string(35 - i) + "+00"}});
        }
        change(sump, {{Column::STATION, "20+00"}});
    }

    [[nodiscard]] RoadPlan plan() const { return plan_road(project, judge(project, limits)); }

    [[nodiscard]] static const PlannedArrow& arrow_to(const RoadPlan& plan, std::size_t index) {
        for (const auto& arrow : plan.arrows) {
            if (arrow.to == index) {
                return arrow;
            }
        }
        throw std::out_of_range("no arrow");
    }
};

TEST_F(RoadPlanTest, PutsInletsAtTheirStationsOnTheirSideOfTheLine) {
    const auto road = plan();
    ASSERT_EQ(road.inlets.size(), 10U);
    EXPECT_EQ(road.inlets[0].at, 1000);
    EXPECT_EQ(road.inlets[0].across, Across::left);
    EXPECT_EQ(road.inlets[5].at, 3000);
    EXPECT_EQ(road.inlets[5].across, Across::right);
    EXPECT_EQ(road.inlets[0].symbol, section::Inlet::curb);
    EXPECT_TRUE(road.inlets[sump].in_sump);
    EXPECT_EQ(road.from, 1000);
    EXPECT_EQ(road.to, 3000);
    ASSERT_EQ(road.lanes.size(), 1U);
    EXPECT_EQ(road.along, (std::vector<std::size_t>{0, 1, 2, 3, 4, 9, 8, 7, 6, 5}));
    for (std::size_t i = 0; i < road.along.size(); ++i) {
        EXPECT_EQ(road.places[road.along[i]], i);
    }
}

TEST_F(RoadPlanTest, TellsOfAnInletThatCannotBeSolvedAnew) {
    change(0, {{Column::DISCHARGE1, "0.000"}});
    const auto fresh = make_fresh_road(project);
    const auto road = plan_road(project, {}, &fresh);
    EXPECT_THAT(road.inlets[0].sentence, testing::HasSubstr("It cannot be solved anew"));
    EXPECT_THAT(road.inlets[1].sentence, testing::Not(testing::HasSubstr("It cannot be solved anew")));
}

TEST_F(RoadPlanTest, TakesTheSideFromItsWordThenFromTheSignOfTheOffset) {
    change(0, {{Column::OFFSET, "12.000"}});
    change(1, {{Column::OFFSET_LOCATION, ""}});
    change(2, {{Column::OFFSET_LOCATION, "left"}, {Column::OFFSET, "3"}});
    change(3, {{Column::OFFSET_LOCATION, ""}, {Column::OFFSET, "0.000"}});
    const auto road = plan();
    EXPECT_EQ(road.inlets[0].across, Across::left);
    EXPECT_EQ(road.inlets[1].across, Across::left);
    EXPECT_EQ(road.inlets[2].across, Across::right) << "the word counts as the form writes it";
    EXPECT_EQ(road.inlets[3].across, Across::on_line);
}

TEST_F(RoadPlanTest, DrawsAnArrowOfBypassToTheInletThatTakesIt) {
    const auto road = plan();
    EXPECT_EQ(road.arrows.size(), 9U);
    const auto& arrow = arrow_to(road, 1);
    EXPECT_EQ(arrow.from, 0U);
    EXPECT_EQ(arrow.flow, Flow::taken);
    EXPECT_EQ(arrow.text, stored(0, Column::QCARRY) + " cfs");
}

TEST_F(RoadPlanTest, MarksWaterThatIsStaleOrLost) {
    change(1, {{Column::CARRYOVER1, "0.700"}});
    change(4, {{Column::PREINLET1, "gone"}});
    change(sump, {{Column::PREINLET2, ""}, {Column::CARRYOVER2, "0.0"}});
    const auto road = plan();
    EXPECT_EQ(arrow_to(road, 1).flow, Flow::stale);
    EXPECT_EQ(arrow_to(road, 1).text, stored(0, Column::QCARRY) + " cfs, stored 0.700 cfs");
    EXPECT_TRUE(road.inlets[1].stale);
    EXPECT_FALSE(road.inlets[2].stale);
    EXPECT_EQ(arrow_to(road, 4).flow, Flow::missing);
    EXPECT_FALSE(arrow_to(road, 4).from);
    EXPECT_TRUE(road.inlets[3].loses_water) << "nobody names it any more";
    EXPECT_TRUE(road.inlets[8].loses_water);
    std::size_t nowhere = 0;
    for (const auto& arrow : road.arrows) {
        nowhere += arrow.flow == Flow::nowhere ? 1 : 0;
        EXPECT_EQ(arrow.flow == Flow::nowhere, !arrow.to);
    }
    EXPECT_EQ(nowhere, 2U);
}

TEST_F(RoadPlanTest, MarksLoopsAndWhatIsCountedTwice) {
    change(0, {{Column::PREINLET1, "L2"}});
    change(7, {{Column::PREINLET1, "R1"}});
    const auto road = plan();
    EXPECT_EQ(arrow_to(road, 0).flow, Flow::loop);
    EXPECT_EQ(arrow_to(road, 1).flow, Flow::loop);
    EXPECT_NE(arrow_to(road, 2).flow, Flow::loop);
    EXPECT_EQ(arrow_to(road, 6).flow, Flow::twice);
}

TEST_F(RoadPlanTest, TellsAnInletThatWouldBeAnotherAsStale) {
    change(
        0,
        {{Column::RUNOFF_AREA, "0.3000"}, {Column::DISCHARGE1, "1.350"}, {Column::TOTAL_DISCHARGE, "1.350"}});
    solve(0);
    const auto fresh = make_fresh_road(project);
    const auto road = plan_road(project, judge(project, limits), &fresh);
    EXPECT_FALSE(road.inlets[0].stale);
    EXPECT_TRUE(road.inlets[2].stale) << "two inlets further down";
    EXPECT_THAT(road.inlets[2].sentence, testing::HasSubstr("Brought up to date: "));
}

TEST_F(RoadPlanTest, TellsSpreadsAgainstTheAllowableOne) {
    change(0, {{Column::OPENSPREAD, "12.000"}});
    const auto road = plan();
    ASSERT_EQ(road.inlets[0].spreads.size(), 1U);
    EXPECT_EQ(road.inlets[0].spreads[0].text, "12.000 ft");
    EXPECT_EQ(road.inlets[0].spreads[0].allowable, "8.0 ft");
    EXPECT_DOUBLE_EQ(road.inlets[0].spreads[0].share, 1.5);
    EXPECT_TRUE(road.inlets[0].spreads[0].beyond);
    EXPECT_FALSE(road.inlets[1].spreads[0].beyond);
    ASSERT_EQ(road.inlets[sump].spreads.size(), 2U) << "both approaches of a sump";
    EXPECT_NE(road.inlets[sump].spreads[0].text, "");
    EXPECT_NE(road.inlets[sump].spreads[1].text, "");
    change(0, {{Column::OPENSPREAD, "900.000"}});
    EXPECT_EQ(plan().inlets[0].spreads[0].share, 6);
}

TEST_F(RoadPlanTest, TurnsSpreadsToWhereTheWaterComesFrom) {
    const auto road = plan();
    EXPECT_EQ(road.inlets[1].spreads[0].toward, -1) << "its previous inlet stands lower";
    EXPECT_EQ(road.inlets[0].spreads[0].toward, -1) << "away from the inlet that takes its bypass";
    EXPECT_EQ(road.inlets[5].spreads[0].toward, 1);
    EXPECT_EQ(road.inlets[8].spreads[0].toward, 1);
    EXPECT_EQ(road.inlets[sump].spreads[0].toward, -1);
    EXPECT_EQ(road.inlets[sump].spreads[1].toward, 1);
    change(sump, {{Column::PREINLET1, "R4"}, {Column::PREINLET2, "L5"}});
    EXPECT_EQ(plan().inlets[sump].spreads[0].toward, 1) << "the left side comes from higher stations";
    EXPECT_EQ(plan().inlets[sump].spreads[1].toward, -1);
}

TEST_F(RoadPlanTest, RanksInletsOnOneSpot) {
    for (std::size_t i = 0; i < 4; ++i) {
        change(i, {{Column::STATION, "STA 10+00.00"}});
    }
    change(3, {{Column::OFFSET_LOCATION, "RIGHT"}});
    const auto road = plan();
    EXPECT_EQ(road.inlets[0].rank, 0U);
    EXPECT_EQ(road.inlets[1].rank, 1U);
    EXPECT_EQ(road.inlets[2].rank, 2U);
    EXPECT_EQ(road.inlets[3].rank, 0U) << "on the other side of the line";
}

TEST_F(RoadPlanTest, GivesEachRoadwayALaneAndTheUnreadableStationsTheLast) {
    for (std::size_t i = 5; i < 9; ++i) {
        change(i, {{Column::ROADWAY, "Mill Road"}});
    }
    change(2, {{Column::STATION, "at the church"}});
    change(3, {{Column::STATION, ""}});
    const auto road = plan();
    ASSERT_EQ(road.lanes.size(), 3U);
    EXPECT_EQ(road.lanes[0].name, "");
    EXPECT_EQ(road.lanes[1].name, "Mill Road");
    EXPECT_EQ(road.lanes[2].name, "No station that can be read");
    EXPECT_FALSE(road.lanes[2].has_stations);
    EXPECT_EQ(road.inlets[2].lane, 2U);
    EXPECT_LT(road.inlets[2].at, road.inlets[3].at);
    EXPECT_GE(road.inlets[2].at, road.from);
    EXPECT_LE(road.inlets[3].at, road.to);
}

TEST_F(RoadPlanTest, IsFiniteAndSensibleForAnyProject) {
    const auto expect_sensible = [this] {
        const auto road = plan();
        EXPECT_TRUE(std::isfinite(road.from) && std::isfinite(road.to));
        EXPECT_GT(road.to, road.from);
        EXPECT_LE(road.lanes.size(), most_lanes + 2);
        for (const auto& inlet : road.inlets) {
            EXPECT_TRUE(std::isfinite(inlet.at));
            EXPECT_TRUE(inlet.at >= road.from && inlet.at <= road.to);
            EXPECT_LT(inlet.lane, road.lanes.size());
            for (const auto& spread : inlet.spreads) {
                EXPECT_TRUE(spread.share >= 0 && spread.share <= 6);
                EXPECT_EQ(std::abs(spread.toward), 1);
            }
        }
        EXPECT_LE(station_ticks(road, road.from, road.to, 10).size(), 10U);
    };
    for (const char* absurd :
         {"1e300", "-1e300", "1e7", "-9999999+99", "nan", "+", "9+99999999999999999999"}) {
        for (const Column column : {Column::STATION, Column::OFFSET, Column::OPENSPREAD,
                                    Column::ALLOWABLE_SPREAD, Column::QCARRY, Column::CARRYOVER1}) {
            change(3, {{column, absurd}});
        }
        expect_sensible();
    }
    project.inlets.resize(1);
    expect_sensible();
    project.inlets.clear();
    expect_sensible();
    const engine::InletRecord blank;
    project.inlets.assign(1000, blank);
    expect_sensible();
    for (std::size_t i = 0; i < 1000; ++i) {
        project.inlets[i].load(Column::ROADWAY, std::to_string(i));
        project.inlets[i].load(Column::STATION, std::to_string(i) + "+00");
    }
    expect_sensible();
}

TEST_F(RoadPlanTest, HasRoundStationsForTicks) {
    const auto road = plan();
    std::string texts;
    for (const auto& tick : station_ticks(road, 1000, 3000, 6)) {
        texts += tick.text + ' ';
    }
    EXPECT_EQ(texts, "10+00 15+00 20+00 25+00 30+00 ");
    EXPECT_EQ(station_ticks(road, 1200.5, 1200.9, 3).front().text, "12+00.6");
    EXPECT_EQ(station_ticks(road, -60, -40, 2).front().text, "-0+60");
    auto metric = road;
    metric.station_length = 1000;
    EXPECT_EQ(station_ticks(metric, 1049, 1060, 3).front().text, "1+050");
    metric.station_length = 0;
    EXPECT_EQ(station_ticks(metric, 1049, 1060, 3).front().text, "1050");
    EXPECT_TRUE(station_ticks(road, 5, 5, 10).empty());
    EXPECT_LE(station_ticks(road, 0, 1e7, 8).size(), 8U);
}

TEST_F(RoadPlanTest, IsCutIntoStretchesThatHoldSoManyInletsOfASide) {
    const auto road = plan();
    EXPECT_EQ(road_stretches(road, 100).size(), 1U);
    const auto stretches = road_stretches(road, 2);
    ASSERT_EQ(stretches.size(), 5U) << "five on the left up to 14+00, then the sump and four on the right";
    EXPECT_EQ(stretches.front().from, road.from);
    EXPECT_EQ(stretches.front().to, 1150) << "between the second and the third inlet";
    EXPECT_EQ(stretches.back().to, road.to);
    for (std::size_t i = 1; i < stretches.size(); ++i) {
        EXPECT_EQ(stretches[i].from, stretches[i - 1].to);
        EXPECT_LT(stretches[i].from, stretches[i].to);
    }
    for (std::size_t i = 0; i < 10; ++i) {
        change(i, {{Column::STATION, "10+00"}});
    }
    EXPECT_EQ(road_stretches(plan(), 2).size(), 1U) << "all on one station";
    project.inlets.clear();
    EXPECT_EQ(road_stretches(plan(), 2).size(), 1U);
}

TEST_F(RoadPlanTest, ReadsTheLengthOfAStationFromTheStations) {
    EXPECT_EQ(plan().station_length, 100);
    change(0, {{Column::STATION, "1+250.5"}});
    EXPECT_EQ(plan().station_length, 1000);
    for (std::size_t i = 0; i < 10; ++i) {
        change(i, {{Column::STATION, std::to_string(100 * i)}});
    }
    EXPECT_EQ(plan().station_length, 0);
}

}  // namespace
}  // namespace gullymark::review
