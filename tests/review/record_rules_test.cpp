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

TEST_F(Records, ABlankThatSolveComputesWithIsTold) {
    change(0, {{Column::LONGSLOPE, ""}});
    EXPECT_EQ(told_by("number-unreadable"),
              Told{"L1: Longitudinal slope of the gutter or ditch is blank, and Solve computes with it."});
    change(0, {{Column::LONGSLOPE, "0.0300"}});
    EXPECT_EQ(told_by("number-unreadable"), Told{});
}

/// Solve fills both before it computes.
TEST_F(Records, ABlankThatSolveFillsIsNotTold) {
    change(0, {{Column::INLETXSLOPE, ""}, {Column::GRATEPERCLOG, ""}});
    EXPECT_EQ(told_by("number-unreadable"), Told{});
    change(0, {{Column::INLETXSLOPE, "steep"}});
    EXPECT_EQ(told_by("number-unreadable").size(), 1U);
}

TEST_F(Records, ABlankThatAnotherTypeComputesWithIsNotTold) {
    change(0, {{Column::GRATEWIDTH, ""}});
    EXPECT_EQ(told_by("number-unreadable"), Told{});
    change(0, {{Column::INLET_TYPE, "Grate Inlet"}});
    EXPECT_EQ(told_by("number-unreadable").size(), 1U);
}

/// A standard that is solved by its depth alone has "-" for the dimensions that nobody computes with.
TEST_F(Records, ADashThatAStandardDoesNotComputeWithIsNotTold) {
    change(0, {{Column::INLET_TYPE, "Grate Inlet in a Ditch"},
               {Column::INLET_SUBTYPE, "X - DI Grate"},
               {Column::LSCOPERATIO, "3.000"},
               {Column::RSCOPERATIO, "3.000"},
               {Column::INLETLENGTH, "-"},
               {Column::GRATEWIDTH, "-"}});
    EXPECT_EQ(told_by("number-unreadable"), Told{});
    change(0, {{Column::INLET_SUBTYPE, "X - DI"}});
    EXPECT_EQ(told_by("number-unreadable"),
              (Told{"L1: Length of the opening or grate is stored as -, which is no number.",
                    "L1: Width of the grate is stored as -, which is no number."}));
}

TEST_F(Records, TextsThatTheKindDoesNotUseAreToldTogether) {
    change(0, {{Column::SLOTWIDTH, "4.00"}, {Column::GRATETYPE, "Reticuline"}});
    EXPECT_EQ(told_by("text-without-effect"),
              Told{"L1: Stored, and without effect for this type and location: Type of the grate Reticuline, "
                   "Width of the slot 4.00 in."});
    change(0, {{Column::SLOTWIDTH, "0.00"}, {Column::GRATETYPE, ""}});
    EXPECT_EQ(told_by("text-without-effect"), Told{});
}

/// Inlets whose data nobody has looked at hold the texts of a new one: one finding names them all.
TEST_F(Records, TextsThatManyKindsDoNotUseAreToldOnce) {
    change(0, {{Column::SLOTWIDTH, "4.00"}});
    change(2, {{Column::SLOTWIDTH, "5.00"}});
    EXPECT_EQ(
        told_by("text-without-effect"),
        Told{"At 2 inlets texts are stored that are without effect for their type and location: L1, L3. The "
             "first of them has Width of the slot 4.00 in."});
}

TEST_F(Records, FlowFromTheRightSideOfAGradeIsTold) {
    change(0, {{Column::DISCHARGE2, "5.400"}, {Column::CARRYOVER2, "0.0"}});
    EXPECT_EQ(told_by("flow-without-effect"),
              Told{"L1: Stored, and without effect on a grade: Discharge of the right side 5.400 cfs."});
    change(0, {{Column::DISCHARGE2, "0.000"}});
    EXPECT_EQ(told_by("flow-without-effect"), Told{});
}

TEST_F(Records, TheSameTextsCountForAnotherKind) {
    change(sump, {{Column::SLOTWIDTH, "4.00"}});
    EXPECT_EQ(told_by("text-without-effect").size(), 1U);
    change(sump, {{Column::INLET_TYPE, "Slotted Inlet"},
                  {Column::HEIGHTOFCURB, ""},
                  {Column::THROATYPE, ""},
                  {Column::THROATANGLE, ""}});
    EXPECT_EQ(told_by("text-without-effect"), Told{});
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
