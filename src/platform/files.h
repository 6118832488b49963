#pragma once

#include <functional>
#include <string>
#include <string_view>

/// Files and folders. Paths are UTF-8 text with the platform's separator.
namespace gullymark::platform {

/// True for an existing file that is no folder.
bool file_exists(const std::string& path);

/// Copies an ordinary file onto `target`, overwriting; at the end of links stands what is replaced. The copy is made
/// beside it, under a name of its own (".gullymark_" and six letters), and takes its place when it is whole and on the
/// disk: whatever ends the program, what is found is the file that was there or the copy. Throws Failure with a
/// description of what went wrong; `target` is then as it was, and nothing lies beside it, but where only the folder
/// could not be synchronised at the end. The copy can be written to, even where the source is read-only.
/// `before_exchange` runs when all is ready, with the path of what is replaced; a failure of it leaves `target` as it
/// was, and what it does in that folder reaches the disk before the exchange.
void copy_file(const std::string& source, const std::string& target,
               const std::function<void(const std::string& end)>& before_exchange = {});

/// Writes an ordinary file of these bytes, in place of one that is there, as `copy_file` does: whatever ends the program, what
/// is found is the file that was there or the new one. Throws Failure with a description; `target` is then as it was.
void replace_file(const std::string& target, std::string_view bytes);

/// The current folder of the process. Throws Failure when it no longer exists.
std::string current_folder();
/// Throws Failure with the folder's path when it cannot be entered; the current folder stays.
void set_current_folder(const std::string& folder);

/// The folder in which the program and its resources lie (templates, help), as the start told it with
/// `set_program_folder`; empty before.
std::string program_folder();
/// Told once by the start; nothing is checked.
void set_program_folder(const std::string& folder);

/// `folder` and `name` joined by the platform's separator; with an empty folder, or an absolute name, the name alone.
/// Nothing is looked up.
std::string join_path(const std::string& folder, const std::string& name);

}  // namespace gullymark::platform
