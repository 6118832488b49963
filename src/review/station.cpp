#include "review/station.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "platform/number_text.h"

namespace gullymark::review {
namespace {

constexpr double farthest = 1e7;

bool are_digits(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

/// Digits with at most one point behind the first of them.
bool is_plain_number(std::string_view text) {
    const auto point = text.find('.');
    return are_digits(text.substr(0, point)) &&
           (point == std::string_view::npos || point + 1 == text.size() ||
            are_digits(text.substr(point + 1)));
}

bool begins_with_word(std::string_view text, std::string_view word) {
    return text.size() > word.size() &&
           std::equal(word.begin(), word.end(), text.begin(), [](char of_word, char letter) {
               return letter == of_word || letter == of_word - 'A' + 'a';
           });
}

std::string_view without_word(std::string_view text) {
    for (const std::string_view word : {"STATION", "STA.", "STA"}) {
        if (begins_with_word(text, word)) {
            return platform::trim_blanks(text.substr(word.size()));
        }
    }
    return text;
}

/// "12+34.50" as "1234.50": the digits behind the plus fill those of a station.
std::optional<std::string> without_plus(std::string_view text) {
    const auto plus = text.find('+');
    if (plus == std::string_view::npos) {
        return std::string(text);
    }
    const auto whole = platform::trim_blanks(text.substr(0, plus));
    const auto behind = platform::trim_blanks(text.substr(plus + 1));
    const auto digits = behind.substr(0, behind.find('.')).size();
    if (!are_digits(whole) || (digits != 2 && digits != 3)) {
        return std::nullopt;
    }
    return std::string(whole) + std::string(behind);
}

}  // namespace

std::optional<double> read_station(std::string_view text) {
    std::string_view rest = without_word(platform::trim_blanks(text));
    const bool is_ahead = rest.starts_with('-');
    rest.remove_prefix(is_ahead ? 1 : 0);
    const auto plain = without_plus(rest);
    if (!plain || !is_plain_number(*plain)) {
        return std::nullopt;
    }
    const auto read = platform::read_number(*plain);
    if (read.fault != platform::NumberFault::none || read.number > farthest) {
        return std::nullopt;
    }
    return is_ahead && read.number != 0 ? -read.number : read.number;
}

}  // namespace gullymark::review
