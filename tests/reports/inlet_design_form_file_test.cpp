#include "reports/inlet_design_form.h"

#include "reports/design_form_fixture.h"

namespace gullymark::reports {
namespace {

using platform::Box;
using platform::BoxKind;
using testing_support::read_file;
using testing_support::run_sql;
using testing_support::write_file;

TEST_F(DesignForm, AProjectWithoutInletsIsTold) {
    InletDesignForm(0);
    EXPECT_EQ(outside.boxes,
              (std::vector<Box>{
                  {BoxKind::information, "No Inlets to Display in Inlet Summary Sheet!", "GullymarkAL"}}));
    EXPECT_TRUE(outside.requests.empty());
}

TEST_F(DesignForm, TheDialogAsksForTheFormsName) {
    InletDesignForm(1);
    ASSERT_EQ(outside.requests.size(), 1U);
    const auto& request = outside.requests[0];
    EXPECT_TRUE(request.saving);
    EXPECT_EQ(request.file_name, "");
    EXPECT_EQ(request.filter, "Inlet Design Form files (*.xls)|*.xls");
    EXPECT_EQ(request.title, "Enter New File Name for Inlet Design Form");
    EXPECT_EQ(request.initial_folder, program.path());
}

TEST_F(DesignForm, ACopyOfTheTemplateIsShownOnItsActiveSheetAndTheWorkingFolderStays) {
    store::session.workingDirectory = program.path();
    InletDesignForm(1);
    EXPECT_EQ(read_file(target), "form template");
    EXPECT_EQ(spreadsheet.opened, std::vector{target});
    EXPECT_EQ(spreadsheet.shown, std::vector{target});
    EXPECT_EQ(spreadsheet.file.sheet, platform::SheetChoice::active);
    EXPECT_EQ(outside.wait_pointers, (std::vector{true, false}));
    EXPECT_EQ(store::session.workingDirectory, program.path());
}

TEST_F(DesignForm, ACopyThatFailsIsFilledAsANewWorkbookWithoutABox) {
    add("1", on_grade);
    std::filesystem::create_directory(target);
    InletDesignForm(1);
    EXPECT_EQ(spreadsheet.shown, std::vector{"new from " + program.path("INLETDESIGNFORMAL.xlr")});
    EXPECT_EQ(at(15, 1), CellValue(1.0));
    EXPECT_TRUE(outside.boxes.empty());
}

TEST_F(DesignForm, IsNeverCopiedOverTheOpenProject) {
    add("1", on_grade);
    outside.choices = {project};
    outside.answers = {platform::Answer::yes};
    InletDesignForm(1);
    EXPECT_EQ(spreadsheet.shown, std::vector{"new from " + program.path("INLETDESIGNFORMAL.xlr")});
    EXPECT_EQ(run_sql(project, "SELECT count(*) FROM INLET"), "1");
    EXPECT_EQ(at(15, 1), CellValue(1.0));
}

TEST_F(DesignForm, TheRowsOfASumpStayOnOnePageAndTheHeadingInSight) {
    add("1", on_grade);
    add("2", in_sump);
    add("3", in_sump);
    InletDesignForm(3);
    ASSERT_EQ(spreadsheet.kept_rows.size(), 2U);
    EXPECT_EQ(spreadsheet.kept_rows[0].first, 16);
    EXPECT_EQ(spreadsheet.kept_rows[0].last, 18);
    EXPECT_EQ(spreadsheet.kept_rows[1].first, 19);
    EXPECT_EQ(spreadsheet.file.frozen_rows, 14);
    EXPECT_EQ(spreadsheet.file.frozen_columns, 2);
}

TEST_F(DesignForm, ACancelEndsWithAWarning) {
    outside.choices.clear();
    platform::printDlg.cancel_is_error = true;
    InletDesignForm(1);
    EXPECT_EQ(outside.boxes, (std::vector<Box>{{BoxKind::warning, "No File Name selected!", "GullymarkAL"}}));
    EXPECT_TRUE(spreadsheet.opened.empty());
}

TEST_F(DesignForm, AFileThatExistsIsKeptOnNo) {
    write_file(target, "old form");
    InletDesignForm(1);
    EXPECT_EQ(
        outside.boxes,
        (std::vector<Box>{{BoxKind::warning_question, "File Already Exists!   Overwrite?", "GullymarkAL"}}));
    EXPECT_EQ(read_file(target), "old form");
    EXPECT_TRUE(spreadsheet.opened.empty());
}

TEST_F(DesignForm, WithoutAnOpenProjectTheHeaderAloneIsWritten) {
    store::project_store = {};
    InletDesignForm(1);
    EXPECT_EQ(spreadsheet.cells.size(), 5U);
    EXPECT_TRUE(outside.boxes.empty());
}

TEST_F(DesignForm, AnInletDeletedMeanwhileIsPassedOver) {
    add("1", on_grade);
    add("2", on_grade);
    add("3", on_grade);
    platform::outside.choose_file = [this](const platform::FileDialogRequest& /*request*/) {
        run_sql(project, "DELETE FROM INLET WHERE INLET_NUMBER = '2'");
        return target;
    };
    InletDesignForm(3);
    EXPECT_EQ(at(15, 1), CellValue(1.0));
    EXPECT_EQ(at(16, 1), CellValue(3.0));
    EXPECT_EQ(at(17, 1), nothing);
}

TEST_F(DesignForm, NothingIsShownWhileAnotherProgramKeepsTheInletsFromBeingRead) {
    add("1", on_grade);
    add("2", on_grade);
    sqlite3* other = nullptr;
    sqlite3_open(project.c_str(), &other);
    platform::outside.choose_file = [&](const platform::FileDialogRequest& /*request*/) {
        sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
        return target;
    };
    InletDesignForm(2);
    EXPECT_TRUE(spreadsheet.opened.empty());
    EXPECT_FALSE(std::filesystem::exists(target));
    sqlite3_close(other);
    InletDesignForm(2);
    EXPECT_EQ(at(16, 1), CellValue(2.0));
}

TEST_F(DesignForm, InletsThatCouldNotBeReadAtFirstAreReadBehindTheDialog) {
    add("1", on_grade);
    sqlite3* other = nullptr;
    sqlite3_open(project.c_str(), &other);
    sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    platform::outside.choose_file = [&](const platform::FileDialogRequest& /*request*/) {
        sqlite3_close(other);
        return target;
    };
    InletDesignForm(1);
    EXPECT_EQ(at(15, 1), CellValue(1.0));
}

TEST_F(DesignForm, WithoutASpreadsheetTheCopyIsMadeAndNothingIsShown) {
    add("O''Neil", on_grade);
    platform::spreadsheet = {};
    InletDesignForm(1);
    EXPECT_EQ(read_file(target), "form template");
    EXPECT_TRUE(outside.boxes.empty());
    EXPECT_EQ(outside.wait_pointers, (std::vector{true, false}));
}

}  // namespace
}  // namespace gullymark::reports
