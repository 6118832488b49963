#include "platform/database_look.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

#include "platform/database_journal.h"
#include "platform/database_sqlite.h"
#include "platform/failure.h"

namespace gullymark::platform {
namespace {

/// Some 700,000 inlets. What is larger is no road's project, and reading it would stop the window.
constexpr std::uint64_t most_megabytes = 256;
constexpr std::uint64_t most_bytes = most_megabytes * 1'000'000;

Failure engine_words(int result, const std::string& reason = "") {
    return Failure(sqlite3_errstr(result) + (reason.empty() ? "" : ": " + reason));
}

/// A file open for reading. Opening it waits for nobody.
class File {
  public:
    explicit File(const std::string& path)
        : file_(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)) {
        if (file_ < 0 || fstat(file_, &status_) != 0 || !S_ISREG(status_.st_mode)) {
            close_file();
            throw engine_words(SQLITE_CANTOPEN);
        }
    }
    ~File() { close_file(); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    [[nodiscard]] std::uint64_t size() const { return static_cast<std::uint64_t>(status_.st_size); }

    /// The bytes at `place`; fewer at the end of the file.
    [[nodiscard]] std::string read(std::uint64_t place, std::size_t count) const {
        std::string bytes(count, '\0');
        const auto got = pread(file_, bytes.data(), count, static_cast<off_t>(place));
        if (got < 0) {
            throw engine_words(SQLITE_IOERR);
        }
        bytes.resize(static_cast<std::size_t>(got));
        return bytes;
    }

    /// True when another process is about to write it.
    [[nodiscard]] bool is_being_written() const {
        constexpr off_t locks_begin = 0x40000000;
        constexpr off_t locks_length = 512;
        struct flock lock {};
        lock.l_type = F_RDLCK;
        lock.l_whence = SEEK_SET;
        lock.l_start = locks_begin;
        lock.l_len = locks_length;
        return fcntl(file_, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
    }

  private:
    void close_file() {
        if (file_ >= 0) {
            close(file_);
        }
        file_ = -1;
    }

    int file_;
    struct stat status_ {};
};

/// Four bytes, the highest first; 0 behind the end.
std::uint32_t number_at(std::string_view bytes, std::size_t place) {
    std::uint32_t number = 0;
    for (std::size_t i = place; i < place + 4; ++i) {
        number = (number << 8U) | (i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U);
    }
    return number;
}

// Of a database's first page.
constexpr std::size_t header_size = 100;
constexpr std::size_t least_size = 512;
constexpr std::size_t write_version_at = 18;
constexpr std::size_t read_version_at = 19;
constexpr std::size_t change_counter_at = 24;
constexpr std::size_t application_id_at = 68;

/// Of the database engine whose files the program's first versions kept.
bool is_of_old_engine(std::string_view header) {
    using namespace std::string_view_literals;
    return header.starts_with("\0\1\0\0Standard Jet DB"sv) || header.starts_with("\0\1\0\0Standard ACE DB"sv);
}

void check_kind(const File& file, std::string_view header) {
    using namespace std::string_view_literals;
    if (header.empty()) {
        throw Failure(not_a_project);
    }
    if (is_of_old_engine(header)) {
        throw Failure("this is a file of the old database engine, which this program cannot read");
    }
    if (!header.starts_with("SQLite format 3\0"sv)) {
        throw engine_words(SQLITE_NOTADB);
    }
    if (file.size() < least_size) {
        throw engine_words(SQLITE_CORRUPT);
    }
    if (file.size() > most_bytes) {
        throw Failure("the file is larger than a project can be: more than " +
                      std::to_string(most_megabytes) + " MB");
    }
}

bool is_in_write_ahead_mode(std::string_view header) {
    return header[write_version_at] == 2 || header[read_version_at] == 2;
}

/// A file that cannot take a journal beside it opens, and every save in it would be lost.
void check_lengths(const std::filesystem::path& path) {
    const auto longest_name = pathconf(path.parent_path().c_str(), _PC_NAME_MAX);
    const std::size_t ending = std::string_view(journal_ending).size();
    if (longest_name > 0 &&
        path.filename().native().size() + ending > static_cast<std::size_t>(longest_name)) {
        throw Failure("the file's name is too long to save in it: " +
                      std::to_string(static_cast<std::size_t>(longest_name) - ending) +
                      " bytes are the most");
    }
    const auto longest_path = static_cast<std::size_t>(sqlite3_vfs_find(nullptr)->mxPathname);
    if (path.native().size() + ending > longest_path) {
        throw Failure("the file's path is too long: " + std::to_string(longest_path - ending) +
                      " bytes are the most");
    }
}

/// The engine opens a read-only file without a word, and learns only at the first save that it cannot make the
/// journal beside the file.
void check_writable(const std::filesystem::path& path) {
    if (faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) {
        throw engine_words(SQLITE_READONLY, "the file is read-only");
    }
    if (faccessat(AT_FDCWD, path.parent_path().c_str(), W_OK | X_OK, AT_EACCESS) != 0) {
        throw engine_words(SQLITE_READONLY, "no file can be made in its folder");
    }
}

/// A failure about what stands beside the project under the name with that ending.
Failure about_neighbor(const std::string& path, const std::string& ending, const std::string& what) {
    return Failure(what + ": " + std::filesystem::path(path + ending).filename().string());
}

/// The size of what stands there; nothing where nothing does. No journal is a link, a pipe or a folder, or has a second
/// name under which it is a file of its own.
std::optional<std::uint64_t> size_of_neighbor(const std::string& path, const std::string& ending) {
    struct stat status {};
    if (lstat((path + ending).c_str(), &status) != 0) {
        return std::nullopt;
    }
    if (!S_ISREG(status.st_mode) || status.st_nlink != 1) {
        throw about_neighbor(path, ending, "what stands beside the file is no journal of it");
    }
    return static_cast<std::uint64_t>(status.st_size);
}

constexpr std::string_view journal_mark = "\xd9\xd5\x05\xf9\x20\xa1\x63\xd7";

/// The record at the end of a journal that belongs to a save in several files at once: a page number, the name of the
/// super-journal, the length of the name, a sum, the mark. Its sum is not looked at: no journal ends like that by chance.
bool names_another_file(const File& journal) {
    constexpr std::size_t tail_size = 16;
    if (journal.size() < tail_size) {
        return false;
    }
    const std::string tail = journal.read(journal.size() - tail_size, tail_size);
    const auto length = number_at(tail, 0);
    return std::string_view(tail).ends_with(journal_mark) && length > 0 &&
           length <= journal.size() - tail_size;
}

/// The header of a journal's first part. It fills a sector; the records follow, each a page's number, the page and a sum.
struct JournalHeader {
    std::uint64_t records;
    std::uint64_t pages_before;  // of the file, before the save
    std::uint64_t sector_size;
    std::uint64_t page_size;
};

JournalHeader read_header(const File& journal) {
    constexpr std::size_t journal_header_size = 28;
    const std::string bytes = journal.read(0, journal_header_size);
    return {.records = number_at(bytes, 8),
            .pages_before = number_at(bytes, 16),
            .sector_size = number_at(bytes, 20),
            .page_size = number_at(bytes, 24)};
}

/// The header of the file before the save, as the journal holds it; nothing when the first page is not there.
std::optional<std::string> header_in(const File& journal, const JournalHeader& header) {
    if (header.page_size < least_size || journal.size() < header.sector_size) {
        return std::nullopt;
    }
    // The number of records may stand for all up to the end.
    const std::uint64_t record_size = header.page_size + 8;
    const std::uint64_t records =
        std::min(header.records, (journal.size() - header.sector_size) / record_size);
    for (std::uint64_t record = 0; record < records; ++record) {
        const auto start = journal.read(header.sector_size + record * record_size, 4 + header_size);
        if (number_at(start, 0) == 1) {
            return start.substr(4);
        }
    }
    return std::nullopt;
}

/// The engine would cut the file to the size that the journal tells, or make it as large. The save raised the change
/// counter in the header by one, and may have stored the new header or not.
bool fits(const File& journal, const JournalHeader& journal_header, std::string_view header) {
    if (journal.size() > most_bytes || journal_header.pages_before * journal_header.page_size > most_bytes) {
        return false;
    }
    const auto before = header_in(journal, journal_header);
    return !before || header == *before ||
           number_at(header, change_counter_at) == number_at(*before, change_counter_at) + 1;
}

/// A journal's mark, or the start of one whose writing was cut off: it is stored last, over zeros, when nothing of the
/// file was written yet. The engine finds nothing to undo in such a journal and removes it.
bool is_mark_or_start_of_one(std::string_view bytes) {
    const auto [differs, expected] = std::ranges::mismatch(bytes, journal_mark);
    return std::all_of(differs, bytes.end(), [](char byte) { return byte == '\0'; });
}

/// True when the engine will roll back the journal: it puts the file's pages as they were before the save in their place.
bool has_hot_journal(const std::string& path, const File& file, std::string_view header) {
    if (size_of_neighbor(path, journal_ending).value_or(0) == 0) {
        return false;
    }
    const File journal(path + journal_ending);
    if (names_another_file(journal)) {
        throw about_neighbor(path, journal_ending,
                             "the journal beside the file names another file to delete");
    }
    const std::string mark = journal.read(0, journal_mark.size());
    if (mark.empty() || mark.front() == '\0') {
        return false;
    }
    if (!is_mark_or_start_of_one(mark)) {
        throw about_neighbor(path, journal_ending, "what stands beside the file is no journal of it");
    }
    if (!fits(journal, read_header(journal), header)) {
        throw about_neighbor(path, journal_ending, "the journal beside the file belongs to another file");
    }
    return !file.is_being_written();
}

/// A log is worked into the file whatever the file's own header says.
void check_log(const std::string& path, std::string_view header) {
    const auto log_size = size_of_neighbor(path, "-wal");
    if (is_in_write_ahead_mode(header)) {
        static_cast<void>(size_of_neighbor(path, "-shm"));
        constexpr std::uint32_t log_mark = 0x377f0682;  // or with its last bit set
        if (log_size.value_or(0) > 0 &&
            (number_at(File(path + "-wal").read(0, 4), 0) | 1U) != (log_mark | 1U)) {
            throw about_neighbor(path, "-wal", "what stands beside the file is no log of it");
        }
    } else if (log_size) {
        throw about_neighbor(path, "-wal", "what stands beside the file is no log of it");
    }
}

}  // namespace

Look look_at_project(const std::string& path, Purpose purpose) {
    std::error_code error;
    const auto real_path = std::filesystem::canonical(path, error);
    const auto status = std::filesystem::status(real_path, error);
    if (path.empty() || real_path.empty() || !std::filesystem::exists(status)) {
        throw engine_words(SQLITE_CANTOPEN);
    }
    if (!std::filesystem::is_regular_file(status)) {
        throw engine_words(SQLITE_CANTOPEN, "it is not an ordinary file");
    }
    if (purpose == Purpose::saving) {
        check_lengths(real_path);
    }
    const File file(real_path);
    const std::string header = file.read(0, header_size);
    check_kind(file, header);
    const bool hot = has_hot_journal(real_path, file, header);
    check_log(real_path, header);
    const bool changes = hot || is_in_write_ahead_mode(header);
    if (!changes && number_at(header, application_id_at) != project_application_id &&
        !file.is_being_written()) {
        throw Failure(not_a_project);
    }
    if (purpose == Purpose::saving) {
        check_writable(real_path);
    }
    return {.real_path = real_path, .changes_when_opened = changes};
}

}  // namespace gullymark::platform
