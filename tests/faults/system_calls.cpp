#include "faults/system_calls.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <utility>

namespace gullymark::faults {
namespace {

struct Watcher {
    std::string folder;
    Watch watch;
};

// No object with a destructor: files are read before main and after it.
Watcher* watcher = nullptr;
bool silent = false;  // the watcher's own calls, and those of an onlooker, pass

bool is_watched() {
    return watcher != nullptr && !silent;
}

std::string absolute(const char* path) {
    if (path[0] == '/') {
        return path;
    }
    std::array<char, 4096> folder{};
    return getcwd(folder.data(), folder.size()) == nullptr ? path : std::string(folder.data()) + "/" + path;
}

std::string path_of(int file) {
    std::array<char, 4096> path{};
    const auto link = "/proc/self/fd/" + std::to_string(file);
    const auto length = readlink(link.c_str(), path.data(), path.size());
    return {path.data(), length < 0 ? 0 : static_cast<std::size_t>(length)};
}

Fate fate_of(const SystemCall& call) {
    const bool here = call.path.starts_with(watcher->folder) || call.kind == CallKind::sleep;
    if (!here) {
        return {};
    }
    const Unwatched unwatched;
    return watcher->watch(call);
}

/// Carries a call out as its fate wants it, given how the system makes it.
template <typename Make>
auto carry_out(const SystemCall& call, Make make) -> decltype(make()) {
    const Fate fate = fate_of(call);
    if (fate.error != 0) {
        errno = fate.error;
        return -1;
    }
    return fate.believed ? 0 : make();
}

/// What the system, or a sanitizer before it, has under the name of one of the definitions below.
template <typename Function>
Function* next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

template <typename Make>
auto on_file(CallKind kind, int file, Make make, std::uint64_t size = 0) -> decltype(make()) {
    return is_watched() ? carry_out({.kind = kind, .path = path_of(file), .size = size}, make) : make();
}

template <typename Make>
int on_name(CallKind kind, const char* path, const char* new_path, Make make) {
    if (!is_watched()) {
        return make();
    }
    const auto new_name = new_path == nullptr ? "" : absolute(new_path);
    return carry_out({.kind = kind, .path = absolute(path), .new_path = new_name}, make);
}

template <typename Make>
ssize_t on_write(int file, const void* bytes, std::size_t count, std::uint64_t offset, Make make) {
    if (!is_watched()) {
        return make(count);
    }
    const Fate fate = fate_of({.kind = CallKind::write,
                               .path = path_of(file),
                               .offset = offset,
                               .bytes = {static_cast<const char*>(bytes), count}});
    if (fate.written == 0 && fate.error != 0) {
        errno = fate.error;
        return -1;
    }
    return make(fate.written > 0 ? fate.written : count);
}

int on_open(const char* path, int flags, mode_t mode) {
    static auto* const system = next<int(const char*, int, ...)>("open");
    const auto make = [&] { return system(path, flags, mode); };
    if (!is_watched()) {
        return make();
    }
    const bool makes = (flags & O_CREAT) != 0 && access(path, F_OK) != 0;
    const bool cuts = (flags & O_TRUNC) != 0 && !makes;
    return carry_out({.kind = makes  ? CallKind::make
                              : cuts ? CallKind::cut
                                     : CallKind::open,
                      .path = absolute(path)},
                     make);
}

ssize_t on_read(int file, void* bytes, std::size_t count) {
    static auto* const system = next<ssize_t(int, void*, std::size_t)>("read");
    return on_file(CallKind::read, file, [&] { return system(file, bytes, count); });
}

ssize_t on_read_at(int file, void* bytes, std::size_t count, off_t offset) {
    static auto* const system = next<ssize_t(int, void*, std::size_t, off_t)>("pread");
    return on_file(CallKind::read, file, [&] { return system(file, bytes, count, offset); });
}

ssize_t on_write_at(int file, const void* bytes, std::size_t count, off_t offset) {
    static auto* const system = next<ssize_t(int, const void*, std::size_t, off_t)>("pwrite");
    return on_write(file, bytes, count, static_cast<std::uint64_t>(offset),
                    [&](std::size_t part) { return system(file, bytes, part, offset); });
}

int on_cut(int file, off_t size) {
    static auto* const system = next<int(int, off_t)>("ftruncate");
    return on_file(
        CallKind::cut, file, [&] { return system(file, size); }, static_cast<std::uint64_t>(size));
}

int on_sync(int file) {
    static auto* const system = next<int(int)>("fsync");
    return on_file(CallKind::sync, file, [&] { return system(file); });
}

}  // namespace

Watching::Watching(std::string folder, Watch watch) {
    watcher = new Watcher{std::move(folder), std::move(watch)};
}
Watching::~Watching() {
    delete std::exchange(watcher, nullptr);
}

Unwatched::Unwatched() : before_(std::exchange(silent, true)) {}
Unwatched::~Unwatched() {
    silent = before_;
}

}  // namespace gullymark::faults

// The system's functions. Here they have other names, so as not to meet the declarations of its headers, which differ
// from one library to the next; to the linker they are the system's.
extern "C" {

using gullymark::faults::CallKind;
using gullymark::faults::next;

int watched_open(const char* path, int flags, ...) __asm__("open");
int watched_open(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    return gullymark::faults::on_open(path, flags, mode);
}
int watched_open64(const char* path, int flags, ...) __asm__("open64");
int watched_open64(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    return gullymark::faults::on_open(path, flags, mode);
}

ssize_t watched_read(int file, void* bytes, std::size_t count) __asm__("read");
ssize_t watched_read(int file, void* bytes, std::size_t count) {
    return gullymark::faults::on_read(file, bytes, count);
}
// What a call becomes where the compiler knows the room that there is.
ssize_t watched_read_chk(int file, void* bytes, std::size_t count, std::size_t room) __asm__("__read_chk");
ssize_t watched_read_chk(int file, void* bytes, std::size_t count, std::size_t room) {
    return count > room ? (std::abort(), -1) : gullymark::faults::on_read(file, bytes, count);
}

ssize_t watched_pread(int file, void* bytes, std::size_t count, off_t offset) __asm__("pread");
ssize_t watched_pread(int file, void* bytes, std::size_t count, off_t offset) {
    return gullymark::faults::on_read_at(file, bytes, count, offset);
}
ssize_t watched_pread64(int file, void* bytes, std::size_t count, off_t offset) __asm__("pread64");
ssize_t watched_pread64(int file, void* bytes, std::size_t count, off_t offset) {
    return gullymark::faults::on_read_at(file, bytes, count, offset);
}

ssize_t watched_write(int file, const void* bytes, std::size_t count) __asm__("write");
ssize_t watched_write(int file, const void* bytes, std::size_t count) {
    static auto* const system = next<ssize_t(int, const void*, std::size_t)>("write");
    const auto here = gullymark::faults::is_watched() ? lseek(file, 0, SEEK_CUR) : 0;
    return gullymark::faults::on_write(file, bytes, count, static_cast<std::uint64_t>(here),
                                       [&](std::size_t part) { return system(file, bytes, part); });
}

ssize_t watched_pwrite(int file, const void* bytes, std::size_t count, off_t offset) __asm__("pwrite");
ssize_t watched_pwrite(int file, const void* bytes, std::size_t count, off_t offset) {
    return gullymark::faults::on_write_at(file, bytes, count, offset);
}
ssize_t watched_pwrite64(int file, const void* bytes, std::size_t count, off_t offset) __asm__("pwrite64");
ssize_t watched_pwrite64(int file, const void* bytes, std::size_t count, off_t offset) {
    return gullymark::faults::on_write_at(file, bytes, count, offset);
}

int watched_ftruncate(int file, off_t size) __asm__("ftruncate");
int watched_ftruncate(int file, off_t size) {
    return gullymark::faults::on_cut(file, size);
}
int watched_ftruncate64(int file, off_t size) __asm__("ftruncate64");
int watched_ftruncate64(int file, off_t size) {
    return gullymark::faults::on_cut(file, size);
}

int watched_fsync(int file) __asm__("fsync");
int watched_fsync(int file) {
    return gullymark::faults::on_sync(file);
}
int watched_fdatasync(int file) __asm__("fdatasync");
int watched_fdatasync(int file) {
    return gullymark::faults::on_sync(file);
}

int watched_rename(const char* path, const char* new_path) __asm__("rename");
int watched_rename(const char* path, const char* new_path) {
    static auto* const system = next<int(const char*, const char*)>("rename");
    return gullymark::faults::on_name(CallKind::rename, path, new_path,
                                      [&] { return system(path, new_path); });
}

int watched_unlink(const char* path) __asm__("unlink");
int watched_unlink(const char* path) {
    static auto* const system = next<int(const char*)>("unlink");
    return gullymark::faults::on_name(CallKind::remove, path, nullptr, [&] { return system(path); });
}

int watched_remove(const char* path) __asm__("remove");
int watched_remove(const char* path) {
    static auto* const system = next<int(const char*)>("remove");
    return gullymark::faults::on_name(CallKind::remove, path, nullptr, [&] { return system(path); });
}

int watched_usleep(useconds_t microseconds) __asm__("usleep");
int watched_usleep(useconds_t microseconds) {
    static auto* const system = next<int(useconds_t)>("usleep");
    if (!gullymark::faults::is_watched()) {
        return system(microseconds);
    }
    return gullymark::faults::carry_out({.kind = CallKind::sleep, .size = microseconds},
                                        [&] { return system(microseconds); });
}

}  // extern "C"
