#include "review_fixture.h"

namespace gullymark::review {
namespace {

struct Ratings : ReviewTest {
    void make_grate(std::string_view length) {
        change(0, {{Column::INLET_TYPE, "Grate Inlet"},
                   {Column::GRATEWIDTH, "2.000"},
                   {Column::GRATETYPE, "P-1-1/8"},
                   {Column::INLETLENGTH, length}});
        solve(0);
    }

    void make_rated(std::string_view clogged, std::string_view flow) {
        change(sump, {{Column::INLET_TYPE, "Grate Inlet in a Ditch"},
                      {Column::INLET_SUBTYPE, "Y-Weld"},
                      {Column::INLETLENGTH, "-"},
                      {Column::GRATEWIDTH, "-"},
                      {Column::GRATEAREA, "-"},
                      {Column::GRATEPERI, "-"},
                      {Column::GRATEPERCLOG, clogged},
                      {Column::TOTAL_DISCHARGE, flow}});
        solve(sump);
    }
};

/// The fits of a grate leave out 4.5 ft.
TEST_F(Ratings, AGrateThatInterceptsLessThanAShorterOneIsTold) {
    make_grate("4.500");
    const auto told = told_by("length-between-rows");
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told.front(), "L1: At a length of 4.500 ft the grate intercepts " + stored(0, Column::QINT) +
                                " cfs, at 4.455 ft it would be 0.568 cfs and at 4.545 ft 0.572 cfs: the "
                                "length lies between the rows of its rating.");
    make_grate("4.501");
    EXPECT_EQ(told_by("length-between-rows"), Told{});
    make_grate("4.499");
    EXPECT_EQ(told_by("length-between-rows"), Told{});
}

TEST_F(Ratings, ACurbOfThatLengthIsNotRated) {
    change(0, {{Column::INLETLENGTH, "4.500"}});
    solve(0);
    EXPECT_EQ(told_by("length-between-rows"), Told{});
}

/// 12 in/ft x (0.0594 x 3 + 0.2069) = 4.621 in half clogged, 12 x (0.0493 x 3 + 0.2129) = 4.330 in clean.
TEST_F(Ratings, ACloggedShareWithoutARowIsTold) {
    make_rated("25", "3.000");
    EXPECT_EQ(
        told_by("clogging-between-rows"),
        Told{"S1: With 25 % clogged the depth is 0.000 in: the rating has no row for it. By its rows the "
             "depth is 4.330 in with 0 %, 4.621 in with 50 %."});
    make_rated("50", "3.000");
    EXPECT_EQ(told_by("clogging-between-rows"), Told{});
    EXPECT_EQ(told_by("number-unreadable"), Told{}) << "the rating needs no dimensions";
}

TEST_F(Ratings, AnInletWithoutARatingMayBeCloggedAsItIs) {
    make_rated("25", "3.000");
    change(sump, {{Column::INLET_SUBTYPE, "Y-Other"}});
    EXPECT_EQ(told_by("clogging-between-rows"), Told{});
}

/// The pieces of the clean rating do not meet at 25 cfs.
TEST_F(Ratings, ARatingThatFallsAsTheFlowGrowsIsTold) {
    make_rated("0", "24.900");
    const auto told = told_by("rating-falls");
    EXPECT_EQ(told, Told{"S1: Depth at the inlet falls from " + stored(sump, Column::DEPTHATINLET) +
                         " in to 12.889 in when the flow grows from 24.900 cfs to 25.025 cfs."});
    make_rated("0", "24.800");
    EXPECT_EQ(told_by("rating-falls"), Told{});
}

/// 0.255 + 0.0741 ln Q is below 0 for less than 0.032 cfs.
TEST_F(Ratings, ANegativeDepthIsTold) {
    make_rated("0", "0.010");
    EXPECT_EQ(told_by("depth-negative"), Told{"S1: Total depth of water at the inlet is " +
                                              stored(sump, Column::DEPTHATINLET) + " in."});
    EXPECT_EQ(stored(sump, Column::DEPTHATINLET).front(), '-');
    make_rated("0", "0.040");
    EXPECT_EQ(told_by("depth-negative"), Told{});
}

TEST_F(Ratings, AFlowThatCannotGrowIsSolvedAsTheGreatest) {
    make_rated("0", "1.79e308");
    EXPECT_EQ(told_by("rating-falls"), Told{});
}

}  // namespace
}  // namespace gullymark::review
