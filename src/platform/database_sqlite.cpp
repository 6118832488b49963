#include "platform/database_sqlite.h"

#include "platform/database_statements.h"
#include "platform/failure.h"

namespace gullymark::platform {

void DatabaseHandle::close() {
    sqlite3_close(file);
    file = nullptr;
}

Statement::Statement(sqlite3* file, std::string_view text) : file_(file) {
    const char* tail = nullptr;
    if (sqlite3_prepare_v2(file, text.data(), static_cast<int>(text.size()), &statement_, &tail) !=
        SQLITE_OK) {
        throw Failure(sqlite3_errmsg(file));
    }
    const auto rest = text.substr(static_cast<std::size_t>(tail - text.data()));
    if (statement_ == nullptr || rest.find_first_not_of(" \t\r\n") != std::string_view::npos) {
        sqlite3_finalize(statement_);
        throw Failure(statement_ == nullptr ? "there is no statement to run"
                                            : "there is text after the end of the statement");
    }
}

void Statement::bind(int parameter, std::int64_t key) {
    sqlite3_bind_int64(statement_, parameter, key);
}

void Statement::bind(int parameter, const std::optional<std::string>& text) {
    const int result = text ? sqlite3_bind_text(statement_, parameter, text->data(),
                                                static_cast<int>(text->size()), SQLITE_TRANSIENT)
                            : sqlite3_bind_null(statement_, parameter);
    if (result != SQLITE_OK) {
        throw Failure(sqlite3_errmsg(file_));
    }
}

bool Statement::step() {
    const int result = sqlite3_step(statement_);
    if (result != SQLITE_ROW && result != SQLITE_DONE) {
        throw Failure(sqlite3_errmsg(file_));
    }
    return result == SQLITE_ROW;
}

void Statement::run() {
    while (step()) {
    }
}

std::optional<std::string> Statement::text(int column) const {
    const unsigned char* bytes = sqlite3_column_text(statement_, column);
    if (bytes == nullptr) {
        return std::nullopt;
    }
    return std::string(bytes, bytes + sqlite3_column_bytes(statement_, column));
}

void refuse_comments(std::string_view statement) {
    if (has_comment(statement)) {
        throw Failure("-- and /* cannot stand in a statement outside of quote marks");
    }
}

std::int64_t read_integer(sqlite3* file, std::string_view statement) {
    Statement query(file, statement);
    return query.step() ? query.integer(0) : 0;
}

Keys read_keys(Statement& query) {
    Keys keys;
    while (query.step()) {
        keys.push_back(query.integer(0));
    }
    return keys;
}

std::shared_ptr<const Keys> DatabaseHandle::keys_of(const std::string& query) {
    // Taken before the keys: what another program commits in between is read again the next time.
    const auto foreign_commits = read_integer(file, "PRAGMA data_version");
    const auto own_changes = sqlite3_total_changes64(file);
    const bool unchanged = last_read_.keys != nullptr && last_read_.query == query &&
                           last_read_.foreign_commits == foreign_commits &&
                           last_read_.own_changes == own_changes;
    if (!unchanged) {
        Statement rows(file, query);
        last_read_ = {query, foreign_commits, own_changes, std::make_shared<const Keys>(read_keys(rows))};
    }
    return last_read_.keys;
}

std::string quoted_name(std::string_view name) {
    std::string quoted = "\"";
    for (const char letter : name) {
        quoted += letter;
        if (letter == '"') {
            quoted += letter;
        }
    }
    return quoted + '"';
}

}  // namespace gullymark::platform
