#include "platform/stored_row.h"

#include <string_view>

namespace gullymark::platform {
namespace {

/// The quoted names, each with `after` behind it, joined by commas.
std::string joined(const std::vector<std::string>& columns, std::string_view after = "") {
    std::string text;
    for (const auto& column : columns) {
        text.append(text.empty() ? "" : ",").append(quoted_name(column)).append(after);
    }
    return text;
}

/// One more condition: the column has the text of a parameter, whatever its kind in a file from elsewhere.
std::string as_text_is_parameter(const std::string& column) {
    return " AND CAST(" + quoted_name(column) + " AS TEXT) IS ?";
}

}  // namespace

std::optional<Row> read_row(sqlite3* file, const Source& source, std::int64_t key) {
    Statement query(file, "SELECT " + joined(source.columns) + " FROM " + quoted_name(source.table) +
                              " WHERE rowid = ?1");
    query.bind(1, key);
    if (!query.step()) {
        return std::nullopt;
    }
    Row row(source.columns.size());
    for (std::size_t column = 0; column < row.size(); ++column) {
        row[column] = query.text(static_cast<int>(column));
    }
    return row;
}

void insert_row(sqlite3* file, const Source& source, const Row& values, std::optional<std::int64_t> key) {
    std::vector<std::string> columns;
    std::string parameters;
    for (std::size_t column = 0; column < values.size(); ++column) {
        if (values[column]) {
            columns.push_back(source.columns[column]);
            parameters += parameters.empty() ? "?" : ",?";
        }
    }
    if (key) {
        columns.emplace_back("rowid");
        parameters += parameters.empty() ? "?" : ",?";
    }
    const std::string list =
        columns.empty() ? " DEFAULT VALUES" : " (" + joined(columns) + ") VALUES (" + parameters + ")";
    Statement statement(file, "INSERT INTO " + quoted_name(source.table) + list);
    int parameter = 0;
    for (const auto& value : values) {
        if (value) {
            statement.bind(++parameter, value);
        }
    }
    if (key) {
        statement.bind(++parameter, *key);
    }
    statement.run();
}

bool delete_row(sqlite3* file, const Source& source, std::int64_t key, const Row& values) {
    std::string as_given;
    for (std::size_t column = 0; column < values.size(); ++column) {
        as_given += values[column] ? as_text_is_parameter(source.columns[column]) : "";
    }
    Statement statement(file, "DELETE FROM " + quoted_name(source.table) + " WHERE rowid = ?" + as_given);
    int parameter = 0;
    statement.bind(++parameter, key);
    for (const auto& value : values) {
        if (value) {
            statement.bind(++parameter, value);
        }
    }
    statement.run();
    return sqlite3_changes(file) == 1;
}

bool replace_row(sqlite3* file, const Source& source, std::int64_t key, const Row& from, const Row& to) {
    std::vector<std::string> columns;
    std::vector<std::size_t> changed;
    std::string as_before = as_text_is_parameter(source.columns.front());
    for (std::size_t column = 0; column < to.size(); ++column) {
        if (to[column] != from[column]) {
            columns.push_back(source.columns[column]);
            changed.push_back(column);
            as_before += as_text_is_parameter(source.columns[column]);
        }
    }
    if (changed.empty()) {
        return read_row(file, source, key).has_value();
    }
    Statement statement(file, "UPDATE " + quoted_name(source.table) + " SET " + joined(columns, "=?") +
                                  " WHERE rowid = ?" + as_before);
    int parameter = 0;
    for (const auto column : changed) {
        statement.bind(++parameter, to[column]);
    }
    statement.bind(++parameter, key);
    statement.bind(++parameter, from.front());
    for (const auto column : changed) {
        statement.bind(++parameter, from[column]);
    }
    statement.run();
    return sqlite3_changes(file) == 1;
}

}  // namespace gullymark::platform
