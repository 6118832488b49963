#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Lengths as a user counts them: in characters of UTF-8 text, not in bytes. Bytes that are no UTF-8 are taken as
/// they come; nothing fails.
namespace gullymark::platform {

/// How many characters `text` has; a byte that begins none adds none.
[[nodiscard]] std::size_t count_characters(std::string_view text);

/// The first `count` characters; the whole text when it has no more.
[[nodiscard]] std::string first_characters(std::string_view text, std::size_t count);

/// The last `count` characters; the whole text when it has no more.
[[nodiscard]] std::string last_characters(std::string_view text, std::size_t count);

/// The text for a field of one line: line ends around it fall away, those within become a blank each.
[[nodiscard]] std::string on_one_line(std::string_view text);

}  // namespace gullymark::platform
