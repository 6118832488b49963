#pragma once

#include <string>

namespace gullymark::office {

/// How the office is to be started. What a test says keeps it away from the user's office.
struct OfficeChoice {
    std::string profile;  // a folder of the test's own; empty for the user's profile
    bool headless = false;
};

}  // namespace gullymark::office
