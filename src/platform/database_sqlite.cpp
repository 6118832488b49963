#include "platform/database_sqlite.h"

#include <chrono>
#include <ctime>

#include "platform/characters.h"
#include "platform/database_statements.h"
#include "platform/failure.h"

namespace gullymark::platform {
namespace {

/// The processor's time that this thread has used.
std::chrono::nanoseconds time_used() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
}

/// When the statement that runs began, later by what its caller has used: one runs at a time.
thread_local std::chrono::nanoseconds statement_began{};

/// In the engine's words, which may hold a name from the file, of any length.
Failure failure_of(sqlite3* file) {
    constexpr std::size_t shown = 300;
    if ((sqlite3_errcode(file) & 0xff) == SQLITE_INTERRUPT) {
        return Failure("the file cannot be read: it is damaged, or too large for a project");
    }
    return Failure(first_characters(sqlite3_errmsg(file), shown));
}

}  // namespace

void DatabaseHandle::close() {
    sqlite3_close(file);
    file = nullptr;
}

void DatabaseHandle::limit_time(std::chrono::milliseconds most) {
    constexpr int steps_between = 1000;
    most_time_ = most;
    sqlite3_progress_handler(file, steps_between, is_out_of_time, this);
}

int DatabaseHandle::is_out_of_time(void* handle) {
    auto& self = *static_cast<DatabaseHandle*>(handle);
    self.out_of_time_ = self.out_of_time_ || time_used() - statement_began > self.most_time_;
    return self.out_of_time_ ? 1 : 0;
}

CallersTime::CallersTime() : began_(time_used()) {}

CallersTime::~CallersTime() {
    statement_began += time_used() - began_;
}

Statement::Statement(sqlite3* file, std::string_view text) : file_(file) {
    statement_began = time_used();
    const char* tail = nullptr;
    if (sqlite3_prepare_v2(file, text.data(), static_cast<int>(text.size()), &statement_, &tail) !=
        SQLITE_OK) {
        throw failure_of(file);
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
        throw failure_of(file_);
    }
}

bool Statement::step() {
    const int result = sqlite3_step(statement_);
    if (result != SQLITE_ROW && result != SQLITE_DONE) {
        throw failure_of(file_);
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
        if (sqlite3_column_type(statement_, column) != SQLITE_NULL) {
            throw failure_of(file_);
        }
        return std::nullopt;
    }
    return std::string(bytes, bytes + sqlite3_column_bytes(statement_, column));
}

Transaction::~Transaction() {
    if (is_under_way()) {
        sqlite3_exec(file_, "ROLLBACK", nullptr, nullptr, nullptr);
    }
}

void Transaction::commit() {
    if (is_under_way()) {
        Statement(file_, "COMMIT").run();
    }
}

void refuse_comments(std::string_view statement) {
    if (has_comment(statement)) {
        throw Failure("-- and /* cannot stand in a statement outside of quote marks");
    }
}

std::string_view Statement::text_view(int column) const {
    const unsigned char* bytes = sqlite3_column_text(statement_, column);
    const int size = sqlite3_column_bytes(statement_, column);
    return bytes == nullptr
               ? std::string_view()
               : std::string_view(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size));
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
