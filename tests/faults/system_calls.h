#pragma once

#include <atomic>

/// The system's calls by which SQLite changes files: counted, and failed from one of them on.
namespace gullymark::faults {

enum class CallFailure {
    full,    // no room: half of the bytes of that write, and no new file or byte from then on
    broken,  // nothing can be written, cut, made or removed any more
    killed   // half of the bytes of that write, and the process ends
};

/// The words of a report for it.
const char* name_of(CallFailure failure);

/// From now on, and until this process ends, every call of SQLite that writes, cuts, makes or removes a file is counted
/// in `calls`, and the one that makes it `first` fails, with all after it. 0 lets all of them pass.
void fail_calls_from(int first, CallFailure failure, std::atomic<int>& calls);

}  // namespace gullymark::faults
