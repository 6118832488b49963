#include "platform/database_guard.h"

#include <sys/stat.h>

#include <list>
#include <string>
#include <type_traits>

namespace gullymark::platform {
namespace {

/// The system's own table with one function replaced. The engine hands the address of `table` to each function.
struct Guard {
    sqlite3_vfs table{};
    sqlite3_vfs* system = nullptr;
    std::string name;
};
static_assert(std::is_standard_layout_v<Guard>);

bool is_own_file_or_missing(const char* path) {
    struct stat status {};
    return lstat(path, &status) != 0 || (S_ISREG(status.st_mode) && status.st_nlink == 1);
}

int open_guarded(sqlite3_vfs* table, sqlite3_filename path, sqlite3_file* file, int flags, int* flags_used) {
    sqlite3_vfs* system = reinterpret_cast<Guard*>(table)->system;
    constexpr int beside = SQLITE_OPEN_MAIN_JOURNAL | SQLITE_OPEN_WAL;
    const bool refused = (flags & SQLITE_OPEN_SUPER_JOURNAL) != 0 ||
                         ((flags & beside) != 0 && path != nullptr && !is_own_file_or_missing(path));
    if (refused) {
        file->pMethods = nullptr;
        return SQLITE_CANTOPEN;
    }
    return system->xOpen(system, path, file, flags, flags_used);
}

}  // namespace

const char* guarded_files() {
    static std::list<Guard> guards;
    sqlite3_vfs* system = sqlite3_vfs_find(nullptr);
    const std::string name = std::string("guarded ") + system->zName;
    if (const auto* known = sqlite3_vfs_find(name.c_str())) {
        return known->zName;
    }
    Guard& guard = guards.emplace_back(Guard{*system, system, name});
    guard.table.zName = guard.name.c_str();
    guard.table.pNext = nullptr;
    guard.table.xOpen = open_guarded;
    sqlite3_vfs_register(&guard.table, 0);
    return guard.table.zName;
}

}  // namespace gullymark::platform
