#include "platform/project_copy.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/database.h"
#include "platform/database_sqlite.h"
#include "platform/failure.h"
#include "platform/files.h"

namespace gullymark::platform {
namespace {

/// What the engine keeps beside a file: what to undo in it, and what to do yet.
constexpr std::array<const char*, 2> journal_endings{"-journal", "-wal"};

/// Whether something has that name, as a file, a link or a folder. A name that is too long is a failure: there could be
/// no journal, and nothing could be saved.
bool is_there(const std::string& path) {
    struct stat found {};
    const bool there = lstat(path.c_str(), &found) == 0;
    if (!there && errno != ENOENT) {
        fail(errno, path);
    }
    return there;
}

/// Nothing is carried out from a journal that is empty, or whose first byte is 0.
bool is_spent(const std::string& journal) {
    std::error_code error;
    return std::filesystem::is_regular_file(std::filesystem::symlink_status(journal, error)) &&
           (std::filesystem::file_size(journal, error) == 0 ||
            std::ifstream(journal, std::ios::binary).get() == 0);
}

/// By the mark in the header of a project file. What cannot be read may be one.
bool is_project(const std::string& path) {
    std::array<char, 72> header{};
    std::ifstream file(path, std::ios::binary);
    file.read(header.data(), header.size());
    const bool read =
        file.gcount() == static_cast<std::streamsize>(header.size()) || (file.eof() && !file.bad());
    std::int64_t mark = 0;
    for (const char byte : std::span(header).last(4)) {
        mark = mark * 256 + static_cast<unsigned char>(byte);
    }
    return !read || mark == project_application_id;
}

/// Makes the old project whole, and locks it for as long as `old` is open. The reason when it cannot be opened, which
/// what is no project cannot.
std::string make_whole(Connection& old, const std::string& path) {
    try {
        old.open(path);
    } catch (const Failure& failure) {
        return failure.what();
    }
    try {
        old.execute("BEGIN IMMEDIATE");
    } catch (const Failure& failure) {
        throw Failure(std::string(failure.what()) + ": " + path);
    }
    return {};
}

/// Nothing stands under the path afterwards, or a whole project without a journal, or what is no project.
void make_way(Connection& old, const std::string& path) {
    const bool replaces = is_there(path);
    const std::string reason = replaces ? make_whole(old, path) : "";
    for (const char* ending : journal_endings) {
        const std::string journal = path + ending;
        if (!is_there(journal)) {
            continue;
        }
        if (replaces && !(old.is_open() && is_spent(journal))) {
            throw Failure("its last save cannot be undone: " + (reason.empty() ? path : reason));
        }
        if (unlink(journal.c_str()) != 0) {
            fail(errno, journal);
        }
    }
}

}  // namespace

void refuse_project(const std::string& path) {
    std::error_code error;
    const auto canonical = std::filesystem::weakly_canonical(path, error).string();
    std::vector<std::string> files{error ? path : canonical};
    for (const std::string_view ending : journal_endings) {
        if (files[0].ends_with(ending)) {
            files.push_back(files[0].substr(0, files[0].size() - ending.size()));
        }
    }
    for (const std::string& file : files) {
        if (std::filesystem::is_regular_file(file, error) && is_project(file)) {
            throw Failure("This is a project file: " + path);
        }
    }
}

void copy_project(const std::string& source, const std::string& path) {
    Connection old;
    copy_file(source, path, [&](const std::string& end) { make_way(old, end); });
}

}  // namespace gullymark::platform
