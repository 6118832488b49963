// The table of inlets, and how a spreadsheet takes it.

#include "review/inlet_table.h"

#include "review/review_fixture.h"

namespace gullymark::review {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::StartsWith;

struct InletTableTest : ReviewTest {
    [[nodiscard]] InletTable table() const {
        return make_inlet_table(project, judge(project, limits), make_fresh_road(project));
    }
    /// The cell of an inlet under a heading.
    [[nodiscard]] static std::string cell(const InletTable& table, std::size_t row,
                                          std::string_view heading) {
        for (std::size_t column = 0; column < table.headings.size(); ++column) {
            if (table.headings[column].text == heading) {
                return table.rows.at(row).at(column);
            }
        }
        ADD_FAILURE() << "no column " << heading;
        return "";
    }
    [[nodiscard]] std::string csv_of(std::string_view number) {
        project.inlets.erase(project.inlets.begin() + 1, project.inlets.end());
        change(0, {{Column::INLET_NUMBER, number}});
        const std::string csv = as_csv(table());
        return csv.substr(csv.find("\r\n") + 2);
    }
};

TEST_F(InletTableTest, EveryInletHasARowInTheOrderOfTheFile) {
    const auto all = table();
    ASSERT_EQ(all.rows.size(), 10U);
    EXPECT_EQ(all.rows.at(0).front(), "L1");
    EXPECT_EQ(all.rows.at(sump).front(), "S1");
    for (const auto& row : all.rows) {
        EXPECT_EQ(row.size(), all.headings.size());
    }
}

TEST_F(InletTableTest, TextsAreThoseThatAreStored) {
    const auto all = table();
    EXPECT_EQ(cell(all, 0, "Bypass"), stored(0, Column::QCARRY));
    EXPECT_EQ(cell(all, sump, "Carryover right"), stored(sump, Column::CARRYOVER2));
    EXPECT_EQ(cell(all, sump, "Findings"), "");
}

TEST_F(InletTableTest, BesideWhatIsStoredStandsWhatWouldBe) {
    change(
        0,
        {{Column::RUNOFF_AREA, "0.4000"}, {Column::DISCHARGE1, "1.800"}, {Column::TOTAL_DISCHARGE, "1.800"}});
    const std::string before = stored(1, Column::TOTAL_DISCHARGE);
    const auto all = table();
    EXPECT_EQ(cell(all, 0, "Bypass"), stored(0, Column::QCARRY));
    solve(0);
    EXPECT_EQ(cell(all, 0, "Bypass up to date"), stored(0, Column::QCARRY));
    update(1);
    EXPECT_NE(stored(1, Column::TOTAL_DISCHARGE), before);
    EXPECT_EQ(cell(all, 1, "Total flow"), before);
    EXPECT_EQ(cell(all, 1, "Total flow up to date"), stored(1, Column::TOTAL_DISCHARGE));
    EXPECT_EQ(cell(all, 1, "Spread up to date"), stored(1, Column::OPENSPREAD));
}

TEST_F(InletTableTest, TheRulesThatFoundSomethingAreNamedOnce) {
    change(2, {{Column::PREINLET1, "none"}, {Column::QINT, "9.999"}, {Column::QCARRY, "9.999"}});
    EXPECT_THAT(cell(table(), 2, "Findings"), StartsWith("result-differs previous-missing"));
}

TEST_F(InletTableTest, HeadingsTellTheUnitsOfTheProject) {
    const auto first_line = [this] {
        const std::string csv = as_csv(table());
        return csv.substr(0, csv.find("\r\n"));
    };
    EXPECT_THAT(first_line(), StartsWith("Inlet,Roadway,Station,Offset (ft),Side,Type,"));
    EXPECT_THAT(first_line(), testing::HasSubstr(",Bypass (cfs),Bypass up to date (cfs),Findings"));
    project.units = "METRIC";
    EXPECT_THAT(first_line(), StartsWith("Inlet,Roadway,Station,Offset (m),"));
    EXPECT_THAT(first_line(), testing::HasSubstr(",Runoff area left (Hc),Runoff coefficient left,"));
}

TEST_F(InletTableTest, AProjectWithoutInletsHasHeadingsAlone) {
    project.inlets.clear();
    EXPECT_THAT(as_csv(table()), EndsWith("Findings\r\n"));
}

TEST_F(InletTableTest, WhatWouldPartCellsStandsInQuotes) {
    EXPECT_THAT(csv_of("a,b"), StartsWith("\"a,b\","));
    EXPECT_THAT(csv_of("a\"b"), StartsWith("\"a\"\"b\","));
    EXPECT_THAT(csv_of("a\r\nb"), StartsWith("\"a\r\nb\","));
    EXPECT_THAT(csv_of(" a b "), StartsWith(" a b ,"));
}

TEST_F(InletTableTest, ATextThatASpreadsheetWouldComputeIsATextThere) {
    EXPECT_THAT(csv_of("=1+1"), StartsWith("'=1+1,"));
    EXPECT_THAT(csv_of("+A1"), StartsWith("'+A1,"));
    EXPECT_THAT(csv_of("-A1"), StartsWith("'-A1,"));
    EXPECT_THAT(csv_of("@SUM(A1)"), StartsWith("'@SUM(A1),"));
    EXPECT_THAT(csv_of("\t=1"), StartsWith("'\t=1,"));
    EXPECT_THAT(csv_of("-12.5"), StartsWith("-12.5,"));
}

}  // namespace
}  // namespace gullymark::review
