#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "reports/inlet_design_form.h"
#include "reports/report_fixture.h"
#include "store/project_store.h"
#include "support/sqlite_file.h"

namespace gullymark::reports {

using Texts = std::map<std::string, std::string>;

inline const Texts on_grade = {{"INLET_TYPE", "Curb Inlet"}, {"INLET_LOCATION", "CONTINUOUS GRADE"}};
inline const Texts in_sump = {{"INLET_TYPE", "Curb Inlet"}, {"INLET_LOCATION", "SUMP"}};

/// A project whose inlets a test puts in, and the form of them.
struct DesignForm : ReportFixture {
    std::string project = user.path("road.gmk");

    DesignForm() {
        platform::copy_file(GULLYMARK_TEMPLATE, project);
        store::project_store = {};
        store::project_store.connection.open(project);
    }
    ~DesignForm() override { store::project_store = {}; }
    DesignForm(const DesignForm&) = delete;
    DesignForm& operator=(const DesignForm&) = delete;

    void add(const std::string& number, Texts inlet) const {
        inlet.emplace("INLET_NUMBER", number);
        std::string columns;
        std::string values;
        for (const auto& [column, text] : inlet) {
            columns += (columns.empty() ? "" : ",") + column;
            values += (values.empty() ? "'" : ",'") + text + "'";
        }
        testing_support::run_sql(project, "INSERT INTO INLET (" + columns + ") VALUES (" + values + ")");
    }

    /// Fills a form of the one inlet.
    void print(const Texts& inlet) {
        testing_support::run_sql(project, "DELETE FROM INLET");
        add("1", inlet);
        print();
    }
    void print() {
        outside.choices = {target};
        std::filesystem::remove(target);
        spreadsheet.cells.clear();
        InletDesignForm(1);
    }
};

}  // namespace gullymark::reports
