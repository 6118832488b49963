#pragma once

#include <sqlite3.h>

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What the two parts of the database adapter share: the open file, one prepared statement, failures.
namespace gullymark::platform {

/// Marks a project file of this product in the header of the file: "GMK1". The template carries it, so every copy does.
inline constexpr std::int64_t project_application_id = 0x474D4B31;

/// What an open tells of a file that is a database, but of another program, or empty.
inline constexpr const char* not_a_project = "this is not a Gullymark project file";

using Keys = std::vector<std::int64_t>;

/// The keys that a query gave, and what stood in the file then.
struct KeysRead {
    std::string query;
    std::int64_t foreign_commits = 0;
    std::int64_t own_changes = 0;
    std::shared_ptr<const Keys> keys;
};

/// The open file. Row sets share it with their connection, which sets it to null when it closes.
struct DatabaseHandle {
    sqlite3* file = nullptr;

    DatabaseHandle() = default;
    ~DatabaseHandle() { close(); }
    DatabaseHandle(const DatabaseHandle&) = delete;
    DatabaseHandle& operator=(const DatabaseHandle&) = delete;
    DatabaseHandle(DatabaseHandle&&) = delete;
    DatabaseHandle& operator=(DatabaseHandle&&) = delete;

    /// Closes the file, if it is open; the row sets that share it fail from then on.
    void close();

    // The longest statement on 100,000 inlets, the check, needs a seventh of it.
    static constexpr std::chrono::milliseconds most_time{1500};
    static constexpr std::chrono::milliseconds most_time_when_damaged{250};
    /// From here on each statement may use so much of the processor; one that needs more fails, and all after it do: in a
    /// damaged or crafted file a statement may never end.
    void limit_time(std::chrono::milliseconds most = most_time);

    /// The keys of the rows, in the order of `query`. Sets of the same rows share them until the file changes: a
    /// workspace reads them for three views, and several times at a save.
    [[nodiscard]] std::shared_ptr<const Keys> keys_of(const std::string& query);

  private:
    static int is_out_of_time(void* handle);

    KeysRead last_read_;
    std::chrono::milliseconds most_time_ = most_time;
    bool out_of_time_ = false;
};

/// As long as it stands, its time is not that of the statement: what is done with a row may take longer than finding it.
class CallersTime {
  public:
    CallersTime();
    ~CallersTime();
    CallersTime(const CallersTime&) = delete;
    CallersTime& operator=(const CallersTime&) = delete;
    CallersTime(CallersTime&&) = delete;
    CallersTime& operator=(CallersTime&&) = delete;

  private:
    std::chrono::nanoseconds began_;
};

/// One statement for as long as it runs. It never outlives a call: an open one would hold a lock on the file and
/// keep every other connection from storing.
class Statement {
  public:
    /// Fails on a faulty statement, on none, and on text behind its end.
    Statement(sqlite3* file, std::string_view text);
    ~Statement() { sqlite3_finalize(statement_); }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    Statement(Statement&&) = delete;
    Statement& operator=(Statement&&) = delete;

    /// Parameters count from 1.
    void bind(int parameter, std::int64_t key);
    /// A null for no text.
    void bind(int parameter, const std::optional<std::string>& text);

    /// True when there is a row to look at, false at the end.
    bool step();
    /// Steps through all of it, rows or none.
    void run();

    /// How many columns a row has, 0 where the statement gives no rows. Columns count from 0.
    [[nodiscard]] int column_count() const { return sqlite3_column_count(statement_); }
    /// Of the row that `step` stands on; nothing for a null.
    [[nodiscard]] std::optional<std::string> text(int column) const;
    /// The same, valid until the next step; empty for a null.
    [[nodiscard]] std::string_view text_view(int column) const;
    /// The same as a whole number; 0 for a null and for a text that is none.
    [[nodiscard]] std::int64_t integer(int column) const { return sqlite3_column_int64(statement_, column); }

    /// The engine's own statement, for what this class does not offer; it belongs to this object.
    [[nodiscard]] sqlite3_stmt* get() const { return statement_; }

  private:
    sqlite3* file_;
    sqlite3_stmt* statement_ = nullptr;
};

/// All or nothing of several statements: rolled back unless it is committed.
class Transaction {
  public:
    explicit Transaction(sqlite3* file) : file_(file) { Statement(file_, "BEGIN IMMEDIATE").run(); }
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    Transaction(Transaction&&) = delete;
    Transaction& operator=(Transaction&&) = delete;

    /// Stores them all. A failure leaves the end to the destructor.
    void commit();

    /// False once a failure has rolled it back.
    [[nodiscard]] bool is_under_way() const { return sqlite3_get_autocommit(file_) == 0; }

  private:
    sqlite3* file_;
};

/// A failure for a statement from outside that has a comment in it.
void refuse_comments(std::string_view statement);

/// The number in the first column of the first row that a statement gives; 0 when it gives none.
std::int64_t read_integer(sqlite3* file, std::string_view statement);

/// The first column of all rows that are left, in order.
Keys read_keys(Statement& query);

/// `name` between double quotes, as a statement takes any name.
std::string quoted_name(std::string_view name);

}  // namespace gullymark::platform
