#pragma once

#include <stdexcept>
#include <string>
#include <system_error>
#include <utility>

namespace gullymark::platform {

/// A failure of the outside world (store, files, dialogs) with a description that a user can read.
class Failure : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Fails with the system's words for an error number, and the path that it befell.
[[noreturn]] inline void fail(int error, const std::string& path) {
    throw Failure(std::generic_category().message(error) + ": " + path);
}

/// Carries out one step and passes over its failure: who calls goes on with what there is.
template <typename Step>
void ignore_failure(Step&& step) {
    try {
        std::forward<Step>(step)();
    } catch (const Failure&) {  // NOLINT(bugprone-empty-catch): the next step runs
    }
}

}  // namespace gullymark::platform
