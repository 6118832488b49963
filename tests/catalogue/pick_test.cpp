#include "catalogue/pick.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "catalogue/standards.h"
#include "engine/step.h"
#include "engine/unit_constants.h"

namespace gullymark::catalogue {
namespace {

using engine::Column;
using engine::open_inlet;
using Texts = std::map<Column, std::string>;

const Table& named(std::string_view name) {
    for (const Table& table : tables()) {
        if (table.name == name) {
            return table;
        }
    }
    throw std::invalid_argument(std::string(name));
}

/// The text of the row of a standard with that per cent of clogging; of the only row where `clogging` is empty.
std::string row_of(std::string_view table_name, std::string_view standard, std::string_view clogging = "") {
    const Table& table = named(table_name);
    for (const Row& row : table.rows) {
        bool fits = row.front() == standard;
        for (std::size_t i = 0; i < table.columns.size(); ++i) {
            fits = fits && (table.columns[i].heading != "% Clogged" || row.at(i) == clogging);
        }
        if (fits) {
            return row_text(table, row);
        }
    }
    throw std::invalid_argument(std::string(standard));
}

/// Starts from an inlet in which every column has a text of its own, and gives those that the pick changed.
class Pick : public ::testing::Test {
  protected:
    Pick() {
        open_inlet = {};
        engine::UnitSystem = "ENGLISH";
        for (const Column column : engine::all_columns) {
            open_inlet.load(column, before(column));
        }
    }
    ~Pick() override {
        open_inlet = {};
        engine::UnitSystem.clear();
    }

    static std::string before(Column column) { return "old " + std::string(engine::column_name(column)); }

    static Texts changed() {
        Texts texts;
        for (const Column column : engine::all_columns) {
            if (open_inlet.text(column) != before(column)) {
                texts[column] = open_inlet.text(column);
            }
        }
        return texts;
    }

    static Texts picked(std::string_view table, std::string_view standard, std::string_view clogging = "") {
        pick(named(table), row_of(table, standard, clogging));
        return changed();
    }
};

// From each table one row to the record: these columns and no others.

TEST_F(Pick, FromCurbInletsOnGradeWritesTheGrossLengthAndTheClogging) {
    EXPECT_EQ(picked("frmCIG", "S4 ONE WING", "25"), (Texts{{Column::INLET_SUBTYPE, "S4 ONE WING"},
                                                            {Column::GRATEPERCLOG, "25"},
                                                            {Column::INLETLENGTH, "12.75"}}));
}

TEST_F(Pick, FromCurbInletsInSumpWritesTheGrossLengthAndTheClogging) {
    EXPECT_EQ(picked("frmCIS", "S3 TWO WINGS", "50"), (Texts{{Column::INLET_SUBTYPE, "S3 TWO WINGS"},
                                                             {Column::GRATEPERCLOG, "50"},
                                                             {Column::INLETLENGTH, "17.00"}}));
}

TEST_F(Pick, FromGrateInletsOnGradeWritesTheGrossWidthAndTheClogging) {
    EXPECT_EQ(picked("frmGIG", "B (Curb/barrier)", "10"), (Texts{{Column::INLET_SUBTYPE, "B (Curb/barrier)"},
                                                                 {Column::INLETLENGTH, "1.250"},
                                                                 {Column::GRATEWIDTH, "1.583"},
                                                                 {Column::GRATEPERCLOG, "10"}}));
}

TEST_F(Pick, FromGrateInletsInSumpWritesTheEffectiveAndTheGrossAreaAndPerimeterAndTheCurb) {
    // 1.697 / 0.9 = 1.88556; 2.021 + (4.796 - 2.021) / 0.9 = 5.10433
    EXPECT_EQ(picked("frmGIS", "PB(Curb)", "10"), (Texts{{Column::INLET_SUBTYPE, "PB(Curb)"},
                                                         {Column::CURBOPTION, "With Curb"},
                                                         {Column::INLETLENGTH, "2.021"},
                                                         {Column::GRATEWIDTH, "1.542"},
                                                         {Column::GRATEPERCLOG, "10"},
                                                         {Column::RAREA, "1.697"},
                                                         {Column::GRATEAREA, "1.886"},
                                                         {Column::EFFPERI, "4.796"},
                                                         {Column::GRATEPERI, "5.104"}}));
}

TEST_F(Pick, FromCombinationInletsOnGradeWritesTheGrossWidthAndTheClogging) {
    EXPECT_EQ(picked("frmCCGG", "E1/E2 (2'MB)", "50"), (Texts{{Column::INLET_SUBTYPE, "E1/E2 (2'MB)"},
                                                              {Column::INLETLENGTH, "2.833"},
                                                              {Column::GRATEWIDTH, "1.833"},
                                                              {Column::GRATEPERCLOG, "50"}}));
}

TEST_F(Pick, FromCombinationInletsInSumpWritesTheEffectiveAndTheGrossAreaAndPerimeterButNoCurb) {
    // 2.234 / 0.75 = 2.97867; 2.833 + (5.583 - 2.833) / 0.75 = 6.49967
    EXPECT_EQ(picked("frmCCGS", "E3/E4 (2.5'MB)", "25"), (Texts{{Column::INLET_SUBTYPE, "E3/E4 (2.5'MB)"},
                                                                {Column::INLETLENGTH, "2.833"},
                                                                {Column::GRATEWIDTH, "1.833"},
                                                                {Column::GRATEPERCLOG, "25"},
                                                                {Column::RAREA, "2.234"},
                                                                {Column::GRATEAREA, "2.979"},
                                                                {Column::EFFPERI, "5.583"},
                                                                {Column::GRATEPERI, "6.500"}}));
}

TEST_F(Pick, FromDitchInletsOnGradeWritesDashesAndNoClogging) {
    EXPECT_EQ(picked("frmDitchInletCG", "X - DI Grate"), (Texts{{Column::INLET_SUBTYPE, "X - DI Grate"},
                                                                {Column::INLETLENGTH, "-"},
                                                                {Column::GRATEWIDTH, "-"},
                                                                {Column::GRATEAREA, "-"},
                                                                {Column::GRATEPERI, "-"}}));
}

TEST_F(Pick, FromDitchInletsInSumpWritesTheAreaAndPerimeterOfThatCloggingAsTheyAre) {
    EXPECT_EQ(picked("frmDitchInletSU", "PD-6", "25"), (Texts{{Column::INLET_SUBTYPE, "PD-6"},
                                                              {Column::INLETLENGTH, "3.438"},
                                                              {Column::GRATEWIDTH, "6.073"},
                                                              {Column::GRATEPERCLOG, "25"},
                                                              {Column::GRATEAREA, "10.714"},
                                                              {Column::GRATEPERI, "15.984"}}));
}

TEST_F(Pick, OfAYRowWritesDashesAndItsClogging) {
    EXPECT_EQ(picked("frmDitchInletSU", "Y-Weld", "50"), (Texts{{Column::INLET_SUBTYPE, "Y-Weld"},
                                                                {Column::INLETLENGTH, "-"},
                                                                {Column::GRATEWIDTH, "-"},
                                                                {Column::GRATEPERCLOG, "50"},
                                                                {Column::GRATEAREA, "-"},
                                                                {Column::GRATEPERI, "-"}}));
}

// What picks nothing

TEST_F(Pick, OfASeparatorChangesNothing) {
    for (const Table& table : tables()) {
        pick(table, row_text(table, separator));
        pick(table, "\t");
        pick(table, "\t\t\t\t\t\t");
        pick(table, "  \t1\t2\t3\t4\t5\t6");
        EXPECT_EQ(changed(), Texts{}) << table.name;
    }
    EXPECT_FALSE(open_inlet.changed());
}

TEST_F(Pick, WithNoRowSelectedChangesNothing) {
    for (const Table& table : tables()) {
        pick(table, "");
        pick(table, "   ");
        EXPECT_EQ(changed(), Texts{}) << table.name;
    }
    EXPECT_FALSE(open_inlet.changed());
}

// The curb of a grate in a sump

TEST_F(Pick, OfAGrateAtACurbInASumpSetsWithCurb) {
    for (const std::string_view standard : {"PR(Curb)", "PB(Curb)", "B(Curb/barrier)"}) {
        open_inlet.set(Column::CURBOPTION, "");
        picked("frmGIS", standard, "0");
        EXPECT_EQ(open_inlet.text(Column::CURBOPTION), "With Curb") << standard;
    }
}

TEST_F(Pick, OfP1P2P3AtACurbInASumpSetsWithoutCurbForItsNameClosesTheBracket) {
    for (const std::string_view clogging : {"0", "10", "25", "50"}) {
        open_inlet.set(Column::CURBOPTION, "");
        picked("frmGIS", "P1/P2/P3(Curb)", clogging);
        EXPECT_EQ(open_inlet.text(Column::CURBOPTION), "Without Curb") << clogging;
    }
    pick(named("frmGIS"), "P1/P2/P3(Curb\t3.000\t3.000\t0\t3.000\t5.500\t9.000");
    EXPECT_EQ(open_inlet.text(Column::CURBOPTION), "With Curb");
}

TEST_F(Pick, OfAnyOtherGrateInASumpSetsWithoutCurb) {
    for (const std::string_view standard : {"PR(No Curb)", "P1/P2/P3(No Curb", "V-1", "V-2"}) {
        open_inlet.set(Column::CURBOPTION, "");
        picked("frmGIS", standard, "0");
        EXPECT_EQ(open_inlet.text(Column::CURBOPTION), "Without Curb") << standard;
    }
}

TEST_F(Pick, ComparesTheNameOfAGrateInASumpWithoutItsPadding) {
    pick(named("frmGIS"), "   PR(Curb)   \t3.438\t4.042\t0\t4.042\t9.519\t11.521");
    EXPECT_EQ(open_inlet.text(Column::INLET_SUBTYPE), "PR(Curb)");
    EXPECT_EQ(open_inlet.text(Column::CURBOPTION), "With Curb");
}

// The gross values worked back

TEST_F(Pick, OfAnUncloggedGrateInASumpLeavesItsAreaAndPerimeterAsGrossValues) {
    for (const std::string_view name : {"frmGIS", "frmCCGS"}) {
        const Table& table = named(name);
        for (const Row& row : table.rows) {
            if (row[3] != "0") {
                continue;
            }
            pick(table, row_text(table, row));
            EXPECT_EQ(open_inlet.text(Column::GRATEAREA), row[5]) << row_text(table, row);
            EXPECT_EQ(open_inlet.text(Column::GRATEPERI), row[6]) << row_text(table, row);
        }
    }
}

TEST_F(Pick, OfARowThatDoesNotFitItsCloggingGivesTheGrossAreaOfThatRow) {
    picked("frmGIS", "P1/P2/P3(Curb)", "10");  // 5.100 / 0.9, though 5.500 stands in the row of 0 per cent
    EXPECT_EQ(open_inlet.text(Column::RAREA), "5.100");
    EXPECT_EQ(open_inlet.text(Column::GRATEAREA), "5.667");
    EXPECT_EQ(open_inlet.text(Column::GRATEPERI), "9.000");
}

TEST_F(Pick, OfARowCloggedAltogetherKeepsTheGrossValuesThatStood) {
    pick(named("frmGIS"), "V-9\t3.000\t2.000\t100\t2.000\t5.000\t9.000");
    EXPECT_EQ(changed(), (Texts{{Column::INLET_SUBTYPE, "V-9"},
                                {Column::CURBOPTION, "Without Curb"},
                                {Column::INLETLENGTH, "3.000"},
                                {Column::GRATEWIDTH, "2.000"},
                                {Column::GRATEPERCLOG, "100"},
                                {Column::RAREA, "5.000"},
                                {Column::EFFPERI, "9.000"}}));
}

TEST_F(Pick, OfAnUnreadableAreaWritesItAndStillWorksBackThePerimeter) {
    pick(named("frmCCGS"), "E9\t3.000\t2.000\t50\t1.000\t-\t6.000");
    EXPECT_EQ(changed(), (Texts{{Column::INLET_SUBTYPE, "E9"},
                                {Column::INLETLENGTH, "3.000"},
                                {Column::GRATEWIDTH, "2.000"},
                                {Column::GRATEPERCLOG, "50"},
                                {Column::RAREA, "-"},
                                {Column::EFFPERI, "6.000"},
                                {Column::GRATEPERI, "9.000"}}));
}

TEST_F(Pick, OfAnUnreadableLengthStillWorksBackTheArea) {
    pick(named("frmCCGS"), "E9\t-\t2.000\t50\t1.000\t2.500\t6.000");
    EXPECT_EQ(open_inlet.text(Column::GRATEAREA), "5.000");
    EXPECT_EQ(open_inlet.text(Column::GRATEPERI), before(Column::GRATEPERI));
}

// How a row is split and trimmed

TEST_F(Pick, FromTheGrateTablesTrimsBothEndsOfAField) {
    pick(named("frmGIG"), "   V-1  \t 3.396 \t  3.083\t0  \t3.083");
    EXPECT_EQ(changed(), (Texts{{Column::INLET_SUBTYPE, "V-1"},
                                {Column::INLETLENGTH, "3.396"},
                                {Column::GRATEWIDTH, "3.083"},
                                {Column::GRATEPERCLOG, "0"}}));
}

TEST_F(Pick, FromTheOtherTablesTrimsTheRightEndAlone) {
    for (const std::string_view name :
         {"frmCIG", "frmCIS", "frmCCGG", "frmCCGS", "frmDitchInletCG", "frmDitchInletSU"}) {
        pick(named(name), "  A B  \t 7 \t 8 ");
        EXPECT_EQ(open_inlet.text(Column::INLET_SUBTYPE), "  A B") << name;
        EXPECT_EQ(open_inlet.text(Column::INLETLENGTH), name.substr(0, 5) == "frmCI" ? " 8" : " 7") << name;
    }
}

TEST_F(Pick, OfAFieldOfBlanksWritesAnEmptyText) {
    pick(named("frmCIG"), "S9\t  \t1.00\t1.00");
    EXPECT_EQ(open_inlet.text(Column::GRATEPERCLOG), "");
    EXPECT_EQ(open_inlet.text(Column::INLETLENGTH), "1.00");
}

TEST_F(Pick, OfAShortRowWritesTheFieldsThatItHas) {
    pick(named("frmGIS"), "PR(Curb)\t3.438");
    EXPECT_EQ(changed(), (Texts{{Column::INLET_SUBTYPE, "PR(Curb)"},
                                {Column::CURBOPTION, "With Curb"},
                                {Column::INLETLENGTH, "3.438"}}));
}

TEST_F(Pick, OfALongRowPutsAllThatIsLeftIntoTheLastField) {
    pick(named("frmDitchInletCG"), "X\t1\t2\t3\t4\t5\t");
    EXPECT_EQ(open_inlet.text(Column::GRATEAREA), "3");
    EXPECT_EQ(open_inlet.text(Column::GRATEPERI), "4\t5\t");
}

TEST_F(Pick, InAMetricProjectWritesFeetAsTheyStand) {
    picked("frmGIS", "V-2", "50");
    const Texts english = changed();
    open_inlet = {};
    for (const Column column : engine::all_columns) {
        open_inlet.load(column, before(column));
    }
    engine::UnitSystem = "METRIC";
    EXPECT_EQ(picked("frmGIS", "V-2", "50"), english);
    EXPECT_EQ(open_inlet.text(Column::INLETLENGTH), "5.375");
}

TEST_F(Pick, TellsTheFirstChangeOfTheInletOnce) {
    static int told = 0;
    told = 0;
    open_inlet.on_first_change = [] { ++told; };
    picked("frmGIS", "V-1", "0");
    EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace gullymark::catalogue
