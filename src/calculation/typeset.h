#pragma once

#include <string>
#include <string_view>

namespace gullymark::calculation {

/// A formula as the engine writes it, with the signs of print: × − ≤ ≥ ≠ √. What stands in quotes is a text of the user and
/// stays as it is.
std::string typeset(std::string_view formula);

}  // namespace gullymark::calculation
