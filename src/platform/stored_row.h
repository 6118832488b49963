#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/database_sqlite.h"
#include "platform/text_rows.h"

/// One row of a table in the file, by its key. Each of these is one statement, carried out whole or not at all.
namespace gullymark::platform {

/// What a statement's list stands for: the names that the row set shows, and the columns of the table behind them.
struct Source {
    std::string table;
    std::vector<std::string> columns;
    std::vector<std::string> names;
};

/// Nothing when the row is not in the file.
std::optional<Row> read_row(sqlite3* file, const Source& source, std::int64_t key);

/// Columns that are null take the table's defaults. Without a key the engine gives one, `sqlite3_last_insert_rowid`.
void insert_row(sqlite3* file, const Source& source, const Row& values,
                std::optional<std::int64_t> key = std::nullopt);

/// Deletes it only if it has these texts, nulls not looked at; true when it did.
bool delete_row(sqlite3* file, const Source& source, std::int64_t key, const Row& values);

/// Writes the columns in which `to` differs from `from`, only over `from`: another program may have stored another text
/// meanwhile, or deleted the row and given its key to a new one, which the first column tells apart. False when it did not.
bool replace_row(sqlite3* file, const Source& source, std::int64_t key, const Row& from, const Row& to);

}  // namespace gullymark::platform
