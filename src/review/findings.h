#pragma once

#include <optional>
#include <vector>

#include "review/finding.h"
#include "review/progress.h"
#include "review/project.h"

/// What a reviewer finds in a project. Everything is solved anew on copies: nothing that is open changes, and no box is shown.
namespace gullymark::review {

/// All findings, worst first, then in the order of the file; those of the project stand behind those of its inlets.
std::vector<Finding> judge(const Project& project, const Limits& limits);

/// The same for who can be asked to end it; nothing when that was asked.
std::optional<std::vector<Finding>> judge(const Project& project, const Limits& limits,
                                          const Progress& progress);

}  // namespace gullymark::review
