#pragma once

#include <cstddef>
#include <string>

namespace gullymark::review {

enum class Severity : unsigned char { wrong, beyond, doubtful };

/// The index of a finding that is on no single inlet.
inline constexpr auto whole_project = static_cast<std::size_t>(-1);

/// What is found in a project.
struct Finding {
    Severity severity = Severity::wrong;
    std::string rule;                   // a stable name for scripts: "carryover-differs"
    std::size_t index = whole_project;  // of the inlet in the project
    std::string inlet;                  // its number as stored; empty for the project
    std::string text;                   // one plain sentence with the numbers and units
    std::string advice;                 // what to do about it
};

/// What is told only above a limit.
struct Limits {
    std::string bypass = "0";  // bypass that no inlet takes is told above this flow
};

}  // namespace gullymark::review
