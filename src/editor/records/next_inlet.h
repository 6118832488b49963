#pragma once

#include <string>

#include "store/project_store.h"

/// The inlet downstream, which names this one as its previous inlet and takes its bypass.
namespace gullymark::editor {

/// Whether another inlet names this number as its previous inlet; `session.ReferencingInletNumber` is that one. A file
/// that cannot be read is told.
store::InletUsage feeds_another(const std::string& number);

/// What is told of the inlet that was found last: that the current one has carryover discharge to it.
std::string feeds_found_inlet();

}  // namespace gullymark::editor
