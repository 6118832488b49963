#include "review_fixture.h"

namespace gullymark::review {
namespace {

/// The left side of the road stands at 10+00 to 14+00, the right one at 20+00 down to 17+00, the sump at 15+00.
struct Stations : ReviewTest {
    void SetUp() override {
        ReviewTest::SetUp();
        for (std::size_t i = 0; i < project.inlets.size(); ++i) {
            const std::size_t station = i < 5 ? 10 + i : i < sump ? 25 - i : 15;
            change(i, {{Column::STATION, std::to_string(station) + "+00"}, {Column::ROADWAY, "Mill Road"}});
        }
    }
};

TEST_F(Stations, ARoadThatRunsToItsSumpFromBothSidesIsSound) {
    EXPECT_EQ(found(), Told{});
}

TEST_F(Stations, APreviousInletAgainstTheFlowDirectionIsTold) {
    change(1, {{Column::FLOW_DIRECTION, "High Station"}});
    EXPECT_EQ(
        told_by("direction-against-stations"),
        Told{"L2: Flow comes from High Station to station 11+00, but the previous inlet is L1 at 10+00."});
    change(1, {{Column::FLOW_DIRECTION, "Low Station"}});
    EXPECT_EQ(told_by("direction-against-stations"), Told{});
}

TEST_F(Stations, APreviousInletOnAHighStationIsToldOfAFlowFromALowOne) {
    change(6, {{Column::FLOW_DIRECTION, "Low Station"}});
    EXPECT_EQ(
        told_by("direction-against-stations"),
        Told{"R2: Flow comes from Low Station to station 19+00, but the previous inlet is R1 at 20+00."});
    change(6, {{Column::FLOW_DIRECTION, "High Station"}});
    EXPECT_EQ(told_by("direction-against-stations"), Told{});
}

TEST_F(Stations, ADirectionThatNamesNoSideIsNotJudged) {
    for (const char* direction : {"", "High/Low Station", "Overland", "North"}) {
        change(1, {{Column::FLOW_DIRECTION, direction}});
        EXPECT_EQ(told_by("direction-against-stations"), Told{}) << direction;
    }
}

TEST_F(Stations, InletsAcrossTheRoadStandAtOneStation) {
    change(1, {{Column::FLOW_DIRECTION, "High Station"}, {Column::STATION, "10+00.00"}});
    EXPECT_EQ(told_by("direction-against-stations"), Told{});
}

TEST_F(Stations, StationsOfTwoRoadwaysOrUnreadableOnesAreNotCompared) {
    change(1, {{Column::FLOW_DIRECTION, "High Station"}, {Column::ROADWAY, "Side Road"}});
    EXPECT_EQ(told_by("direction-against-stations"), Told{});
    change(1, {{Column::ROADWAY, " Mill Road"}});
    EXPECT_EQ(told_by("direction-against-stations").size(), 1U);
    change(1, {{Column::STATION, "at the church"}});
    EXPECT_EQ(told_by("direction-against-stations"), Told{});
}

TEST_F(Stations, ABypassThatTurnsBackOnAGradeIsTold) {
    change(2, {{Column::STATION, "10+50"}});
    EXPECT_EQ(told_by("bypass-turns-back"),
              (Told{"L3: Bypass goes from inlet L1 at 10+00 to inlet L2 at 11+00 and turns back to station "
                    "10+50.",
                    "L4: Bypass goes from inlet L2 at 11+00 to inlet L3 at 10+50 and turns back to station "
                    "13+00."}));
    change(2, {{Column::STATION, "11+00"}});
    EXPECT_EQ(told_by("bypass-turns-back"), Told{});
}

TEST_F(Stations, TwoPreviousInletsOnOneSideOfASumpAreTold) {
    change(sump, {{Column::STATION, "21+00"}});
    EXPECT_EQ(told_by("sump-fed-from-one-side"),
              Told{"S1: Both previous inlets, L5 at 14+00 and R4 at 17+00, stand on one side of the sump at "
                   "21+00."});
    change(sump, {{Column::STATION, "16+99"}});
    EXPECT_EQ(told_by("sump-fed-from-one-side"), Told{});
    change(sump, {{Column::STATION, "21+00"}, {Column::PREINLET2, ""}});
    EXPECT_EQ(told_by("sump-fed-from-one-side"), Told{}) << "there is one previous inlet";
}

}  // namespace
}  // namespace gullymark::review
