#pragma once

#include <sqlite3.h>

namespace gullymark::platform {

/// The system's files as the engine may open them for a project, by the name to open a database with. What stands beside
/// a project is looked at before the engine is asked (`look_at_project`); this holds also for what is planted there later:
/// - a super-journal is not opened, so that no file that a journal names is deleted;
/// - a journal or log that is a link, a pipe, a folder, or another file under a second name is not opened.
const char* guarded_files();

}  // namespace gullymark::platform
