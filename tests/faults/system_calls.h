#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

/// Every call of this process that reads or changes a file, whoever makes it: the engine, the C++ library or the
/// program. They are the program's own definitions of the system's functions, which a linker prefers to those of the
/// libraries; nobody watching, they go on to the system.
namespace gullymark::faults {

enum class CallKind { open, make, read, write, cut, sync, rename, remove, sleep };

struct SystemCall {
    CallKind kind = CallKind::read;
    std::string path;          // of the file, as it is named now; the folder for its own synchronisation
    std::string new_path;      // of a file that gets another name
    std::uint64_t offset = 0;  // of a write; -1 for one where the file stands
    std::uint64_t size = 0;    // of a file that is cut, of a sleep in microseconds
    std::string_view bytes;    // of a write
};

/// What becomes of a call.
struct Fate {
    int error = 0;            // it fails with this reason of the system
    std::size_t written = 0;  // but so many bytes of a write that fails are written first, and it tells so
    bool believed = false;    // it is not made, and told as done
};

using Watch = std::function<Fate(const SystemCall&)>;

/// Asks `watch` about every call on something below `folder`, and about every sleep, while it lives. One at a time.
class Watching {
  public:
    Watching(std::string folder, Watch watch);
    ~Watching();
    Watching(const Watching&) = delete;
    Watching& operator=(const Watching&) = delete;
};

/// Nothing is watched while it lives: for an onlooker's own calls.
class Unwatched {
  public:
    Unwatched();
    ~Unwatched();
    Unwatched(const Unwatched&) = delete;
    Unwatched& operator=(const Unwatched&) = delete;

  private:
    bool before_;
};

}  // namespace gullymark::faults
