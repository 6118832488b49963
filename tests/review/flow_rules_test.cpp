#include "review_fixture.h"

namespace gullymark::review {
namespace {

struct Flows : ReviewTest {};

TEST_F(Flows, ADischargeThatIsNotTheProductIsTold) {
    change(0, {{Column::DISCHARGE1, "0.901"}});
    EXPECT_EQ(
        told_by("discharge-differs"),
        Told{"L1: Discharge is stored as 0.901 cfs and is not typed, but 6.00 in/hr x 0.2000 Ac x 0.7500 "
             "gives 0.900 cfs."});
    change(0, {{Column::LDISCHARGE_OVERRIDE, "YES"}});
    EXPECT_EQ(told_by("discharge-differs"), Told{});
}

TEST_F(Flows, TheProductIsRoundedAsTheFormRoundsIt) {
    change(0, {{Column::RUNOFF_AREA, "0.2001"}});  // 0.90045
    EXPECT_EQ(told_by("discharge-differs"), Told{});
    change(0, {{Column::RUNOFF_AREA, "0.2002"}});  // 0.9009
    EXPECT_EQ(told_by("discharge-differs").size(), 1U);
}

TEST_F(Flows, ADischargeWithoutItsRunoffIsTold) {
    change(0, {{Column::RUNOFF_AREA, ""}});
    EXPECT_EQ(
        told_by("discharge-differs"),
        Told{"L1: Discharge is stored as 0.900 cfs and is not typed, but 6.00 in/hr x blank x 0.7500 gives "
             "nothing."});
    change(0, {{Column::DISCHARGE1, "0.000"}});
    EXPECT_EQ(told_by("discharge-differs"), Told{});
}

TEST_F(Flows, TheRightSideCountsInASumpAlone) {
    change(sump, {{Column::DISCHARGE2, "0.451"}});
    EXPECT_EQ(
        told_by("discharge-differs"),
        Told{"S1: Discharge of the right side is stored as 0.451 cfs and is not typed, but 6.00 in/hr x "
             "0.1000 Ac x 0.7500 gives 0.450 cfs."});
    change(sump, {{Column::DISCHARGE2, "0.450"}});
    change(0, {{Column::DISCHARGE2, "0.451"}});
    EXPECT_EQ(found(), Told{"flow-without-effect L1"});
}

TEST_F(Flows, ATotalThatIsNotTheSumIsTold) {
    change(0, {{Column::OVERLAND_FLOW, "0.001"}});
    EXPECT_EQ(
        told_by("total-differs"),
        Told{"L1: Total discharge is stored as 0.900 cfs, but discharge, carryover and overland flow add up "
             "to 0.901 cfs."});
    change(0, {{Column::OVERLAND_FLOW, ""}});
    EXPECT_EQ(told_by("total-differs"), Told{});
}

TEST_F(Flows, SharesTooGreatToAddUpAreTold) {
    change(0, {{Column::OVERLAND_FLOW, "1e308"}, {Column::CARRYOVER1, "1e308"}});
    EXPECT_EQ(told_by("total-differs").size(), 1U);
}

TEST_F(Flows, AFlowThatLeavesNoTraceIsTold) {
    change(sump, {{Column::QINT, ""}});
    EXPECT_EQ(told_by("flow-vanishes"),
              Told{"S1: " + stored(sump, Column::TOTAL_DISCHARGE) +
                   " cfs come to the inlet, but it stores no intercepted flow and no "
                   "bypass."});
    change(sump, {{Column::QCARRY, "0.000"}});
    EXPECT_EQ(told_by("flow-vanishes"), Told{});
}

TEST_F(Flows, WhatIsLostOnTheWayOpensTheBalance) {
    const double more = platform::read_number(stored(4, Column::QINT)).number - 0.1;
    change(4, {{Column::QINT, platform::format_number(more, "0.000")}});
    const auto told = told_by("balance-open");
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(
        told.front().find("Runoff in is 9.450 cfs, intercepted are 9.350 cfs, bypass out is 0.000 cfs: 0.1"),
        0U)
        << told.front();
}

TEST_F(Flows, WhatRoundingExplainsIsNotTold) {
    const double more = platform::read_number(stored(4, Column::QINT)).number - 0.005;
    change(4, {{Column::QINT, platform::format_number(more, "0.000")}});
    EXPECT_EQ(told_by("balance-open"), Told{});
}

TEST_F(Flows, ABypassThatLeavesTheRoadIsInTheBalance) {
    project.inlets.resize(5);
    EXPECT_EQ(told_by("balance-open"), Told{});
    EXPECT_EQ(told_by("bypass-untaken").size(), 1U);
}

/// The sum of such flows is no number.
TEST_F(Flows, ABalanceOfTheGreatestNumbersIsTold) {
    for (auto& inlet : project.inlets) {
        inlet.load(Column::DISCHARGE1, "1.7e308");
        inlet.load(Column::QINT, "-1");
    }
    EXPECT_EQ(
        told_by("balance-open"),
        Told{"Runoff in is more than can be told, intercepted are -10.000 cfs, bypass out is 0.000 cfs: more "
             "than can be told are unexplained."});
}

}  // namespace
}  // namespace gullymark::review
