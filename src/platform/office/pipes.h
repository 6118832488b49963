#pragma once

#include <string>
#include <vector>

#include "platform/office/office_choice.h"

/// The pipes under which an office listens to us. They lie in a folder that every user of the machine can write to, so
/// each has a name that nobody can take beforehand, and only this user's own are talked to.
namespace gullymark::office {

/// A name that no pipe has.
std::string new_pipe_name(const OfficeChoice& choice);

/// The names of this user's pipes that somebody listens to. Those of an office that has gone are removed.
std::vector<std::string> listening_pipes(const OfficeChoice& choice);

}  // namespace gullymark::office
