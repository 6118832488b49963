#pragma once

#include <string>
#include <string_view>

namespace gullymark::calculation {

/// A text of the user as far as a line of a calculation has room for it: "..." stands for the rest. Line breaks become blanks.
std::string shortened(std::string_view text);

/// A formula as the engine writes it, with the signs of print: × − ≤ ≥ ≠ √. What stands in quotes is a text of the user: it
/// is shortened, and else stays as it is.
std::string typeset(std::string_view formula);

}  // namespace gullymark::calculation
