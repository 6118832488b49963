#include "engine/inlet_record.h"

#include <gtest/gtest.h>

#include "engine/unit_constants.h"
#include "engine/units.h"

namespace gullymark::engine {
namespace {

TEST(InletRecord, AColumnThatNothingFilledIsNullAndReadsEmpty) {
    InletRecord record;
    EXPECT_TRUE(record.is_null(Column::STATION));
    EXPECT_EQ(record.text(Column::STATION), "");
    record.set(Column::STATION, "");
    EXPECT_FALSE(record.is_null(Column::STATION));
}

int changes = 0;

TEST(InletRecord, OnlyTheFirstWriteAfterALoadIsTold) {
    changes = 0;
    InletRecord record;
    record.on_first_change = [] { ++changes; };
    record.load(Column::STATION, "1+00");
    EXPECT_EQ(changes, 0);
    record.set(Column::STATION, "2+00");
    record.set(Column::OFFSET, "1.0");
    EXPECT_EQ(changes, 1);
    record.begin_new_changes();
    record.set(Column::OFFSET, "2.0");
    EXPECT_EQ(changes, 2);
}

TEST(InletRecord, EveryColumnIsFoundByItsNameCaseCounting) {
    for (const auto column : all_columns) {
        EXPECT_EQ(column_named(column_name(column)), column);
        EXPECT_FALSE(column_meaning(column).empty()) << column_name(column);
    }
    EXPECT_EQ(column_named("station"), std::nullopt);
    EXPECT_EQ(column_named("OFFSET "), std::nullopt);
    EXPECT_EQ(column_count, 78U);
}

TEST(Units, CaptionsFollowTheUnitSystemAndAnyOtherTextIsMetric) {
    UnitSystem = "ENGLISH";
    EXPECT_EQ(unit_text(Unit::length), "ft");
    EXPECT_EQ(unit_text(Unit::discharge), "cfs");
    for (const auto* units : {"METRIC", "english", "ENGLISH ", ""}) {
        UnitSystem = units;
        EXPECT_EQ(unit_text(Unit::depth), "mm") << units;
        EXPECT_EQ(unit_text(Unit::runoff_area), "Hc") << units;
    }
    EXPECT_EQ(unit_text(Unit::degrees), "deg");
    EXPECT_EQ(unit_text(Unit::ratio), "");
}

TEST(UnitConstants, HoldTheTableOfBothUnitSystems) {
    UnitSystem = "ENGLISH";
    set_unit_defaults();
    set_gravity();
    EXPECT_EQ(unit_constants.numberFormat, "#0.000");
    EXPECT_EQ(unit_constants.gutterFlowConstant, 0.56F);
    EXPECT_EQ(unit_constants.sideFlowConstant, 0.15F);
    EXPECT_EQ(unit_constants.curbLengthConstant, 0.6F);
    EXPECT_EQ(unit_constants.manningConstant, 1.486F);
    EXPECT_EQ(unit_constants.depthFactor, 12.0F);
    EXPECT_EQ(unit_constants.gravity, 32.174F);
    EXPECT_EQ(unit_constants.curbLengthLimit, 12);
    EXPECT_EQ(unit_constants.weirCoefficient, 2.3);
    UnitSystem = "METRIC";
    set_unit_defaults();
    set_gravity();
    EXPECT_EQ(unit_constants.numberFormat, "#0.0000");
    EXPECT_EQ(unit_constants.gutterFlowConstant, 0.376F);
    EXPECT_EQ(unit_constants.sideFlowConstant, 0.0828F);
    EXPECT_EQ(unit_constants.curbLengthConstant, 0.817F);
    EXPECT_EQ(unit_constants.manningConstant, 1.0F);
    EXPECT_EQ(unit_constants.depthFactor, 1000.0F);
    EXPECT_EQ(unit_constants.gravity, 9.81F);
    EXPECT_EQ(unit_constants.curbLengthLimit, 4);
    EXPECT_EQ(unit_constants.weirCoefficient, 1.66);
}

}  // namespace
}  // namespace gullymark::engine
