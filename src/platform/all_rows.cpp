#include "platform/all_rows.h"

#include <utility>

#include "platform/database_sqlite.h"
#include "platform/failure.h"

namespace gullymark::platform {
namespace {

bool has_row(Statement& query, sqlite3* file) {
    try {
        return query.step();
    } catch (const Failure&) {
        if ((sqlite3_errcode(file) & 0xff) == SQLITE_TOOBIG) {
            throw Failure("the file holds a text that is too long for a project");
        }
        throw;
    }
}

}  // namespace

void read_all_rows(const Connection& connection, const std::string& statement,
                   const std::function<void(const std::vector<std::string>& columns, Row row)>& take) {
    if (!connection.is_open()) {
        throw Failure(no_file_is_open);
    }
    refuse_comments(statement);
    Statement query(connection.handle()->file, statement);
    if (query.column_count() == 0) {
        throw Failure("the statement returns no rows");
    }
    std::vector<std::string> columns;
    for (int column = 0; column < query.column_count(); ++column) {
        columns.emplace_back(sqlite3_column_name(query.get(), column));
    }
    while (has_row(query, connection.handle()->file)) {
        const CallersTime not_counted;
        Row row;
        row.reserve(columns.size());
        for (int column = 0; column < query.column_count(); ++column) {
            row.push_back(query.text(column));
        }
        take(columns, std::move(row));
    }
}

}  // namespace gullymark::platform
