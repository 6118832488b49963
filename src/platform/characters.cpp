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

std::string on_one_line(std::string_view text) {
    constexpr std::string_view line_ends = "\r\n";
    const std::size_t begin = std::min(text.find_first_not_of(line_ends), text.size());
    const std::size_t end = text.find_last_not_of(line_ends) + 1;
    std::string line;
    for (std::size_t at = begin; at < end; ++at) {
        if (text[at] == '\n' && text[at - 1] == '\r') {
            continue;
        }
        line += line_ends.find(text[at]) == std::string_view::npos ? text[at] : ' ';
    }
    return line;
}

}  // namespace gullymark::platform
