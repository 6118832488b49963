#pragma once

#include <cstddef>
#include <functional>

namespace gullymark::review {

/// Told every now and then how many of all inlets are done; false ends the work, which then gives nothing. It may show
/// something, but neither solve nor change what the engine has open.
using Progress = std::function<bool(std::size_t done, std::size_t all)>;

}  // namespace gullymark::review
