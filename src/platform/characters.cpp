#include "platform/characters.h"

#include <algorithm>

namespace gullymark::platform {
namespace {

bool starts_character(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

/// Where the character number `count` (0 is the first) starts; the end of the text when it has no more.
std::size_t start_of(std::string_view text, std::size_t count) {
    std::size_t started = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (starts_character(text[at]) && started++ == count) {
            return at;
        }
    }
    return text.size();
}

}  // namespace

std::size_t count_characters(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count_if(text, starts_character));
}

std::string first_characters(std::string_view text, std::size_t count) {
    return std::string(text.substr(0, start_of(text, count)));
}

std::string last_characters(std::string_view text, std::size_t count) {
    const std::size_t all = count_characters(text);
    return std::string(text.substr(all > count ? start_of(text, all - count) : 0));
}

}  // namespace gullymark::platform
