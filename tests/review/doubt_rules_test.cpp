#include "review_fixture.h"

namespace gullymark::review {
namespace {

struct Doubts : ReviewTest {};

TEST_F(Doubts, ANegativeBypassIsTold) {
    change(0, {{Column::QCARRY, "-0.001"}});
    EXPECT_EQ(told_by("bypass-negative"), Told{"L1: Bypass is -0.001 cfs."});
    change(0, {{Column::QCARRY, "0.000"}});
    EXPECT_EQ(told_by("bypass-negative"), Told{});
}

TEST_F(Doubts, MoreInterceptedThanComesIsTold) {
    change(0, {{Column::QINT, "0.901"}});
    EXPECT_EQ(told_by("intercepts-more"),
              Told{"L1: The inlet intercepts 0.901 cfs of 0.900 cfs that come to it."});
    change(0, {{Column::QINT, "0.900"}});
    EXPECT_EQ(told_by("intercepts-more"), Told{});
}

TEST_F(Doubts, NothingCloggedInASumpIsTold) {
    change(sump, {{Column::GRATEPERCLOG, "0"}});
    EXPECT_EQ(told_by("sump-unclogged"), Told{"S1: Nothing of the inlet is clogged, and it is in a sump."});
    change(sump, {{Column::GRATEPERCLOG, "1"}});
    change(0, {{Column::GRATEPERCLOG, "0"}});
    EXPECT_EQ(told_by("sump-unclogged"), Told{});
}

/// A ditch on a grade is solved without a look at the clogging.
TEST_F(Doubts, CloggingThatChangesNothingIsTold) {
    change(0, {{Column::INLET_TYPE, "Grate Inlet in a Ditch"},
               {Column::GRATEWIDTH, "2.000"},
               {Column::GRATETYPE, "P-1-7/8"},
               {Column::LSCOPERATIO, "3.000"},
               {Column::RSCOPERATIO, "3.000"}});
    solve(0);
    EXPECT_EQ(told_by("clogging-idle"),
              Told{"L1: With 50 % clogged the results are the same as with nothing clogged."});
    change(0, {{Column::INLET_TYPE, "Curb Inlet"}});
    solve(0);
    EXPECT_EQ(told_by("clogging-idle"), Told{});
}

TEST_F(Doubts, AnOffsetOfTheOtherSideIsTold) {
    change(0, {{Column::OFFSET_LOCATION, "LEFT"}});
    EXPECT_EQ(told_by("offset-side"), Told{"L1: Offset is 12.000 ft on the side LEFT."});
    change(0, {{Column::OFFSET, "-12.000"}});
    EXPECT_EQ(told_by("offset-side"), Told{});
}

TEST_F(Doubts, ATopThatDoesNotFallAlongTheChainIsTold) {
    change(1, {{Column::TOP_ELEVATION, "109.000"}});
    EXPECT_EQ(told_by("top-not-falling"),
              Told{"L2: Top elevation is 109.000 ft, that of the previous inlet L1 is 109.000 ft."});
    change(1, {{Column::TOP_ELEVATION, "108.999"}});
    EXPECT_EQ(told_by("top-not-falling"), Told{});
}

/// The weir depth passes 0.4 ft at 2.48 x 5 x 0.4^1.5 = 3.14 cfs: the orifice alone counts from there.
TEST_F(Doubts, ASlotWhoseSpreadFallsAsTheFlowGrowsIsTold) {
    change(sump, {{Column::INLET_TYPE, "Slotted Inlet"},
                  {Column::SLOTWIDTH, "12.000"},
                  {Column::INLETLENGTH, "10.000"},
                  {Column::TOTAL_DISCHARGE, "3.100"}});
    solve(sump);
    const auto told = told_by("slot-falls");
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told.front().find("S1: Spread at the opening falls from "), 0U) << told.front();
    EXPECT_NE(told.front().find(" when the flow grows from 3.100 cfs to 3.255 cfs."), std::string::npos)
        << told.front();
    change(sump, {{Column::TOTAL_DISCHARGE, "2.500"}});
    solve(sump);
    EXPECT_EQ(told_by("slot-falls"), Told{});
}

/// Half of 10 ft clogged passes just below the step to the orifice; a twentieth more goes beyond it.
TEST_F(Doubts, ASlotThatStandsShallowerWhenMoreIsCloggedIsTold) {
    change(sump, {{Column::INLET_TYPE, "Slotted Inlet"},
                  {Column::SLOTWIDTH, "12.000"},
                  {Column::INLETLENGTH, "10.000"},
                  {Column::TOTAL_DISCHARGE, "3.100"}});
    solve(sump);
    const auto told = told_by("slot-falls-clogged");
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told.front().find("S1: Spread at the opening falls from " + stored(sump, Column::OPENSPREAD) +
                                " ft to "),
              0U)
        << told.front();
    EXPECT_NE(told.front().find(" when 55 % are clogged."), std::string::npos) << told.front();
    change(sump, {{Column::GRATEPERCLOG, "25"}});
    solve(sump);
    EXPECT_EQ(told_by("slot-falls-clogged"), Told{});
}

/// 2 ft x (0.0308 - 0.0208) x 12 in/ft = 0.240 in
TEST_F(Doubts, ADepthThatLeavesOutTheDropOfTheGutterIsTold) {
    change(sump, {{Column::GUTXSLOPE, "0.0308"}});
    solve(sump);
    EXPECT_EQ(
        told_by("gutter-drop-omitted"),
        Told{"S1: Depth at the curb is " + stored(sump, Column::CURBDEPTH) +
             " in, the spread times the slope of the pavement: it leaves out 0.240 in that the gutter falls "
             "steeper."});
    change(sump, {{Column::GUTXSLOPE, "0.0208"}});
    solve(sump);
    EXPECT_EQ(told_by("gutter-drop-omitted"), Told{});
}

/// Nearly every sump is so: one finding names them all.
TEST_F(Doubts, DepthsThatLeaveOutTheDropOfTheGutterAreToldOnce) {
    change(sump, {{Column::GUTXSLOPE, "0.0308"}});
    solve(sump);
    project.inlets.push_back(project.inlets[sump]);
    change(sump + 1, {{Column::INLET_NUMBER, "S2"}, {Column::GUTXSLOPE, "0.0408"}});
    solve(sump + 1);
    EXPECT_EQ(
        told_by("gutter-drop-omitted"),
        Told{"At 2 sumps the depth at the curb is the spread times the slope of the pavement and leaves "
             "out what the gutter falls steeper, up to 0.480 in at S2: S1, S2."});
}

TEST_F(Doubts, WaterAtACombinationWithoutASpreadIsTold) {
    change(sump, {{Column::INLET_TYPE, "Combination Curb and Grate Inlet"},
                  {Column::OPENSPREAD, "0.000"},
                  {Column::DEPTHATINLET, "3.100"}});
    EXPECT_EQ(told_by("water-without-spread"),
              Told{"S1: Water stands 3.100 in deep at the inlet, and its spread is 0.000 ft."});
    change(sump, {{Column::OPENSPREAD, "0.001"}});
    EXPECT_EQ(told_by("water-without-spread"), Told{});
}

}  // namespace
}  // namespace gullymark::review
