#pragma once

#include <stdexcept>

namespace gullymark::platform {

/// A failure of the outside world (store, files, dialogs) with a description that a user can read.
class Failure : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace gullymark::platform
