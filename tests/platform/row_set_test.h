#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/database.h"
#include "platform/row_set.h"
#include "support/failure_text.h"
#include "support/outside_double.h"
#include "support/sqlite_file.h"

/// For the tests of row sets alone.
namespace gullymark::row_set_test {

using platform::Connection;
using platform::Row;
using platform::RowSet;
using testing_support::failure_text;
using testing_support::run_sql;
using testing_support::small_project;
using testing_support::TempFolder;
using Texts = std::vector<std::string>;

inline constexpr const char* all_inlets = "SELECT * FROM INLET ORDER BY INLET_NUMBER";

/// Three inlets, stored in another order than that of their numbers: "1", "10", "2".
struct RowSetTest : testing::Test {
    TempFolder folder;
    std::string path = folder.path("road.gmk");
    Connection connection;
    RowSet inlets;

    RowSetTest() {
        run_sql(path, std::string(small_project) +
                          "INSERT INTO INLET VALUES ('2', '2+00', NULL, '10'), ('10', '10+00', '', '1'),"
                          "('1', '1+00', '-12.5', NULL)");
        connection.open(path);
        inlets.open(connection, all_inlets);
    }
    [[nodiscard]] std::string query(const std::string& statement) const { return run_sql(path, statement); }
    [[nodiscard]] std::string number() const { return inlets.value("INLET_NUMBER").value_or("NULL"); }
};

}  // namespace gullymark::row_set_test
