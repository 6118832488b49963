#pragma once

namespace gullymark::platform {

/// What the engine calls the file beside a project from which it undoes a save that was cut short.
inline constexpr const char* journal_ending = "-journal";

}  // namespace gullymark::platform
