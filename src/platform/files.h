#pragma once

#include <string>
#include <vector>

/// Files and folders. Paths are UTF-8 text with the platform's separator.
namespace gullymark::platform {

/// True for an existing file that is no folder.
bool file_exists(const std::string& path);

/// Copies a file onto `target`, overwriting. Throws Failure with a description of what went wrong; `target` is then as
/// it was: the copy is made beside it, as `target` with ".part" behind, and takes its place when it is whole.
/// The copy can be written to, even where the source is read-only. Files beside `target` that belong to what was there,
/// named by what they have behind its name, go with it.
void copy_file(const std::string& source, const std::string& target,
               const std::vector<std::string>& going_along = {});

/// The current folder of the process. Throws Failure when it no longer exists.
std::string current_folder();
void set_current_folder(const std::string& folder);

/// The folder in which the program and its resources lie (templates, help), as the start told it with
/// `set_program_folder`; empty before.
std::string program_folder();
void set_program_folder(const std::string& folder);

/// `folder` and `name` joined by the platform's separator.
std::string join_path(const std::string& folder, const std::string& name);

}  // namespace gullymark::platform
