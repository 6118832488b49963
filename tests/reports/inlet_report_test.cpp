#include "reports/inlet_report.h"

#include <algorithm>
#include <filesystem>

#include "reports/cell_table.h"
#include "reports/report_fixture.h"

namespace gullymark::reports {
namespace {

using platform::Box;
using platform::BoxKind;
using testing_support::read_file;
using testing_support::write_file;

struct InletReport : ReportFixture {
    /// Fills a report of one inlet.
    void print(const engine::InletRecord& inlet) {
        outside.choices = {target};
        std::filesystem::remove(target);
        spreadsheet.cells.clear();
        inlet_report(1, inlet);
    }
};

// What stands in the cells.

struct CellMap : InletReport, testing::WithParamInterface<std::string> {
    /// Every cell as the table tells it, and no other cell written.
    void expect_cells_of_table(const engine::InletRecord& inlet, const std::string& kind) const {
        const auto& heading = cell_table().columns;
        const auto index =
            static_cast<std::size_t>(std::find(heading.begin(), heading.end(), kind) - heading.begin());
        std::size_t written = 0;
        for (const auto& row : cell_table().rows) {
            const auto cell = position(row[0]);
            EXPECT_EQ(at(cell.row, cell.column), source_value(inlet, row[index])) << kind << ' ' << row[0];
            written += row[index].empty() ? 0U : 1U;
        }
        EXPECT_EQ(spreadsheet.cells.size(), written);
    }
};

TEST_P(CellMap, EveryCellOfEveryKindHoldsWhatItsTableTells) {
    store::session.projectUnits = GetParam();
    for (std::size_t kind = 1; kind < cell_table().columns.size(); ++kind) {
        const std::string& name = cell_table().columns[kind];
        const engine::InletRecord inlet = full_inlet_of_kind(name);
        print(inlet);
        expect_cells_of_table(inlet, name);
    }
}
INSTANTIATE_TEST_SUITE_P(Units, CellMap, testing::Values("ENGLISH", "METRIC"));

TEST_F(InletReport, TextsThatAreNoNumbersStandAsTheyAreAndNothingIsComputedFromThem) {
    for (std::size_t kind = 1; kind < cell_table().columns.size(); ++kind) {
        engine::InletRecord inlet = inlet_of_kind(cell_table().columns[kind]);
        for (const Column column : engine::all_columns) {
            if (inlet.is_null(column)) {
                inlet.load(column, "=" + std::string(engine::column_name(column)));
            }
        }
        print(inlet);
        for (const auto& row : cell_table().rows) {
            const auto cell = position(row[0]);
            std::string source = row[kind];
            if (source == "INLETLENGTH + OPENLEN_GRATE") {
                source = "INLETLENGTH";  // what stood there before the total
            }
            const bool computed = source.find_first_of("*+") != std::string::npos;
            EXPECT_EQ(at(cell.row, cell.column), computed ? nothing : source_value(inlet, source)) << row[0];
        }
    }
}

TEST_F(InletReport, AnUnknownTypeIsPrintedAsARoadInletAndAnUnknownLocationAsOnGrade) {
    engine::InletRecord inlet = inlet_of_kind("Spillway", "sump");
    inlet.load(Column::PAVXSLOPE, "0.02");
    inlet.load(Column::DEPXSLOPE, "0.0625");
    inlet.load(Column::DSBH, "0.4");
    inlet.load(Column::GUTTERSPREAD, "7");
    print(inlet);
    EXPECT_EQ(at(24, 6), CellValue(0.02));
    EXPECT_EQ(at(33, 6), CellValue(0.0625));
    EXPECT_EQ(at(42, 10), CellValue(0.4));
    EXPECT_EQ(at(33, 10), nothing);
    EXPECT_EQ(at(15, 6), nothing);
}

TEST_F(InletReport, ANullClearsItsCellAndAnUnwrittenCellStaysAsInTheTemplate) {
    spreadsheet.content.cells = {{{8, 2}, "number"s}, {{9, 2}, "type"s}, {{33, 10}, "as drawn"s}};
    print({});
    EXPECT_EQ(at(8, 2), nothing);
    EXPECT_EQ(at(9, 2), nothing);
    EXPECT_EQ(at(33, 10), CellValue("as drawn"s));
}

TEST_F(InletReport, TheDecimalsAreTheTemplatesUnlessTheCellIsAText) {
    engine::InletRecord inlet;
    inlet.load(Column::INLET_NUMBER, "10.0");
    inlet.load(Column::RUNOFF_AREA, "1.50");
    print(inlet);
    EXPECT_EQ(at(8, 2), CellValue(10.0));
    EXPECT_EQ(at(16, 5), CellValue(1.5));
    spreadsheet.content.text_cells = {{{8, 2}, {8, 2}}};
    print(inlet);
    EXPECT_EQ(at(8, 2), CellValue("10.0"s));
    EXPECT_EQ(at(16, 5), CellValue(1.5));
}

TEST_F(InletReport, TextsThatASpreadsheetCouldTakeForMoreStayTexts) {
    for (const std::string text :
         {"=1+1", "=HYPERLINK(\"http://example.com\")", "0123", "1/2", "-", "1e5", "+5"}) {
        engine::InletRecord inlet = inlet_of_kind("Curb Inlet", "CONTINUOUS GRADE");
        inlet.load(Column::ROADWAY, text);
        inlet.load(Column::TOTAL_DISCHARGE, text);
        print(inlet);
        EXPECT_EQ(at(8, 4), CellValue(text));
        EXPECT_EQ(at(19, 10), CellValue(text));
    }
}

TEST_F(InletReport, ATextIsComputedWithWhereItReadsAsANumber) {
    engine::InletRecord inlet;
    inlet.load(Column::RUNOFF_AREA, "010");
    inlet.load(Column::RUNOFF_COEFF, "5e-1");
    print(inlet);
    EXPECT_EQ(at(16, 5), CellValue("010"s));
    EXPECT_EQ(at(18, 5), CellValue(5.0));
}

TEST_F(InletReport, TheTotalLengthOfACombinationOnGradeAddsTheTwoLengths) {
    engine::InletRecord inlet = inlet_of_kind(combination, "CONTINUOUS GRADE");
    inlet.load(Column::INLETLENGTH, "3.5");
    inlet.load(Column::OPENLEN_GRATE, "4.25");
    print(inlet);
    EXPECT_EQ(at(10, 2), CellValue(7.75));
    inlet.load(Column::OPENLEN_GRATE, "");
    print(inlet);
    EXPECT_EQ(at(10, 2), CellValue(3.5));
    inlet.load(Column::OPENLEN_GRATE, "none");
    inlet.load(Column::INLETLENGTH, "3.5 ft");
    print(inlet);
    EXPECT_EQ(at(10, 2), CellValue("3.5 ft"s));
}

TEST_F(InletReport, ARightAreaThatIsNoNumberLeavesItsProductAndTheTotalAsTheTemplateHasThem) {
    spreadsheet.content.cells = {{{18, 6}, "product"s}, {{19, 6}, "total"s}};
    engine::InletRecord inlet = inlet_of_kind("Curb Inlet", "SUMP");
    inlet.load(Column::RUNOFF_AREA, "2");
    inlet.load(Column::RUNOFF_AREA2, "big");
    inlet.load(Column::RUNOFF_COEFF2, "0.5");
    print(inlet);
    EXPECT_EQ(at(16, 6), CellValue("big"s));
    EXPECT_EQ(at(18, 6), CellValue("product"s));
    EXPECT_EQ(at(19, 6), CellValue("total"s));
}

TEST_F(InletReport, TheTotalAreaAddsWhatTheSheetHoldsOnTheRight) {
    spreadsheet.content.cells = {{{16, 6}, 0.25}};
    engine::InletRecord inlet = inlet_of_kind("Curb Inlet", "CONTINUOUS GRADE");
    inlet.load(Column::RUNOFF_AREA, "2");
    print(inlet);
    EXPECT_EQ(at(19, 6), CellValue(2.25));
    inlet.load(Column::INLET_LOCATION, "SUMP");
    print(inlet);
    EXPECT_EQ(at(19, 6), CellValue(2.0));
}

TEST_F(InletReport, EmptyCellsCountAsZeroInAProduct) {
    print(inlet_of_kind("Curb Inlet", "SUMP"));
    EXPECT_EQ(at(18, 5), CellValue(0.0));
    EXPECT_EQ(at(18, 6), CellValue(0.0));
    EXPECT_EQ(at(19, 6), CellValue(0.0));
}

TEST_F(InletReport, AProductThatNoNumberHoldsIsLeftOut) {
    engine::InletRecord inlet;
    inlet.load(Column::RUNOFF_AREA, "1e300");
    inlet.load(Column::RUNOFF_COEFF, "1e300");
    print(inlet);
    EXPECT_EQ(at(18, 5), nothing);
    EXPECT_EQ(at(19, 6), CellValue(1e300));
}

TEST_F(InletReport, TheReportIsThatOfTheOneInletGiven) {
    engine::open_inlet = {};
    engine::open_inlet.load(Column::INLET_NUMBER, "other");
    engine::InletRecord inlet;
    inlet.load(Column::INLET_NUMBER, "this");
    inlet_report(20, inlet);
    EXPECT_EQ(at(8, 2), CellValue("this"s));
    EXPECT_EQ(spreadsheet.shown, std::vector{target});
    engine::open_inlet = {};
}

// The file and the boxes.

TEST_F(InletReport, AProjectWithoutInletsIsTold) {
    inlet_report(0, {});
    EXPECT_EQ(
        outside.boxes,
        (std::vector<Box>{{BoxKind::information, "No Inlets to display on Inlet Report!", "GullymarkAL"}}));
    EXPECT_TRUE(outside.requests.empty());
    EXPECT_TRUE(spreadsheet.opened.empty());
}

TEST_F(InletReport, TheDialogAsksForTheReportsName) {
    platform::printDlg.file_name = "old.gmk";
    inlet_report(1, {});
    ASSERT_EQ(outside.requests.size(), 1U);
    const auto& request = outside.requests[0];
    EXPECT_TRUE(request.saving);
    EXPECT_EQ(request.file_name, "");
    EXPECT_EQ(request.filter, "Inlet Report files (*.xls)|*.xls");
    EXPECT_EQ(request.title, "Enter New File Name for Inlet Report");
    EXPECT_EQ(request.initial_folder, program.path());
    EXPECT_TRUE(outside.boxes.empty());
}

TEST_F(InletReport, TheFolderChosenIsWhereTheNextDialogStarts) {
    inlet_report(1, {});
    EXPECT_EQ(store::session.workingDirectory, user.path());
    outside.choices = {user.path("next.xls")};
    inlet_report(1, {});
    EXPECT_EQ(outside.requests[1].initial_folder, user.path());
}

TEST_F(InletReport, ACopyOfTheTemplateIsOpenedFilledAndShownUnderTheWaitPointer) {
    inlet_report(1, {});
    EXPECT_EQ(read_file(target), "report template");
    EXPECT_EQ(spreadsheet.opened, std::vector{target});
    EXPECT_EQ(spreadsheet.shown, std::vector{target});
    EXPECT_EQ(spreadsheet.file.sheet, platform::SheetChoice::first);
    EXPECT_EQ(outside.wait_pointers, (std::vector{true, false}));
}

TEST_F(InletReport, ANameWithoutAnExtensionBecomesAWorkbooks) {
    outside.choices = {user.path("report")};
    inlet_report(1, {});
    EXPECT_EQ(spreadsheet.shown, std::vector{target});
}

TEST_F(InletReport, ACancelEndsWithAWarningWhetherItIsAnErrorOrNot) {
    for (const bool is_error : {false, true}) {
        platform::printDlg.cancel_is_error = is_error;
        platform::printDlg.file_name = "old.xls";
        outside.choices.clear();
        outside.boxes.clear();
        inlet_report(1, {});
        EXPECT_EQ(outside.boxes,
                  (std::vector<Box>{{BoxKind::warning, "No File Name selected!", "GullymarkAL"}}));
    }
    EXPECT_TRUE(spreadsheet.opened.empty());
    EXPECT_EQ(store::session.workingDirectory, "");
    EXPECT_TRUE(outside.wait_pointers.empty());
}

TEST_F(InletReport, TheBareFilterIsNoFileName) {
    outside.choices = {"*.xls"};
    inlet_report(1, {});
    EXPECT_EQ(outside.boxes, (std::vector<Box>{{BoxKind::warning, "No File Name selected!", "GullymarkAL"}}));
    EXPECT_TRUE(spreadsheet.opened.empty());
}

TEST_F(InletReport, AFileThatExistsIsKeptOnNo) {
    write_file(target, "old report");
    outside.answers = {platform::Answer::no};
    inlet_report(1, {});
    EXPECT_EQ(
        outside.boxes,
        (std::vector<Box>{{BoxKind::warning_question, "File Already Exists!   Overwrite?", "GullymarkAL"}}));
    EXPECT_EQ(read_file(target), "old report");
    EXPECT_TRUE(spreadsheet.opened.empty());
    EXPECT_EQ(store::session.workingDirectory, "");
}

TEST_F(InletReport, AfterYesTheOldReportIsABareTemplateBeforeTheSpreadsheetOpens) {
    write_file(target, "old report");
    outside.answers = {platform::Answer::yes};
    std::string found;
    platform::spreadsheet.open = [&](const platform::SheetFile& file) {
        found = read_file(file.path);
        return platform::SheetContent();
    };
    inlet_report(1, {});
    EXPECT_EQ(found, "report template");
}

TEST_F(InletReport, WithoutASpreadsheetTheCopyIsMadeAndNothingIsShown) {
    platform::spreadsheet = {};
    inlet_report(1, {});
    EXPECT_EQ(read_file(target), "report template");
    EXPECT_TRUE(outside.boxes.empty());
    EXPECT_EQ(outside.wait_pointers, (std::vector{true, false}));
}

TEST_F(InletReport, ASpreadsheetThatFailsIsPassedOver) {
    for (bool* fails : {&spreadsheet.fails_to_show, &spreadsheet.fails_to_open}) {
        *fails = true;
        outside.wait_pointers.clear();
        print({});
        EXPECT_TRUE(spreadsheet.shown.empty());
        EXPECT_TRUE(outside.boxes.empty());
        EXPECT_EQ(outside.wait_pointers, (std::vector{true, false}));
    }
}

// What is never filled: an old report.

TEST_F(InletReport, ACopyThatFailsIsFilledAsANewWorkbookWithoutABox) {
    std::filesystem::create_directory(target);
    inlet_report(1, {});
    EXPECT_EQ(spreadsheet.shown, std::vector{"new from " + program.path("INLET_REPORTAL.xlr")});
    EXPECT_TRUE(outside.boxes.empty());
    EXPECT_EQ(outside.wait_pointers, (std::vector{true, false}));
}

TEST_F(InletReport, AMissingTemplateLeavesTheOldReportUnopened) {
    std::filesystem::remove(program.path("INLET_REPORTAL.xlr"));
    write_file(target, "old report");
    outside.answers = {platform::Answer::yes};
    inlet_report(1, {});
    EXPECT_EQ(read_file(target), "old report");
    EXPECT_EQ(spreadsheet.opened, std::vector{"new from " + program.path("INLET_REPORTAL.xlr")});
    EXPECT_EQ(store::session.workingDirectory, user.path());
}

TEST_F(InletReport, IsNeverCopiedOverAProject) {
    const std::string project = user.path("road.gmk");
    platform::copy_file(GULLYMARK_TEMPLATE, project);
    const std::string content = read_file(project);
    write_file(project + "-journal", "what undoes a save");
    std::filesystem::create_symlink(project, user.path("linked.xls"));
    std::filesystem::create_hard_link(project, user.path("same.xls"));
    std::filesystem::create_symlink(project + "-journal", user.path("undo.xls"));
    for (const char* name : {"road.gmk", "linked.xls", "same.xls", "undo.xls"}) {
        outside.choices = {user.path(name)};
        outside.answers = {platform::Answer::yes};
        spreadsheet.shown.clear();
        inlet_report(1, {});
        EXPECT_EQ(spreadsheet.shown, std::vector{"new from " + program.path("INLET_REPORTAL.xlr")}) << name;
        EXPECT_EQ(read_file(project), content) << name;
        EXPECT_EQ(read_file(project + "-journal"), "what undoes a save") << name;
        EXPECT_TRUE(std::filesystem::equivalent(project, user.path("same.xls")));
    }
}

TEST_F(InletReport, AFolderThatIsNotThereCountsAsNoFileName) {
    outside.choices = {user.path("missing/report.xls")};
    inlet_report(1, {});
    EXPECT_EQ(outside.boxes, (std::vector<Box>{{BoxKind::warning, "No File Name selected!", "GullymarkAL"}}));
}

}  // namespace
}  // namespace gullymark::reports
