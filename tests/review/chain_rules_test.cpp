#include "review_fixture.h"

namespace gullymark::review {
namespace {

struct Chain : ReviewTest {};

TEST_F(Chain, ACarryoverThatIsNotTheBypassIsTold) {
    const std::string bypass = stored(0, Column::QCARRY);
    change(1, {{Column::CARRYOVER1, "0.111"}});
    EXPECT_EQ(
        told_by("carryover-differs"),
        Told{"L2: Carryover is stored as 0.111 cfs, but the bypass of inlet L1 is " + bypass + " cfs."});
}

TEST_F(Chain, TheSameNumberWithOtherDigitsIsTheBypass) {
    change(1, {{Column::CARRYOVER1, stored(0, Column::QCARRY) + "00"}});
    EXPECT_EQ(told_by("carryover-differs"), Told{});
}

TEST_F(Chain, BothSidesOfASumpAreLookedAt) {
    change(sump, {{Column::CARRYOVER2, "0.111"}});
    EXPECT_EQ(told_by("carryover-differs"),
              Told{"S1: Carryover of the right side is stored as 0.111 cfs, but the "
                   "bypass of inlet R4 is " +
                   stored(8, Column::QCARRY) + " cfs."});
    change(sump, {{Column::CARRYOVER1, "0.222"}});
    EXPECT_EQ(told_by("carryover-differs").size(), 2U);
}

TEST_F(Chain, TheRightSideOfAGradeDoesNotCount) {
    change(1, {{Column::CARRYOVER2, "0.111"}, {Column::PREINLET2, "none"}});
    EXPECT_EQ(found(), Told{"flow-without-effect L2"});
}

TEST_F(Chain, ABypassThatIsBlankHandsOnZero) {
    change(0, {{Column::QCARRY, ""}});
    change(1, {{Column::CARRYOVER1, "0.0"}});
    EXPECT_EQ(told_by("carryover-differs"), Told{});
    change(1, {{Column::CARRYOVER1, "0.1"}});
    EXPECT_EQ(told_by("carryover-differs"),
              Told{"L2: Carryover is stored as 0.1 cfs, but the bypass of inlet L1 is blank."});
}

TEST_F(Chain, ACarryoverWithoutAPreviousInletIsTold) {
    change(0, {{Column::CARRYOVER1, "0.100"}});
    EXPECT_EQ(told_by("carryover-differs"),
              Told{"L1: Carryover is stored as 0.100 cfs, but no previous inlet is named."});
}

TEST_F(Chain, APreviousInletThatDoesNotExistIsTold) {
    change(1, {{Column::PREINLET1, "L9"}});
    EXPECT_EQ(told_by("previous-missing"), Told{"L2: Previous inlet is L9, which is not in the project."});
    EXPECT_EQ(told_by("carryover-differs"), Told{});
    change(1, {{Column::PREINLET1, "L1"}});
    EXPECT_EQ(told_by("previous-missing"), Told{});
}

TEST_F(Chain, InletsThatFeedEachOtherAreToldOnce) {
    change(0, {{Column::PREINLET1, "L3"}});
    EXPECT_EQ(told_by("previous-in-loop"), Told{"L1: Inlets L1, L2, L3 feed each other in a loop."});
    change(0, {{Column::PREINLET1, ""}});
    EXPECT_EQ(told_by("previous-in-loop"), Told{});
}

TEST_F(Chain, AnInletThatIsItsOwnPreviousInletIsTold) {
    change(0, {{Column::PREINLET1, "L1"}});
    EXPECT_EQ(told_by("previous-in-loop"), Told{"L1: The inlet is its own previous inlet."});
}

TEST_F(Chain, ALoopThroughTheRightSideOfASumpIsFound) {
    change(5, {{Column::PREINLET1, "S1"}});
    EXPECT_EQ(told_by("previous-in-loop"), Told{"R1: Inlets R1, R2, R3, R4, S1 feed each other in a loop."});
}

TEST_F(Chain, AnInletThatTwoNameCountsTwice) {
    change(2, {{Column::PREINLET1, "L1"}});
    EXPECT_EQ(told_by("previous-named-twice"),
              Told{"L1: The inlet is the previous inlet of L2, L3: its bypass of " +
                   stored(0, Column::QCARRY) + " cfs counts more than once."});
    change(2, {{Column::PREINLET1, "L2"}});
    EXPECT_EQ(told_by("previous-named-twice"), Told{});
}

TEST_F(Chain, ABypassThatNoInletTakesIsToldAboveTheLimit) {
    change(1, {{Column::PREINLET1, ""}});
    const std::string bypass = stored(0, Column::QCARRY);
    EXPECT_EQ(told_by("bypass-untaken"), Told{"L1: Bypass of " + bypass + " cfs is taken by no inlet."});
    limits.bypass = bypass;
    EXPECT_EQ(told_by("bypass-untaken"), Told{});
}

TEST_F(Chain, ABypassIsNotTakenByTheRightSideOfAGrade) {
    change(1, {{Column::PREINLET1, ""}, {Column::PREINLET2, "L1"}});
    EXPECT_EQ(told_by("bypass-untaken").size(), 1U);
}

}  // namespace
}  // namespace gullymark::review
