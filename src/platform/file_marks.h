#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// What changes when a project file changes, without opening it as a database.
namespace gullymark::platform {

/// Of the file and what stands beside it: which file it is, how large, and when it was changed. Links are not followed.
std::vector<std::int64_t> read_marks(const std::string& path);

/// The same of the file at the end of links, with the engine's own count of its changes: two saves within one tick of the
/// clock differ too. A look at what is missing, or no file, is a look as well. It opens and closes the file, which ends the
/// locks that this process has on it.
std::vector<std::int64_t> look_at_state(const std::string& path);

}  // namespace gullymark::platform
