#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "engine/inlet_record.h"
#include "platform/number_text.h"
#include "store/project_session.h"
#include "support/outside_double.h"
#include "support/spreadsheet_double.h"

namespace gullymark::reports {

using engine::Column;
using platform::CellValue;
using namespace std::string_literals;

inline constexpr platform::Date today{std::chrono::year(2010), std::chrono::May, std::chrono::day(7)};

/// A folder with both templates as the program's, a session of an English project, a user who names "report" in
/// another folder, and a spreadsheet with an empty sheet.
struct ReportFixture : testing::Test {
    testing_support::TempFolder program;
    testing_support::TempFolder user;
    testing_support::OutsideDouble outside;
    testing_support::SpreadsheetDouble spreadsheet;
    std::string target = user.path("report.xls");

    ReportFixture() {
        testing_support::write_file(program.path("INLET_REPORTAL.xlr"), "report template");
        testing_support::write_file(program.path("INLETDESIGNFORMAL.xlr"), "form template");
        platform::set_program_folder(program.path());
        platform::outside.today = [] { return today; };
        outside.choices = {target};
        store::session = {.projectId = "P-1",
                          .projectName = "Main Street",
                          .projectCounty = "MOBILE",
                          .projectState = "AL",
                          .projectDesigner = "J. Doe",
                          .projectUnits = "ENGLISH"};
    }
    ~ReportFixture() override {
        store::session = {};
        platform::set_program_folder("");
    }
    ReportFixture(const ReportFixture&) = delete;
    ReportFixture& operator=(const ReportFixture&) = delete;

    [[nodiscard]] CellValue at(int row, int column) const { return spreadsheet.at(row, column); }
};

inline const CellValue nothing;

/// A number of its own for every column: 1.5, 2.5, ...
inline std::string own_number(Column column) {
    return platform::number_text(static_cast<double>(column) + 1.5);
}

}  // namespace gullymark::reports
