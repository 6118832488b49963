#include "review_fixture.h"

namespace gullymark::review {
namespace {

struct Allowed : ReviewTest {};

TEST_F(Allowed, ASpreadOverTheAllowableIsToldWithItsExcess) {
    change(0, {{Column::ALLOWABLE_SPREAD, "8.0"}, {Column::OPENSPREAD, "10.209"}});
    EXPECT_EQ(told_by("spread-beyond"),
              Told{"L1: Spread of water at the opening is 10.209 ft, 2.209 ft beyond the allowable 8.0 ft."});
    change(0, {{Column::OPENSPREAD, "8.000"}});
    EXPECT_EQ(told_by("spread-beyond"), Told{});
}

TEST_F(Allowed, TheSpreadInTheGutterOfASumpIsLookedAtToo) {
    change(sump, {{Column::GUTTERSPREAD, "8.001"}});
    EXPECT_EQ(told_by("spread-beyond"),
              Told{"S1: Spread of water in the gutter is 8.001 ft, 0.001 ft beyond the allowable 8.0 ft."});
}

TEST_F(Allowed, ASpreadAtTheCeilingOfTheSearchIsTold) {
    change(0, {{Column::ALLOWABLE_SPREAD, "0.5"}});
    solve(0);
    EXPECT_EQ(told_by("spread-at-ceiling"),
              Told{"L1: Spread of water at the opening is 3.000 ft, the greatest that is searched with an "
                   "allowable spread of 0.5 ft: the true one may be greater."});
    change(0, {{Column::ALLOWABLE_SPREAD, "1.0"}});
    solve(0);
    EXPECT_EQ(told_by("spread-at-ceiling"), Told{});
}

TEST_F(Allowed, WaterHigherThanTheCurbIsTold) {
    change(0, {{Column::CURBDEPTH, "6.001"}});
    EXPECT_EQ(told_by("depth-above-curb"), Told{"L1: Water stands 6.001 in deep at a curb of 6.0 in."});
    change(0, {{Column::CURBDEPTH, "6.000"}});
    EXPECT_EQ(told_by("depth-above-curb"), Told{});
}

TEST_F(Allowed, ASumpWithoutAnInletOnASideIsAQuestion) {
    change(sump, {{Column::PREINLET2, ""}});
    EXPECT_EQ(told_by("sump-without-flank"),
              Told{"S1: Should an inlet flank this sump? No previous inlet of the right side is named."});
    change(sump, {{Column::PREINLET2, "R4"}});
    EXPECT_EQ(told_by("sump-without-flank"), Told{});
}

TEST_F(Allowed, ADitchHasNoAllowableSpread) {
    change(0, {{Column::INLET_TYPE, "Grate Inlet in a Ditch"}, {Column::OPENSPREAD, "10.209"}});
    EXPECT_EQ(told_by("spread-beyond"), Told{});
}

}  // namespace
}  // namespace gullymark::review
