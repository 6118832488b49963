#pragma once

#include <memory>
#include <string>

struct sqlite3;

/// The project file as a database: a connection, statements sent as they stand, and row sets over one table (row_set.h).
/// All values are text or null. Every failure is a Failure with the engine's own description.
///
/// The real adapter is SQLite. Statements come from a smaller dialect than SQLite's in two points, and the adapter
/// carries them out: `ALTER TABLE t ADD a TEXT(3), b TEXT(10)` adds column by column, each that can be added, and
/// `[NAME]` quotes a name. It knows no comments: `--` or `/*` outside of quote marks is a failure.
namespace gullymark::platform {

struct DatabaseHandle;

/// What is told of a connection without a file.
inline constexpr const char* no_file_is_open = "no project file is open";

class Connection {
  public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    Connection(Connection&&) noexcept;
    /// Takes the other's file; the one that was open here goes to the other and closes with it.
    Connection& operator=(Connection&&) noexcept;

    /// Opens an existing project file for reading and writing; it reads the schema at once, so that what is no
    /// project file (not a database, empty, truncated, another program's, a folder, unreadable) fails here, and one from
    /// elsewhere with what no project has: views, tables and indexes that compute something, more of them than any
    /// project needs. A read-only file, one in a read-only folder, or one with a name that leaves no room for the
    /// journal's is a failure too: nothing could be saved in it. What was saved half is undone, except from a journal
    /// that no save of this program left, which is a failure. An open that fails writes and deletes nothing.
    void open(const std::string& path);

    /// Reads an existing project file whole, as it stands at this moment, and lets go of it: what is read through this
    /// connection afterwards is of that moment, and every write fails. Nothing is written, made or deleted, not beside the
    /// file either; it is locked, for reading, only while its pages are copied. A read-only file serves, also in a
    /// read-only folder, and so do one of an old release, which stays as it is, and one of a save that was cut short:
    /// undone is that in a copy elsewhere. A failure for all else that `open` refuses, for a file that another program
    /// keeps locked, and for a damaged one.
    void open_to_read(const std::string& path);

    /// Reads all of the file. Where it is damaged this is a failure, and nothing is stored in it through this
    /// connection any more: a write could destroy what can still be read. A file that is locked right now is not judged;
    /// one of which the reading does not come to an end is closed.
    void check();
    /// From here on every write through this connection is a failure; reading goes on. Fails when it is not open.
    void refuse_writes();
    /// True while writes are refused; false when nothing is open.
    [[nodiscard]] bool refuses_writes() const;

    /// Closes the file for this connection and its row sets. Fails when no file is open.
    void close();

    /// True from a successful `open` to the close.
    [[nodiscard]] bool is_open() const;

    /// Runs one statement that returns no rows. Text after its end, or a second statement, is a failure. Of an ALTER
    /// with several columns, of which some cannot be added, the first failure.
    void execute(const std::string& statement);

    /// The open file, for the row sets of this folder; null before the first `open`.
    [[nodiscard]] const std::shared_ptr<DatabaseHandle>& handle() const { return handle_; }

  private:
    void close_handle();
    [[nodiscard]] sqlite3* open_file() const;

    std::shared_ptr<DatabaseHandle> handle_;
};

}  // namespace gullymark::platform
