#include "platform/file_marks.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <filesystem>

namespace gullymark::platform {
namespace {

/// The bytes of the head that count changes; -1 where they cannot be read. No pipe is waited for.
std::int64_t read_change_counter(const std::string& path) {
    constexpr off_t place = 24;
    struct stat status {};
    if (stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return -1;
    }
    const int file = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (file < 0) {
        return -1;
    }
    std::array<unsigned char, 4> bytes{};
    const ssize_t read = pread(file, bytes.data(), bytes.size(), place);
    close(file);
    if (read != static_cast<ssize_t>(bytes.size())) {
        return -1;
    }
    std::int64_t count = 0;
    for (const unsigned char byte : bytes) {
        count = count * 256 + byte;
    }
    return count;
}

}  // namespace

std::vector<std::int64_t> read_marks(const std::string& path) {
    std::vector<std::int64_t> marks;
    for (const char* ending : {"", "-journal", "-wal"}) {
        struct stat status {};
        if (lstat((path + ending).c_str(), &status) != 0) {
            marks.push_back(-1);
            continue;
        }
        marks.insert(marks.end(), {static_cast<std::int64_t>(status.st_ino), status.st_size,
                                   status.st_mtim.tv_sec, status.st_mtim.tv_nsec});
    }
    return marks;
}

std::vector<std::int64_t> look_at_state(const std::string& path) {
    std::error_code missing;
    const std::filesystem::path end = std::filesystem::canonical(path, missing);
    const std::string file = missing ? path : end.string();
    std::vector<std::int64_t> state = read_marks(file);
    state.push_back(read_change_counter(file));
    return state;
}

}  // namespace gullymark::platform
