#pragma once

#include <string>

#include "review/project.h"

namespace gullymark::review {

/// The project in the file at `path`, all of it as of one moment; the file is only read (platform/database.h,
/// `open_to_read`). Columns that a file of an old release lacks are null; a file in which no details are saved yet and no
/// inlet stands is an empty project. Throws Failure, in one sentence with the path, for what cannot be read whole, and for
/// inlets whose project tells no units that they could be solved in.
Project read_project(const std::string& path);

}  // namespace gullymark::review
