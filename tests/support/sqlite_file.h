#pragma once

#include <sqlite3.h>

#include <stdexcept>
#include <string>

/// A database file looked at and changed past the adapter, as the command line tool would.
namespace gullymark::testing_support {

/// The rows that the statements give: columns joined by "|", rows by a line break, nulls as "NULL".
inline std::string run_sql(const std::string& path, const std::string& statements) {
    sqlite3* file = nullptr;
    std::string rows;
    const auto add_row = [](void* target, int count, char** values, char** /*names*/) {
        auto& text = *static_cast<std::string*>(target);
        text += text.empty() ? "" : "\n";
        for (int column = 0; column < count; ++column) {
            text += column == 0 ? "" : "|";
            text += values[column] == nullptr ? "NULL" : values[column];
        }
        return 0;
    };
    std::string failure;
    if (sqlite3_open(path.c_str(), &file) != SQLITE_OK ||
        sqlite3_exec(file, "PRAGMA synchronous = OFF", nullptr, nullptr, nullptr) != SQLITE_OK ||
        sqlite3_exec(file, statements.c_str(), add_row, &rows, nullptr) != SQLITE_OK) {
        failure = sqlite3_errmsg(file);
    }
    sqlite3_close(file);
    if (!failure.empty()) {
        throw std::runtime_error(failure);
    }
    return rows;
}

/// Tables of the shape of a project's, with few columns, and the mark of a project file.
inline constexpr const char* small_project =
    "PRAGMA application_id = 1196247857;"
    "CREATE TABLE PROJECT (PROJECT_ID TEXT(20), PRODUCT_NAME TEXT(20) DEFAULT 'GULLYMARKAL', UNITS TEXT(10));"
    "CREATE TABLE INLET (INLET_NUMBER TEXT(20), STATION TEXT(20), OFFSET TEXT(10), PREINLET1 TEXT(20));";

}  // namespace gullymark::testing_support
