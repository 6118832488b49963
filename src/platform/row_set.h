#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/text_rows.h"

namespace gullymark::platform {

class Connection;

/// The rows of one `SELECT list FROM table [WHERE ...] [ORDER BY ...]`: the keys in order, held by the client, and a
/// current position. A row is read when it is looked at and written alone, at once and whole; the current row stays
/// as it was read until the position moves. The list holds plain columns of the table, with or without aliases.
/// Every operation but `close` and `is_open` fails on a row set that is not open or whose connection was closed.
class RowSet {
  public:
    RowSet();
    ~RowSet();
    RowSet(const RowSet&) = delete;
    RowSet& operator=(const RowSet&) = delete;
    RowSet(RowSet&&) noexcept;
    RowSet& operator=(RowSet&&) noexcept;

    /// Runs the statement as it stands and goes to the first row, if there is one. On a failure the set stays as it was.
    void open(const Connection& connection, const std::string& statement);
    /// Lets go of the rows; a pending new row is dropped. A set that is not open stays so.
    void close();
    /// True from a successful `open` to `close`, also when the connection was closed meanwhile.
    [[nodiscard]] bool is_open() const;

    /// The number of rows, exact at once; a pending new row is not counted before it is saved.
    [[nodiscard]] std::size_t record_count() const;

    /// Column names as the statement gives them, aliases included.
    [[nodiscard]] const std::vector<std::string>& columns() const;

    // Position. An empty set is at its beginning and its end. A move drops a pending new row.
    [[nodiscard]] bool at_beginning() const;  // before the first row
    [[nodiscard]] bool at_end() const;        // behind the last row
    /// To the first row; an empty set has none and stays at its ends.
    void move_first();
    /// To the last row; an empty set has none and stays at its ends.
    void move_last();
    /// To the row that follows; from the last one to the end, and from there nowhere.
    void move_next();
    /// Forward (or back, when negative) by `rows` from the current position; stops at either end marker.
    void move(std::int64_t rows);
    /// Forward from the current row, it included, to the first row for which `COLUMN = 'text'` holds; at the end
    /// when there is none. The text is what stands between the first quote mark and the last, and compares exactly,
    /// case counting. Any other form of condition is a failure. A search that fails leaves the set at its end too:
    /// what reads or saves the current row after it must not come upon another row than the one searched for.
    void find(const std::string& condition);
    /// True when both were queried from one state of the file: nothing was stored in it in between.
    [[nodiscard]] bool has_same_rows(const RowSet& other) const;
    /// A mark that finds the current row again, also after `requery`.
    [[nodiscard]] std::int64_t bookmark() const;
    /// Back to a marked row. A row that is no longer in the set is a failure, and the position stays.
    void go_to(std::int64_t bookmark);

    /// The current row, in the order of `columns()`. Failure when there is none: at an end marker. A pending new row
    /// reads as nulls.
    [[nodiscard]] Row row() const;
    /// One column of it by the name in `columns()`; a name that is not there is a failure.
    [[nodiscard]] std::optional<std::string> value(std::string_view column) const;

    /// All rows in order as they stand in the file now, read at once: for lists, which show them until they read again.
    /// A row that is no longer in the file has empty texts.
    [[nodiscard]] TextRows read_texts() const;
    /// One column of all rows in order, read at once: for lists. Null for a row that is no longer in the file.
    [[nodiscard]] Row all_values(std::string_view column) const;

    /// Makes a new row pending; `save` stores it behind the last row of the set.
    void add_new();
    /// True while a new row is pending.
    [[nodiscard]] bool adding() const;
    /// Stores `values`, in the order of `columns()`, as the pending new row or into the current row, in one statement
    /// that is carried out whole or not at all. Only columns that differ from what was loaded are written; in a new
    /// row those that are null take the table's defaults. A row that is no longer in the file is a failure, and so is
    /// one whose first column, or a column to be written, another program changed since it was read here. A save that
    /// failed may have taken effect; tried again, it stores no second row and finds what itself had written.
    void save(const Row& values);
    /// Drops the pending new row and goes back to the row that was current before; nothing is written.
    void cancel();
    /// Deletes the current row alone; the position is then the row that followed. A row that is no longer in the file is
    /// a failure, and so is one whose first column another program changed since it was read here.
    void remove();
    /// Runs the statement again and goes to the first row. A pending new row is dropped.
    void requery();

  private:
    struct State;
    [[nodiscard]] State& state() const;
    std::unique_ptr<State> state_;
};

}  // namespace gullymark::platform
