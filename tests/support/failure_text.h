#pragma once

#include <string>

#include "platform/failure.h"

namespace gullymark::testing_support {

/// The description of the failure that `action` ends with.
template <typename Action>
std::string failure_text(const Action& action) {
    try {
        action();
    } catch (const platform::Failure& failure) {
        return failure.what();
    }
    return "(no failure)";
}

}  // namespace gullymark::testing_support
