#pragma once

#include <map>
#include <string>
#include <vector>

#include "support/outside_double.h"
#include "support/sqlite_file.h"

/// Project files made past the program.
namespace gullymark::testing_support {

/// An empty project: a file like the template.
inline void make_project_file(const std::string& path) {
    run_sql(path, read_file(GULLYMARK_SOURCE_DIR "/resources/GullymarkAL10.sql"));
}

/// Rows of INLET with these columns; the others are null.
inline void put_inlets(const std::string& path, const std::vector<std::map<std::string, std::string>>& rows) {
    for (const auto& row : rows) {
        std::string columns;
        std::string values;
        for (const auto& [column, value] : row) {
            columns += (columns.empty() ? "" : ", ") + column;
            values += (values.empty() ? "'" : ", '") + value + "'";
        }
        run_sql(path, "INSERT INTO INLET (" + columns + ") VALUES (" + values + ")");
    }
}

}  // namespace gullymark::testing_support
