#pragma once

#include <string>

/// Files and folders. Paths are UTF-8 text with the platform's separator.
namespace gullymark::platform {

/// True for an existing file that is no folder.
bool file_exists(const std::string& path);

/// Copies a file onto `target`, overwriting. Throws Failure with a description of what went wrong.
/// The copy can be written to, even where the source is read-only.
void copy_file(const std::string& source, const std::string& target);

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
