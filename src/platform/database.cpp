#include "platform/database.h"

#include "platform/database_file.h"
#include "platform/database_sqlite.h"
#include "platform/database_statements.h"
#include "platform/failure.h"

namespace gullymark::platform {
namespace {

void execute_one(sqlite3* file, const std::string& statement) {
    Statement prepared(file, statement);
    if (prepared.column_count() != 0) {
        throw Failure("the statement returns rows");
    }
    prepared.run();
}

void fail_unless_sound(sqlite3* file) {
    switch (examine(file)) {
        case Soundness::sound:
            return;
        case Soundness::too_long:
            throw Failure("the file holds a text that is too long for a project");
        case Soundness::endless:
            throw Failure("the file cannot be read: it is damaged, or too large for a project");
        case Soundness::unknown:
            throw Failure(sqlite3_errmsg(file));
        default:
            throw Failure(sqlite3_errstr(SQLITE_CORRUPT));
    }
}

}  // namespace

Connection::Connection() = default;
Connection::~Connection() {
    close_handle();
}
Connection::Connection(Connection&&) noexcept = default;
Connection& Connection::operator=(Connection&& other) noexcept {
    handle_.swap(other.handle_);
    return *this;
}

/// Closes it for the row sets too, which share it.
void Connection::close_handle() {
    if (is_open()) {
        handle_->close();
    }
    handle_.reset();
}

void Connection::open(const std::string& path) {
    close_handle();
    auto handle = std::make_shared<DatabaseHandle>();
    try {
        open_project(*handle, path);
    } catch (const Failure& failure) {
        throw Failure(std::string(failure.what()) + " - " + path);
    }
    handle_ = std::move(handle);
}

void Connection::open_to_read(const std::string& path) {
    close_handle();
    auto handle = std::make_shared<DatabaseHandle>();
    try {
        read_project(*handle, path);
        fail_unless_sound(handle->file);
        Statement(handle->file, "PRAGMA query_only = ON").run();
    } catch (const Failure& failure) {
        throw Failure(std::string(failure.what()) + " - " + path);
    }
    handle_ = std::move(handle);
}

void Connection::check() {
    switch (examine(open_file())) {
        case Soundness::damaged:
            refuse_writes();
            throw Failure(std::string(sqlite3_errstr(SQLITE_CORRUPT)) + ": nothing is stored in it");
        case Soundness::too_long:
            refuse_writes();
            throw Failure("the file holds a text that is too long for a project: nothing is stored in it");
        case Soundness::endless:
            close_handle();
            throw Failure("the file cannot be read: it is damaged, or too large for a project");
        default:
            break;
    }
}

void Connection::refuse_writes() {
    Statement(open_file(), "PRAGMA query_only = ON").run();
    handle_->limit_time(DatabaseHandle::most_time_when_damaged);
}

bool Connection::refuses_writes() const {
    return is_open() && read_integer(handle_->file, "PRAGMA query_only") != 0;
}

void Connection::close() {
    if (!is_open()) {
        throw Failure(no_file_is_open);
    }
    close_handle();
}

bool Connection::is_open() const {
    return handle_ != nullptr && handle_->file != nullptr;
}

sqlite3* Connection::open_file() const {
    if (!is_open()) {
        throw Failure(no_file_is_open);
    }
    return handle_->file;
}

void Connection::execute(const std::string& statement) {
    refuse_comments(statement);
    const auto parts = split_alter(statement);
    if (parts.size() == 1) {
        execute_one(open_file(), parts.front());
        return;
    }
    // A column that cannot be added does not keep the others from it; a crash in between adds none.
    Transaction transaction(open_file());
    std::optional<Failure> first;
    for (const auto& part : parts) {
        try {
            execute_one(open_file(), part);
        } catch (const Failure& failure) {
            first = first.value_or(failure);
            if (!transaction.is_under_way()) {
                break;
            }
        }
    }
    transaction.commit();
    if (first) {
        throw Failure(*first);
    }
}

}  // namespace gullymark::platform
