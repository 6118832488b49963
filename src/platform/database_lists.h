#pragma once

#include <string>
#include <vector>

#include "platform/database_sqlite.h"
#include "platform/text_rows.h"

/// Many rows of a table at once, in the order of their keys. One statement reads them, so all are of one moment.
namespace gullymark::platform {

/// The texts of these columns; empty for a row that is no longer in the file.
TextRows read_texts(sqlite3* file, const std::string& table, const std::vector<std::string>& columns,
                    const Keys& keys);

/// The values of one column; null for a row that is no longer in the file.
Row read_values(sqlite3* file, const std::string& table, const std::string& column, const Keys& keys);

}  // namespace gullymark::platform
