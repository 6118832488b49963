#include "editor/form/screen_fields.h"
#include "editor/form/inlet_screen.h"

#include <gtest/gtest.h>

#include <array>
#include <map>

namespace gullymark::editor {
namespace {

TEST(ScreenFields, EveryColumnIsShownByOneField) {
    std::map<engine::Column, int> shown;
    for (const FieldId id : all_fields) {
        if (const auto column = screen_field(id).column) {
            ++shown[*column];
        }
    }
    for (const auto column : engine::all_columns) {
        EXPECT_EQ(shown[column], 1) << engine::column_name(column);
        EXPECT_EQ(screen_field(field_of(column)).column, column);
    }
}

struct Binding {
    const char* field;
    engine::Column column;
};

// The fields by their names on the drawings, group by group.
constexpr auto bindings = std::to_array<Binding>({
    {"project_id", engine::Column::PROJECT_ID},
    {"RoadWay", engine::Column::ROADWAY},
    {"Inlet_Number", engine::Column::INLET_NUMBER},
    {"Station", engine::Column::STATION},
    {"offset", engine::Column::OFFSET},
    {"offset_location", engine::Column::OFFSET_LOCATION},
    {"inlet_type", engine::Column::INLET_TYPE},
    {"inlet_location", engine::Column::INLET_LOCATION},
    {"inlet_subtype", engine::Column::INLET_SUBTYPE},
    {"flow_direction", engine::Column::FLOW_DIRECTION},
    {"curb_height", engine::Column::CURB_HEIGHT},
    {"allowable_spread", engine::Column::ALLOWABLE_SPREAD},
    {"TopElevation", engine::Column::TOP_ELEVATION},
    {"storm_frequency", engine::Column::STORM_FREQUENCY},
    {"Ldischarge_override", engine::Column::LDISCHARGE_OVERRIDE},
    {"Rdischarge_override", engine::Column::RDISCHARGE_OVERRIDE},
    {"runoff_area", engine::Column::RUNOFF_AREA},
    {"runoff_area2", engine::Column::RUNOFF_AREA2},
    {"runoff_coeff", engine::Column::RUNOFF_COEFF},
    {"runoff_coeff2", engine::Column::RUNOFF_COEFF2},
    {"intensity", engine::Column::INTENSITY},
    {"intensity2", engine::Column::INTENSITY2},
    {"discharge1", engine::Column::DISCHARGE1},
    {"discharge2", engine::Column::DISCHARGE2},
    {"carryover1", engine::Column::CARRYOVER1},
    {"carryover2", engine::Column::CARRYOVER2},
    {"preinlet1", engine::Column::PREINLET1},
    {"preinlet2", engine::Column::PREINLET2},
    {"overland_flow", engine::Column::OVERLAND_FLOW},
    {"QTotal", engine::Column::TOTAL_DISCHARGE},
    {"txtS", engine::Column::LONGSLOPE},
    {"txtSx", engine::Column::PAVXSLOPE},
    {"txtSdashW", engine::Column::INLETXSLOPE},
    {"cboLength", engine::Column::INLETLENGTH},
    {"cboLCOUG", engine::Column::OPENLEN_GRATE},
    {"cboType", engine::Column::GRATETYPE},
    {"cboCurb", engine::Column::CURBOPTION},
    {"cboThroat", engine::Column::THROATYPE},
    {"cboClog", engine::Column::GRATEPERCLOG},
    {"txtslotw", engine::Column::SLOTWIDTH},
    {"txtArea", engine::Column::GRATEAREA},
    {"txtPeri", engine::Column::GRATEPERI},
    {"txtAngle", engine::Column::THROATANGLE},
    {"txthco", engine::Column::HEIGHTOFCURB},
    {"txtzr", engine::Column::RSCOPERATIO},
    {"txtzl", engine::Column::LSCOPERATIO},
    {"txtWg", engine::Column::GRATEWIDTH},
    {"txtn", engine::Column::MANNINGS},
    {"txtW", engine::Column::GUTWIDTH},
    {"txtSw", engine::Column::GUTXSLOPE},
    {"txtWa", engine::Column::LOCDEPWIDTH},
    {"txta", engine::Column::LOCALDEP},
    {"txtGutterSpread", engine::Column::GUTTERSPREAD},
    {"txtElength", engine::Column::EFFLEN},
    {"txtRA", engine::Column::RAREA},
    {"txtRP", engine::Column::RPERI},
    {"txtResFlo", engine::Column::INLETPERF},
    {"txtdi", engine::Column::DEPTHATINLET},
    {"txtEPeri", engine::Column::EFFPERI},
    {"txtDSBH", engine::Column::DSBH},
    {"txtRs", engine::Column::SFLOWEFF},
    {"txtRf", engine::Column::FFLOWEFF},
    {"txtHydRad", engine::Column::HYDRAD},
    {"txtWP", engine::Column::WETPERI},
    {"txtFA", engine::Column::FLOWAREA},
    {"txtQc", engine::Column::QCARRY},
    {"txtQi", engine::Column::QINT},
    {"txtE", engine::Column::EFFICIENCY},
    {"txtDepth", engine::Column::CURBDEPTH},
    {"txtV", engine::Column::FLOWVEL},
    {"txtlti", engine::Column::INTLEN},
    {"txtSe", engine::Column::COMPXSLOPE},
    {"txtSpw", engine::Column::DEPXSLOPE},
    {"txtEo", engine::Column::FLOWRATIO},
    {"txtSpread", engine::Column::OPENSPREAD},
    {"txtWT", engine::Column::WT},
    {"txtQig", engine::Column::QINTGRATE},
    {"txtQic", engine::Column::QINTCURB},
});

TEST(ScreenFields, EachFieldShowsItsColumn) {
    for (const auto& [name, column] : bindings) {
        const auto id = field_named(name);
        ASSERT_TRUE(id) << name;
        EXPECT_EQ(screen_field(*id).column, column) << name;
        EXPECT_EQ(field_name(*id), name);
    }
}

TEST(ScreenFields, AWordThatIsNoFieldNamesNone) {
    EXPECT_FALSE(field_named("txts"));
    EXPECT_FALSE(field_named(""));
}

TEST(InletScreen, ABoundFieldReadsAndWritesItsColumn) {
    engine::InletRecord record;
    InletScreen screen{.record = &record};
    screen.set_text(FieldId::txtS, "0.01");
    EXPECT_EQ(record.text(engine::Column::LONGSLOPE), "0.01");
    record.set(engine::Column::LONGSLOPE, "0.02");
    EXPECT_EQ(screen.text(FieldId::txtS), "0.02");
}

TEST(InletScreen, WritingTheTextThatStandsThereIsNoChange) {
    engine::InletRecord record;
    record.load(engine::Column::LONGSLOPE, "0.01");
    InletScreen screen{.record = &record};
    screen.set_text(FieldId::txtS, "0.01");
    screen.set_text(FieldId::txtW, "");
    EXPECT_FALSE(record.changed());
    EXPECT_FALSE(record.is_null(engine::Column::GUTWIDTH));
    screen.set_text(FieldId::txtS, "0.010");
    EXPECT_TRUE(record.changed());
}

TEST(InletScreen, AFieldIsUsableWhenAllFramesAroundItAre) {
    InletScreen screen;
    EXPECT_TRUE(screen.usable(FieldId::runoff_area2));
    screen[FieldId::discharge2_frame].visible = false;
    EXPECT_FALSE(screen.usable(FieldId::runoff_area2));
    screen[FieldId::discharge2_frame].visible = true;
    screen[FieldId::Flow_Data_Frame].enabled = false;
    EXPECT_FALSE(screen.usable(FieldId::runoff_area2));
    EXPECT_TRUE(screen.usable(FieldId::txtS));
    screen[FieldId::txtS].locked = true;
    EXPECT_TRUE(screen.usable(FieldId::txtS));
    EXPECT_FALSE(screen.editable(FieldId::txtS));
}

TEST(InletScreen, WhatTheProgramFillsIsNeverTyped) {
    const InletScreen screen;
    for (const FieldId id : {FieldId::project_id, FieldId::carryover1, FieldId::QTotal, FieldId::txta}) {
        EXPECT_FALSE(screen.usable(id)) << field_name(id);
        EXPECT_EQ(screen[id].color, platform::Color::gray) << field_name(id);
    }
}

}  // namespace
}  // namespace gullymark::editor
