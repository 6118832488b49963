#include "faults/system_calls.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>
#include <string>

namespace gullymark::faults {
namespace {

struct Plan {
    int first = 0;
    CallFailure failure = CallFailure::full;
    std::atomic<int>* calls = nullptr;
} plan;

bool fails() {
    const int call = ++*plan.calls;
    return plan.first != 0 && call >= plan.first;
}

bool is_first() {
    return *plan.calls == plan.first;
}

int refuse() {
    if (plan.failure == CallFailure::killed) {
        _exit(0);
    }
    errno = plan.failure == CallFailure::full ? ENOSPC : EIO;
    return -1;
}

ssize_t write_at(int file, const void* bytes, std::size_t count, off_t offset) {
    if (!fails()) {
        return pwrite(file, bytes, count, offset);
    }
    const bool torn = is_first() && plan.failure != CallFailure::broken && count > 1;
    const ssize_t written = torn ? pwrite(file, bytes, count / 2, offset) : -1;
    return written > 0 && plan.failure == CallFailure::full ? written : refuse();
}

/// Room that is given back is never refused on a full disk.
int cut(int file, off_t size) {
    return fails() && plan.failure != CallFailure::full ? refuse() : ftruncate(file, size);
}
int remove_file(const char* path) {
    return fails() && plan.failure != CallFailure::full ? refuse() : unlink(path);
}

int open_file(const char* path, int flags, int mode) {
    const bool makes = (flags & O_CREAT) != 0 && access(path, F_OK) != 0;
    return makes && fails() ? refuse() : open(path, flags, mode);
}

template <typename Call>
void replace(const char* name, Call call) {
    sqlite3_vfs* system = sqlite3_vfs_find(nullptr);
    if (system->xSetSystemCall(system, name, reinterpret_cast<sqlite3_syscall_ptr>(call)) != SQLITE_OK) {
        throw std::runtime_error(std::string("SQLite has no call ") + name);
    }
}

}  // namespace

const char* name_of(CallFailure failure) {
    switch (failure) {
        case CallFailure::full:
            return "disk full at each call";
        case CallFailure::broken:
            return "disk broken at each call";
        default:
            return "killed at each call";
    }
}

void fail_calls_from(int first, CallFailure failure, std::atomic<int>& calls) {
    plan = {first, failure, &calls};
    calls = 0;
    replace("pwrite", write_at);
    replace("pwrite64", write_at);
    replace("ftruncate", cut);
    replace("unlink", remove_file);
    replace("open", open_file);
}

}  // namespace gullymark::faults
