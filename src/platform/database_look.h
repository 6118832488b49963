#pragma once

#include <string>

namespace gullymark::platform {

/// What can be told of a project file from its bytes and what stands beside it, before the engine sees them. The engine
/// opens anything, and at its first read works into the file what a journal or a log beside it holds: what is checked
/// after that is checked too late.
struct Look {
    std::string real_path;  // links followed, as the engine does
    /// A save was cut short and its journal, or the log of a file in write-ahead mode, will be worked into the file.
    bool changes_when_opened = false;
};

/// What a project file is opened for.
enum class Purpose : unsigned char { saving, reading };

/// A failure for what is no project file or, to save in it, cannot be saved in: missing, no ordinary file, of the old database engine, of
/// another program, too large, read-only, of a name or path that leaves no room for the journal's; and for one beside which
/// something stands that no save of this program leaves: a journal that names another file, which the engine would
/// delete, one of another file, and a link, pipe or folder in a journal's place. Nothing is written, and no pipe waited for.
///
/// It opens and closes the file, which ends the locks that this process has on it: none, for no statement outlives a call.
Look look_at_project(const std::string& path, Purpose purpose = Purpose::saving);

}  // namespace gullymark::platform
