#include "review_fixture.h"

namespace gullymark::review {
namespace {

struct Records : ReviewTest {};

TEST_F(Records, ATypeOutsideTheListIsTold) {
    change(0, {{Column::INLET_TYPE, "Curb inlet"}});
    EXPECT_EQ(told_by("type-unknown"),
              Told{"L1: Inlet type is stored as Curb inlet, which is none of the list."});
    change(0, {{Column::INLET_TYPE, "Curb Inlet"}});
    EXPECT_EQ(told_by("type-unknown"), Told{});
}

TEST_F(Records, ALocationOutsideTheListIsTold) {
    change(0, {{Column::INLET_LOCATION, "Sump"}});
    EXPECT_EQ(told_by("location-unknown"),
              Told{"L1: Inlet location is stored as Sump, which is none of the list."});
    change(0, {{Column::INLET_LOCATION, "CONTINUOUS GRADE"}});
    EXPECT_EQ(told_by("location-unknown"), Told{});
}

TEST_F(Records, ATextThatIsComputedWithAndIsNoNumberIsTold) {
    change(0, {{Column::MANNINGS, "0,016"}});
    EXPECT_EQ(told_by("number-unreadable"),
              Told{"L1: Manning's roughness coefficient is stored as 0,016, which is no number."});
    change(0, {{Column::MANNINGS, " 0.016 "}});
    EXPECT_EQ(told_by("number-unreadable"), Told{});
}

TEST_F(Records, ATextThatTheKindDoesNotUseMayBeAnything) {
    change(0, {{Column::GRATEAREA, "abc"}, {Column::DISCHARGE2, "abc"}});
    EXPECT_EQ(told_by("number-unreadable"), Told{});
}

TEST_F(Records, RunoffBehindATypedDischargeDoesNotCount) {
    change(0, {{Column::RUNOFF_AREA, "abc"}});
    EXPECT_EQ(told_by("number-unreadable").size(), 1U);
    change(0, {{Column::LDISCHARGE_OVERRIDE, "YES"}});
    EXPECT_EQ(told_by("number-unreadable"), Told{});
}

TEST_F(Records, TwoInletsOfOneNumberAreToldOnce) {
    change(8, {{Column::INLET_NUMBER, "L1"}});
    EXPECT_EQ(told_by("number-not-unique"), Told{"L1: 2 inlets have the number L1."});
    change(8, {{Column::INLET_NUMBER, "l1"}});
    EXPECT_EQ(told_by("number-not-unique"), Told{});
}

}  // namespace
}  // namespace gullymark::review
