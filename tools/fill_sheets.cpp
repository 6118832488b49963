// Fills both sheets with a real office, without windows, as workbooks to look at: the Inlet Report of one solved inlet
// of every kind in both unit systems, and the Inlet Design Form of 30 inlets.
//
//   fill_sheets BIN TABLE FOLDER       BIN: the folder of the program; TABLE: solved inlets, see case_table.h
//
// They become pages with  soffice --headless --convert-to pdf --outdir FOLDER FOLDER/*.xls  and the help's pictures with
// tools/draw_sheets.sh.

#include <algorithm>
#include <cctype>
#include <chrono>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

#include "platform/files.h"
#include "platform/outside.h"
#include "platform/spreadsheet_office.h"
#include "reports/inlet_design_form.h"
#include "reports/inlet_report.h"
#include "store/project_session.h"
#include "store/project_store.h"
#include "tests/support/test_office.h"
#include "tools/case_table.h"
#include "tools/project_maker.h"

namespace {

using namespace gullymark;
using engine::Column;

/// Writes one sheet as FOLDER/name.xls.
template <typename Report>
void save_sheet(const testing_support::TestOffice& office, const std::string& folder, const std::string& name,
                const Report& report) {
    platform::outside.choose_file = [&](const platform::FileDialogRequest&) {
        return office.path("sheet.xls");
    };
    platform::outside.show_box = [](const platform::Box&) { return platform::Answer::yes; };
    use_office(office.settings(folder + "/" + name + ".xls"));
    report();
}

std::string file_name(std::string words) {
    std::ranges::replace(words, ' ', '_');
    std::ranges::transform(words, words.begin(), [](unsigned char letter) { return std::tolower(letter); });
    return words;
}

void fill_reports(const testing_support::TestOffice& office, const std::string& table,
                  const std::string& folder) {
    const auto rows = cases::read_table(table);
    std::string kind_before;
    for (const auto& row : rows.rows) {
        const std::string kind = cases::cell(rows, row, "UNITS") + " " +
                                 cases::cell(rows, row, "INLET_LOCATION") + " " +
                                 cases::cell(rows, row, "INLET_TYPE");
        if (kind == kind_before) {
            continue;
        }
        kind_before = kind;
        cases::solve_row(rows, row);
        tools::describe_place(engine::open_inlet, 1);
        engine::open_inlet.load(Column::INLET_NUMBER, "I-12");
        store::session.projectUnits = cases::cell(rows, row, "UNITS");
        save_sheet(office, folder, "report_" + file_name(kind),
                   [] { reports::inlet_report(1, engine::open_inlet); });
    }
}

void fill_form(const testing_support::TestOffice& office, const std::string& bin, const std::string& table,
               const std::string& folder) {
    const std::string project = office.path("road.gmk");
    tools::make_project(bin + "/GullymarkAL10.rdb", table, project, 30);
    store::project_store.connection.open(project);
    store::session.projectUnits = "ENGLISH";
    save_sheet(office, folder, "form", [] { reports::InletDesignForm(30); });
    store::project_store = {};
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::cerr << "usage: fill_sheets BIN TABLE FOLDER\n";
        return 2;
    }
    try {
        const std::string bin = std::filesystem::absolute(argv[1]);
        const std::string table = std::filesystem::absolute(argv[2]);
        const std::string folder = std::filesystem::absolute(argv[3]);
        std::filesystem::create_directories(folder);
        platform::set_program_folder(bin);
        platform::outside.today = [] { return std::chrono::year(2024) / std::chrono::May / 7; };
        store::session = {.projectId = "STP-0012(3)",
                          .projectName = "Main Street resurfacing",
                          .projectCounty = "AUTAUGA",
                          .projectState = "AL",
                          .projectDesigner = "A. Designer"};
        const testing_support::TestOffice office(bin + "/gullymark-office");
        fill_reports(office, table, folder);
        fill_form(office, bin, table, folder);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
