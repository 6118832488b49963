#pragma once

#include <string>

/// What replaces a file and a project: a project by another one, and a project by nothing else.
namespace gullymark::platform {

/// Copies the project file `source` onto `path`, overwriting what is there. The engine undoes a save that was cut short
/// from a journal beside the file, by its name alone: it would carry the old project's journal out on the new file. So
/// first the old project is made whole, by an ordinary open, and locked so that no program begins a change of it; only
/// then the new file takes its place. Whatever ends the program, what is found is the old project, whole, or the new one.
/// Throws Failure; `path` is then as it was, but for a cut save that was undone. That is also so when the old project is
/// being changed, or has a journal that cannot be undone.
void copy_project(const std::string& source, const std::string& path);

/// Throws Failure when `path` leads to a project file, by whatever name or link, or to what belongs to one (its journal),
/// and when that cannot be told since the file cannot be read.
void refuse_project(const std::string& path);

}  // namespace gullymark::platform
