#include "platform/database.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <filesystem>

#include "platform/database_sqlite.h"
#include "platform/database_statements.h"
#include "platform/failure.h"

namespace gullymark::platform {
namespace {

/// How long a call waits for another program's save to end before it fails.
constexpr int busy_milliseconds = 300;

/// The file is a designer's only copy: it is not trusted to hold statements of its own, and a save that came back is on
/// the disk whatever happens next.
void protect(sqlite3* file) {
    static constexpr std::array<std::pair<int, int>, 5> settings{{{SQLITE_DBCONFIG_DEFENSIVE, 1},
                                                                  {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
                                                                  {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
                                                                  {SQLITE_DBCONFIG_DQS_DML, 0},
                                                                  {SQLITE_DBCONFIG_DQS_DDL, 0}}};
    for (const auto& [setting, value] : settings) {
        sqlite3_db_config(file, setting, value, static_cast<int*>(nullptr));
    }
    sqlite3_limit(file, SQLITE_LIMIT_ATTACHED, 0);
    sqlite3_busy_timeout(file, busy_milliseconds);
}

/// An absolute path is nothing but a path to the engine; "" and ":memory:" would be databases of their own.
std::string absolute_path(const std::string& path) {
    std::error_code error;
    const auto absolute = std::filesystem::absolute(path, error);
    return path.empty() || error ? "/" : absolute.string();
}

/// The engine opens a read-only file without a word, and learns only at the first save that it cannot make the
/// journal beside the file.
void check_writable(sqlite3* file) {
    const std::string path = sqlite3_db_filename(file, "main");
    const std::string folder = std::filesystem::path(path).parent_path().string();
    if (sqlite3_db_readonly(file, "main") != 0) {
        throw Failure(std::string(sqlite3_errstr(SQLITE_READONLY)) + ": the file is read-only");
    }
    if (faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) != 0) {
        throw Failure(std::string(sqlite3_errstr(SQLITE_READONLY)) + ": no file can be made in its folder");
    }
}

/// Reads the schema, which is the first look into the file, and refuses what is no project file before anything is
/// written to it.
void check_project(sqlite3* file) {
    read_integer(file, "SELECT count(*) FROM sqlite_schema");
    if (read_integer(file, "PRAGMA application_id") != project_application_id) {
        throw Failure("this is not a Gullymark project file");
    }
}

/// Rolled back unless it is committed.
class Transaction {
  public:
    explicit Transaction(sqlite3* file) : file_(file) { Statement(file_, "BEGIN IMMEDIATE").run(); }
    ~Transaction() {
        if (is_under_way()) {
            sqlite3_exec(file_, "ROLLBACK", nullptr, nullptr, nullptr);
        }
    }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void commit() {
        if (is_under_way()) {
            Statement(file_, "COMMIT").run();
        }
    }

    /// False once a failure has rolled it back.
    [[nodiscard]] bool is_under_way() const { return sqlite3_get_autocommit(file_) == 0; }

  private:
    sqlite3* file_;
};

/// A file that cannot be looked at now, for another program saves into it or the memory is used up, is not judged.
bool is_sound(sqlite3* file) {
    try {
        Statement query(file, "PRAGMA integrity_check(1)");
        return query.step() && query.text(0) == "ok";
    } catch (const Failure&) {
        const int reason = sqlite3_errcode(file) & 0xff;
        return reason == SQLITE_BUSY || reason == SQLITE_NOMEM;
    }
}

void execute_one(sqlite3* file, const std::string& statement) {
    Statement prepared(file, statement);
    if (prepared.column_count() != 0) {
        throw Failure("the statement returns rows");
    }
    prepared.run();
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
    const std::string full_path = absolute_path(path);
    try {
        if (sqlite3_open_v2(full_path.c_str(), &handle->file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_EXRESCODE,
                            nullptr) != SQLITE_OK) {
            throw Failure(sqlite3_errmsg(handle->file));
        }
        protect(handle->file);
        check_project(handle->file);
        check_writable(handle->file);
        Statement(handle->file, "PRAGMA journal_mode = DELETE").run();
        Statement(handle->file, "PRAGMA synchronous = EXTRA").run();
        Statement(handle->file, "PRAGMA cell_size_check = ON").run();
    } catch (const Failure& failure) {
        throw Failure(std::string(failure.what()) + " - " + path);
    }
    handle_ = std::move(handle);
}

void Connection::check() {
    if (!is_sound(open_file())) {
        refuse_writes();
        throw Failure(std::string(sqlite3_errstr(SQLITE_CORRUPT)) + ": nothing is stored in it");
    }
}

void Connection::refuse_writes() {
    Statement(open_file(), "PRAGMA query_only = ON").run();
}

bool Connection::refuses_writes() const {
    return is_open() && read_integer(handle_->file, "PRAGMA query_only") != 0;
}

void Connection::close() {
    if (!is_open()) {
        throw Failure("the connection is not open");
    }
    close_handle();
}

bool Connection::is_open() const {
    return handle_ != nullptr && handle_->file != nullptr;
}

sqlite3* Connection::open_file() const {
    if (!is_open()) {
        throw Failure("the connection is not open");
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
