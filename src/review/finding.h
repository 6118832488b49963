#pragma once

#include <string>

namespace gullymark::review {

enum class Severity : unsigned char { wrong, beyond, doubtful };

/// What is found in a project.
struct Finding {
    Severity severity = Severity::wrong;
    std::string rule;    // a stable name for scripts: "carryover-differs"
    std::string inlet;   // its number as stored; empty for the project
    std::string text;    // one plain sentence with the numbers and units
    std::string advice;  // what to do about it
};

/// What is told only above a limit.
struct Limits {
    std::string bypass = "0";  // bypass that no inlet takes is told above this flow
};

}  // namespace gullymark::review
