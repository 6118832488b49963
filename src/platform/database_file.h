#pragma once

#include <string>

#include "platform/database_sqlite.h"

/// A project file from its path to an open handle.
namespace gullymark::platform {

/// Opens what `look_at_project` let pass and looks into its schema: another program's, and one with what no project has
/// (views, virtual tables, tables and indexes that compute something), is a failure. What an open that fails finds, it
/// leaves as it is, byte for byte, beside the file too: where the engine would change the file, all is tried on a copy
/// first.
void open_project(DatabaseHandle& handle, const std::string& path);

/// Puts the whole file as it stands at one moment into the memory of the handle, and looks into its schema as `open_project`
/// does. The file is locked, for reading, while its pages are copied and no longer. What the engine would change in the
/// file it changes in a copy: a save that was cut short is undone there. Nothing is written, made or deleted beside the
/// file, and a read-only file in a read-only folder serves as well.
void read_project(DatabaseHandle& handle, const std::string& path);

/// What a reading of the whole file finds.
enum class Soundness { sound, damaged, too_long, endless, unknown };

/// `too_long` where a row is larger than one of a project can be, `endless` where the time for one statement is used up;
/// `unknown` for a file that cannot be looked at now, since another program saves into it or the memory is used up.
Soundness examine(sqlite3* file);

}  // namespace gullymark::platform
