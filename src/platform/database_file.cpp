#include "platform/database_file.h"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <utility>

#include "platform/characters.h"
#include "platform/database_guard.h"
#include "platform/database_journal.h"
#include "platform/database_look.h"
#include "platform/database_statements.h"
#include "platform/failure.h"
#include "platform/file_marks.h"

namespace gullymark::platform {
namespace {

/// How long a call waits for another program's save to end before it fails.
constexpr int busy_milliseconds = 300;

// Far beyond any project, and what a file from elsewhere may cost.
constexpr int most_bytes_of_a_row = 100'000;
constexpr int most_columns = 500;
constexpr int most_tables_and_indexes = 100;
constexpr int most_nesting = 100;

/// The file is a designer's only copy: it is not trusted to hold statements of its own, and a save that came back is on
/// the disk whatever happens next.
void protect(sqlite3* file) {
    static constexpr std::array<std::pair<int, int>, 7> settings{{{SQLITE_DBCONFIG_DEFENSIVE, 1},
                                                                  {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
                                                                  {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
                                                                  {SQLITE_DBCONFIG_ENABLE_VIEW, 0},
                                                                  {SQLITE_DBCONFIG_ENABLE_FKEY, 0},
                                                                  {SQLITE_DBCONFIG_DQS_DML, 0},
                                                                  {SQLITE_DBCONFIG_DQS_DDL, 0}}};
    static constexpr std::array<std::pair<int, int>, 5> limits{
        {{SQLITE_LIMIT_ATTACHED, 0},
         {SQLITE_LIMIT_LENGTH, most_bytes_of_a_row},
         {SQLITE_LIMIT_SQL_LENGTH, most_bytes_of_a_row},
         {SQLITE_LIMIT_COLUMN, most_columns},
         {SQLITE_LIMIT_EXPR_DEPTH, most_nesting}}};
    for (const auto& [setting, value] : settings) {
        sqlite3_db_config(file, setting, value, static_cast<int*>(nullptr));
    }
    for (const auto& [limit, value] : limits) {
        sqlite3_limit(file, limit, value);
    }
    sqlite3_busy_timeout(file, busy_milliseconds);
}

void check_schema(sqlite3* file) {
    constexpr std::size_t shown = 40;
    Statement entries(file, "SELECT type, name, sql FROM sqlite_schema LIMIT " +
                                std::to_string(most_tables_and_indexes + 1));
    for (int count = 1; entries.step(); ++count) {
        if (count > most_tables_and_indexes) {
            throw Failure("the file holds more tables and indexes than a project can: more than " +
                          std::to_string(most_tables_and_indexes));
        }
        if (!is_plain_definition(entries.text(2).value_or(""))) {
            throw Failure("the file holds what no project has, the " +
                          first_characters(entries.text(0).value_or(""), shown) + " " +
                          first_characters(entries.text(1).value_or(""), shown));
        }
    }
}

/// There is one thread: without locks of its own the engine gives the texts of a list a tenth sooner.
void open_handle(DatabaseHandle& handle, const std::string& path, int access) {
    if (sqlite3_open_v2(path.c_str(), &handle.file, access | SQLITE_OPEN_EXRESCODE | SQLITE_OPEN_NOMUTEX,
                        guarded_files()) != SQLITE_OK) {
        throw Failure(sqlite3_errmsg(handle.file));
    }
    protect(handle.file);
    handle.limit_time();
}

/// Reads the schema, and refuses what is no project file.
void look_into(const DatabaseHandle& handle) {
    Statement(handle.file, "PRAGMA cell_size_check = ON").run();
    if (read_integer(handle.file, "PRAGMA application_id") != project_application_id) {
        throw Failure(not_a_project);
    }
    check_schema(handle.file);
}

/// The first look into the file comes before anything is written to it.
void open_and_look(DatabaseHandle& handle, const std::string& path) {
    open_handle(handle, path, SQLITE_OPEN_READWRITE);
    look_into(handle);
    if (sqlite3_db_readonly(handle.file, "main") != 0) {
        throw Failure(std::string(sqlite3_errstr(SQLITE_READONLY)) + ": the file is read-only");
    }
}

/// A folder of this user alone, gone with the trial.
class TrialFolder {
  public:
    TrialFolder() : path_((std::filesystem::temp_directory_path() / "gullymark-XXXXXX").string()) {
        if (mkdtemp(path_.data()) == nullptr) {
            throw Failure("no folder can be made for a copy in " +
                          std::filesystem::path(path_).parent_path().string());
        }
    }
    ~TrialFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TrialFolder(const TrialFolder&) = delete;
    TrialFolder& operator=(const TrialFolder&) = delete;

    /// Copies the file and what stands beside it under these endings; the path of the copy.
    [[nodiscard]] std::string copy(const std::string& path,
                                   std::initializer_list<const char*> endings) const {
        for (const char* ending : {"", "-journal", "-wal"}) {
            std::filesystem::remove(path_ + "/copy" + ending);
        }
        copy_one(path, "");
        for (const char* ending : endings) {
            if (std::filesystem::exists(path + ending)) {
                copy_one(path, ending);
            }
        }
        return path_ + "/copy";
    }

  private:
    /// The copy can be written to, even where the file cannot.
    void copy_one(const std::string& path, const std::string& ending) const {
        using std::filesystem::perms;
        const std::string copy = path_ + "/copy" + ending;
        std::filesystem::copy_file(path + ending, copy);
        std::filesystem::permissions(copy, perms::owner_read | perms::owner_write);
    }

    std::string path_;
};

bool is_sound_alone(const std::string& copy) {
    try {
        DatabaseHandle alone;
        open_and_look(alone, copy);
        return examine(alone.file) == Soundness::sound;
    } catch (const Failure&) {
        return false;
    }
}

/// A copy of the file takes what stands beside it; all that an open refuses is refused there.
void try_on_copy(const std::string& path) {
    const TrialFolder folder;
    DatabaseHandle whole;
    open_and_look(whole, folder.copy(path, {"-journal", "-wal"}));
    if (examine(whole.file) != Soundness::damaged) {
        return;
    }
    whole.close();
    if (is_sound_alone(folder.copy(path, {}))) {
        throw Failure("the journal beside the file belongs to another file: it would damage this one");
    }
}

/// The pages of the file at one moment.
void read_pages(DatabaseHandle& memory, const std::string& path, int access) {
    DatabaseHandle file;
    open_handle(file, path, access);
    memory.close();
    open_handle(memory, ":memory:", SQLITE_OPEN_READWRITE | SQLITE_OPEN_MEMORY);
    sqlite3_backup* pages = sqlite3_backup_init(memory.file, "main", file.file, "main");
    const int copied = pages == nullptr ? sqlite3_errcode(memory.file) : sqlite3_backup_step(pages, -1);
    sqlite3_backup_finish(pages);
    if (copied != SQLITE_DONE) {
        throw Failure(sqlite3_errstr(copied));
    }
}

/// False when another program changed something while it was copied: the pages are then of no one moment.
bool read_pages_of_copy(DatabaseHandle& memory, const std::string& path) {
    try {
        const TrialFolder folder;
        const auto before = read_marks(path);
        const std::string copy = folder.copy(path, {"-journal", "-wal"});
        if (read_marks(path) != before) {
            return false;
        }
        read_pages(memory, copy, SQLITE_OPEN_READWRITE);
        look_into(memory);
        if (examine(memory.file) == Soundness::damaged && is_sound_alone(folder.copy(path, {}))) {
            throw Failure("the journal beside the file belongs to another file: it would damage this one");
        }
        return true;
    } catch (const std::filesystem::filesystem_error& error) {
        throw Failure("the file cannot be read from a copy: " + error.code().message());
    }
}

}  // namespace

void open_project(DatabaseHandle& handle, const std::string& path) {
    const Look look = look_at_project(path);
    if (look.changes_when_opened) {
        try {
            try_on_copy(look.real_path);
        } catch (const std::filesystem::filesystem_error& error) {
            throw Failure("the file cannot be tried on a copy: " + error.code().message());
        }
    }
    open_and_look(handle, look.real_path);
    Statement(handle.file, "PRAGMA journal_mode = DELETE").run();
    Statement(handle.file, "PRAGMA synchronous = EXTRA").run();
}

void read_project(DatabaseHandle& handle, const std::string& path) {
    constexpr int most_attempts = 5;
    for (int attempt = 0; attempt < most_attempts; ++attempt) {
        const Look look = look_at_project(path, Purpose::reading);
        if (!look.changes_when_opened) {
            read_pages(handle, look.real_path, SQLITE_OPEN_READONLY);
            look_into(handle);
            return;
        }
        if (read_pages_of_copy(handle, look.real_path)) {
            return;
        }
    }
    throw Failure("another program is changing the file");
}

Soundness examine(sqlite3* file) {
    try {
        Statement query(file, "PRAGMA integrity_check(1)");
        return query.step() && query.text(0) == "ok" ? Soundness::sound : Soundness::damaged;
    } catch (const Failure&) {
        const int reason = sqlite3_errcode(file) & 0xff;
        switch (reason) {
            case SQLITE_INTERRUPT:
                return Soundness::endless;
            case SQLITE_TOOBIG:
                return Soundness::too_long;
            case SQLITE_BUSY:
            case SQLITE_NOMEM:
                return Soundness::unknown;
            default:
                return Soundness::damaged;
        }
    }
}

}  // namespace gullymark::platform
