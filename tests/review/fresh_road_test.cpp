#include "review/fresh_road.h"

#include <algorithm>

#include "review_fixture.h"

namespace gullymark::review {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Order = std::vector<std::size_t>;

struct FreshRoadTest : ReviewTest {
    /// The designer opens these inlets one after the other, goes through their flow fields, solves and saves.
    void work_through(const Order& order) {
        for (const std::size_t index : order) {
            update(index);
        }
    }

    [[nodiscard]] Told obstacles() const {
        Told texts;
        for (const auto& obstacle : make_fresh_road(project).obstacles) {
            texts.push_back(std::to_string(obstacle.index) + ": " + obstacle.text);
        }
        return texts;
    }

    /// Every text of every inlet is as it was said to be.
    void expect_stored(const Project& before, const FreshRoad& road) const {
        for (std::size_t index = 0; index < project.inlets.size(); ++index) {
            for (const Column column : engine::all_columns) {
                EXPECT_EQ(stored(index, column), road.inlet(before, index).text(column))
                    << stored(index, Column::INLET_NUMBER) << ' ' << engine::column_name(column);
            }
        }
    }

    /// The list makes all fresh; without any one of its members it does not.
    void expect_shortest_list() {
        const Project before = project;
        const auto road = make_fresh_road(before);
        work_through(road.to_do);
        expect_stored(before, road);
        EXPECT_THAT(make_fresh_road(project).to_do, IsEmpty());
        for (const std::size_t left_out : road.to_do) {
            project = before;
            Order others = road.to_do;
            std::erase(others, left_out);
            work_through(others);
            const auto again = make_fresh_road(project);
            EXPECT_THAT(again.to_do, testing::Contains(left_out));
        }
        project = before;
    }
};

TEST_F(FreshRoadTest, AProjectThatIsUpToDateAsksForNothing) {
    const auto road = make_fresh_road(project);
    EXPECT_THAT(road.inlets, IsEmpty());
    EXPECT_THAT(road.to_do, IsEmpty());
    EXPECT_THAT(road.obstacles, IsEmpty());
    EXPECT_EQ(&road.inlet(project, 3), &project.inlets[3]);
}

TEST_F(FreshRoadTest, AnEmptyProjectAsksForNothing) {
    project = {};
    EXPECT_THAT(make_fresh_road(project).to_do, IsEmpty());
}

/// A chain of three whose head was altered, solved and saved: only the two below are stale.
TEST_F(FreshRoadTest, AnAlteredHeadGoesDownTheChain) {
    project.inlets.resize(3);
    change(0, {{Column::RUNOFF_AREA, "0.4000"}, {Column::DISCHARGE1, "1.800"}});
    update(0);
    const auto road = make_fresh_road(project);
    EXPECT_THAT(road.to_do, ElementsAre(1, 2));
    ASSERT_TRUE(road.inlets.contains(1));
    const auto& second = road.inlets.at(1);
    EXPECT_TRUE(second.solved);
    EXPECT_EQ(second.record.text(Column::CARRYOVER1), stored(0, Column::QCARRY));
    EXPECT_THAT(second.differing,
                testing::IsSupersetOf({Column::CARRYOVER1, Column::TOTAL_DISCHARGE, Column::OPENSPREAD,
                                       Column::CURBDEPTH, Column::QINT, Column::QCARRY}));
    EXPECT_EQ(road.inlet(project, 2).text(Column::CARRYOVER1), second.record.text(Column::QCARRY));
    expect_shortest_list();
}

TEST_F(FreshRoadTest, AHeadThatWasNotSolvedAfterwardsLeadsTheList) {
    change(0, {{Column::INLETLENGTH, "3.000"}});
    EXPECT_THAT(make_fresh_road(project).to_do, ElementsAre(0, 1, 2, 3, 4, sump));
    expect_shortest_list();
}

/// The water ends where the fresh bypass is the stored one.
TEST_F(FreshRoadTest, TheListEndsWhereNothingChangesAnyMore) {
    change(1, {{Column::INLETLENGTH, "30.000"}, {Column::GRATEPERCLOG, "0"}});
    bring_up_to_date();
    ASSERT_EQ(stored(1, Column::QCARRY), "0.000");
    change(0, {{Column::RUNOFF_AREA, "0.4000"}, {Column::DISCHARGE1, "1.800"}});
    EXPECT_THAT(make_fresh_road(project).to_do, ElementsAre(0, 1));
    expect_shortest_list();
}

TEST_F(FreshRoadTest, ASumpTakesBothItsSides) {
    change(4, {{Column::LONGSLOPE, "0.0500"}});
    change(8, {{Column::LONGSLOPE, "0.0500"}});
    update(4);
    update(8);
    const auto road = make_fresh_road(project);
    EXPECT_THAT(road.to_do, ElementsAre(sump));
    EXPECT_EQ(road.inlet(project, sump).text(Column::CARRYOVER1), stored(4, Column::QCARRY));
    EXPECT_EQ(road.inlet(project, sump).text(Column::CARRYOVER2), stored(8, Column::QCARRY));
    EXPECT_NE(stored(sump, Column::CARRYOVER2), stored(8, Column::QCARRY));
    expect_shortest_list();
}

/// The file has the sump first, and the chain from its end to its head.
TEST_F(FreshRoadTest, AnInletStandsBehindItsPreviousOnesWhateverTheFileHasFirst) {
    std::ranges::reverse(project.inlets);
    change(9, {{Column::INLETLENGTH, "3.000"}});  // L1
    EXPECT_THAT(make_fresh_road(project).to_do, ElementsAre(9, 8, 7, 6, 5, 0));
    expect_shortest_list();
}

TEST_F(FreshRoadTest, ATotalThatIsNotTheSumIsPutRight) {
    change(5, {{Column::TOTAL_DISCHARGE, "2.000"}});
    solve(5);
    const auto road = make_fresh_road(project);
    EXPECT_THAT(road.to_do, ElementsAre(5)) << "those below have the right bypass already";
    EXPECT_EQ(road.inlet(project, 5).text(Column::TOTAL_DISCHARGE), "0.900");
    expect_shortest_list();
}

/// The program leaves the old sum when a previous inlet is emptied, and a carryover too where it was made by hand.
TEST_F(FreshRoadTest, ACarryoverFromNoInletGoes) {
    change(0, {{Column::CARRYOVER1, "0.500"}});
    const auto road = make_fresh_road(project);
    EXPECT_EQ(road.inlet(project, 0).text(Column::CARRYOVER1), "0.0");
    EXPECT_THAT(road.to_do, ElementsAre(0));
    expect_shortest_list();
}

TEST_F(FreshRoadTest, ACarryoverWithOtherDigitsStays) {
    change(1, {{Column::CARRYOVER1, stored(0, Column::QCARRY) + "00"}});
    EXPECT_THAT(make_fresh_road(project).to_do, IsEmpty());
}

TEST_F(FreshRoadTest, EmptyFlowFieldsThatAreNotGoneThroughStayEmpty) {
    change(1, {{Column::OVERLAND_FLOW, ""}, {Column::DISCHARGE2, ""}, {Column::CARRYOVER2, ""}});
    EXPECT_THAT(make_fresh_road(project).to_do, IsEmpty());
    change(0, {{Column::INLETLENGTH, "3.000"}});
    const auto road = make_fresh_road(project);
    EXPECT_EQ(road.inlet(project, 1).text(Column::OVERLAND_FLOW), "0.000");
    EXPECT_EQ(road.inlet(project, 1).text(Column::DISCHARGE2), "0.000");
    EXPECT_EQ(road.inlet(project, 1).text(Column::CARRYOVER2), "0.0");
}

TEST_F(FreshRoadTest, ALoopKeepsItsCarryoversAndTheRestIsDone) {
    change(0, {{Column::PREINLET1, "L3"}});
    change(6, {{Column::INLETLENGTH, "3.000"}});
    EXPECT_THAT(obstacles(), ElementsAre("0: Inlets L1, L2, L3 feed each other in a loop: they keep the "
                                         "carryovers that are stored."));
    const auto road = make_fresh_road(project);
    EXPECT_THAT(road.to_do, ElementsAre(6, 7, 8, sump));
    EXPECT_EQ(road.inlet(project, 0).text(Column::CARRYOVER1), "0.0");
    expect_shortest_list();
}

/// What is stored in a loop is solved all the same, and the inlet below takes what comes out.
TEST_F(FreshRoadTest, AnInletBelowALoopTakesWhatComesOutOfIt) {
    change(0, {{Column::PREINLET1, "L3"}});
    change(2, {{Column::INLETLENGTH, "3.000"}});
    const auto road = make_fresh_road(project);
    EXPECT_THAT(road.to_do, ElementsAre(2, 3, 4, sump));
    EXPECT_EQ(road.inlet(project, 3).text(Column::CARRYOVER1), road.inlet(project, 2).text(Column::QCARRY));
    EXPECT_EQ(road.inlet(project, 0).text(Column::CARRYOVER1), "0.0");
}

TEST_F(FreshRoadTest, AnInletThatFeedsItselfKeepsItsCarryover) {
    change(0, {{Column::PREINLET1, "L1"}});
    EXPECT_THAT(
        obstacles(),
        ElementsAre("0: The inlet is its own previous inlet: it keeps the carryover that is stored."));
    EXPECT_THAT(make_fresh_road(project).to_do, IsEmpty());
}

TEST_F(FreshRoadTest, ALoopThroughASumpIsFoundOnItsRightSide) {
    change(5, {{Column::PREINLET1, "S1"}});
    EXPECT_THAT(obstacles(), ElementsAre("5: Inlets R1, R2, R3, R4, S1 feed each other in a loop: they keep "
                                         "the carryovers that are stored."));
    change(4, {{Column::INLETLENGTH, "3.000"}});
    EXPECT_THAT(make_fresh_road(project).to_do, ElementsAre(4, sump)) << "the other side comes from no loop";
}

TEST_F(FreshRoadTest, APreviousInletThatIsMissingLeavesTheCarryoverAsItIs) {
    change(2, {{Column::PREINLET1, "L9"}});
    EXPECT_THAT(obstacles(),
                ElementsAre("2: Previous inlet is L9, which is not in the project: its carryover "
                            "stays as stored."));
    EXPECT_THAT(make_fresh_road(project).to_do, IsEmpty());
    change(sump, {{Column::PREINLET2, "R9"}});
    EXPECT_THAT(obstacles(),
                testing::Contains("9: Previous inlet of the right side is R9, which is not in the "
                                  "project: its carryover stays as stored."));
}

TEST_F(FreshRoadTest, OfTwoInletsOfOneNumberTheFirstCounts) {
    change(7, {{Column::INLET_NUMBER, "L1"}, {Column::PREINLET1, ""}, {Column::CARRYOVER1, "0.0"}});
    update(7);
    EXPECT_THAT(
        obstacles(),
        testing::Contains("1: Previous inlet is L1, the number of 2 inlets: the first in the file counts."));
    const auto road = make_fresh_road(project);
    EXPECT_EQ(road.inlet(project, 1).text(Column::CARRYOVER1), stored(0, Column::QCARRY));
    EXPECT_THAT(road.to_do, IsEmpty());
}

/// Solve refuses a flow of 0, and what is not solved cannot be saved.
TEST_F(FreshRoadTest, AnInletThatCannotBeSolvedKeepsWhatItStores) {
    change(0, {{Column::RUNOFF_AREA, "0.0000"}, {Column::DISCHARGE1, "0.000"}});
    EXPECT_THAT(obstacles(),
                ElementsAre("0: Solve gives no results, and what is stored cannot be replaced: No results "
                            "computed.  Check your input for discharge."));
    const auto road = make_fresh_road(project);
    EXPECT_THAT(road.to_do, IsEmpty());
    ASSERT_TRUE(road.inlets.contains(0));
    EXPECT_FALSE(road.inlets.at(0).solved);
    EXPECT_THAT(road.inlets.at(0).differing, ElementsAre(Column::TOTAL_DISCHARGE));
    EXPECT_EQ(road.inlet(project, 0).text(Column::QCARRY), stored(0, Column::QCARRY));
}

TEST_F(FreshRoadTest, AMetricInletKeepsTheDecimalsThatItWasStoredWith) {
    project.units = "METRIC";
    for (std::size_t index = 0; index < project.inlets.size(); ++index) {
        auto& inlet = project.inlets[index];
        inlet.load(Column::GRATEPERCLOG, "0");
        update(index);  // with three decimals, as behind a look at the listing
    }
    EXPECT_THAT(make_fresh_road(project).to_do, IsEmpty());
}

TEST_F(FreshRoadTest, AChainOfAnyLengthIsWalked) {
    project.inlets.resize(1);
    change(0, {{Column::INLETLENGTH, "30.000"}, {Column::GRATEPERCLOG, "0"}});
    update(0);
    constexpr int many = 5000;
    for (int i = 1; i < many; ++i) {
        project.inlets.push_back(project.inlets.front());
        change(project.inlets.size() - 1, {{Column::INLET_NUMBER, "L" + std::to_string(i + 1)},
                                           {Column::PREINLET1, "L" + std::to_string(i)}});
    }
    std::ranges::reverse(project.inlets);
    EXPECT_THAT(make_fresh_road(project).to_do, IsEmpty());
    change(many - 1, {{Column::PREINLET1, "L" + std::to_string(many)}});
    EXPECT_EQ(make_fresh_road(project).obstacles.size(), 1U);
}

TEST_F(FreshRoadTest, WhoWatchesEndsIt) {
    int told = 0;
    EXPECT_FALSE(make_fresh_road(project, [&](std::size_t, std::size_t all) {
                     EXPECT_EQ(all, 10U);
                     return ++told < 3;
                 }).has_value());
    EXPECT_EQ(told, 3);
}

TEST_F(FreshRoadTest, WhatIsOpenStaysAsItIs) {
    engine::open_inlet.load(Column::INLET_NUMBER, "open");
    engine::UnitSystem = "METRIC";
    change(0, {{Column::INLETLENGTH, "3.000"}});
    make_fresh_road(project);
    EXPECT_EQ(engine::open_inlet.text(Column::INLET_NUMBER), "open");
    EXPECT_EQ(engine::UnitSystem, "METRIC");
    EXPECT_THAT(boxes, IsEmpty());
}

}  // namespace
}  // namespace gullymark::review
