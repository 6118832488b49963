#include "platform/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <system_error>

namespace gullymark::platform {
namespace {

bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

const char* skip_digits(const char* at, const char* end) {
    while (at != end && is_digit(*at)) {
        ++at;
    }
    return at;
}

/// The end of the exponent that starts at `at`, or `at` itself when there is none, or null when it has no digits.
const char* skip_exponent(const char* at, const char* end) {
    if (at == end || (*at != 'e' && *at != 'E')) {
        return at;
    }
    ++at;
    if (at != end && (*at == '+' || *at == '-')) {
        ++at;
    }
    const char* stop = skip_digits(at, end);
    return stop == at ? nullptr : stop;
}

/// True when a legal unsigned number that no double holds is too large, and not too small: its first digit that is
/// not 0 stands, after the exponent has moved the point, before the point.
bool exceeds_one(const char* at, const char* end) {
    std::int64_t digits_before_point = 0;
    bool behind_point = false;
    bool significant = false;
    for (; at != end && *at != 'e' && *at != 'E'; ++at) {
        if (*at == '.') {
            behind_point = true;
            continue;
        }
        significant = significant || *at != '0';
        if (significant && !behind_point) {
            ++digits_before_point;
        } else if (!significant && behind_point) {
            --digits_before_point;
        }
    }
    if (at == end) {
        return digits_before_point > 0;
    }
    ++at;
    const bool negative = *at == '-';
    at += (*at == '+' || *at == '-') ? 1 : 0;
    std::int64_t exponent = 0;
    if (std::from_chars(at, end, exponent).ec != std::errc{}) {
        return !negative;
    }
    return digits_before_point + (negative ? -exponent : exponent) > 0;
}

/// The decimal digits of a number and where its point stands: 0.d1d2d3... x 10^point.
struct Decimal {
    std::array<char, 17> digits{};
    int count = 0;
    int point = 0;
    bool negative = false;
};

/// The up to 15 significant digits of `number`.
Decimal decimal_digits(double number) {
    std::array<char, 32> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::scientific, 14)
            .ptr;
    Decimal decimal;
    const char* at = buffer.data();
    if (*at == '-') {
        decimal.negative = true;
        ++at;
    }
    for (; *at != 'e'; ++at) {
        if (*at != '.') {
            decimal.digits.at(static_cast<std::size_t>(decimal.count++)) = *at;
        }
    }
    at += at[1] == '+' ? 2 : 1;
    std::from_chars(at, end, decimal.point);
    ++decimal.point;
    while (decimal.count > 0 && decimal.digits.at(static_cast<std::size_t>(decimal.count - 1)) == '0') {
        --decimal.count;
    }
    return decimal;
}

char digit_at(const Decimal& decimal, int index) {
    return index >= 0 && index < decimal.count ? decimal.digits.at(static_cast<std::size_t>(index)) : '0';
}

/// Rounds to `decimals` places behind the point, halves away from zero.
void round_half_away(Decimal& decimal, int decimals) {
    const int keep = decimal.point + decimals;
    if (keep >= decimal.count) {
        return;
    }
    const bool up = keep >= 0 && digit_at(decimal, keep) >= '5';
    decimal.count = std::max(keep, 0);
    if (!up) {
        return;
    }
    int at = keep - 1;
    while (at >= 0 && decimal.digits.at(static_cast<std::size_t>(at)) == '9') {
        --at;
    }
    if (at >= 0) {
        ++decimal.digits.at(static_cast<std::size_t>(at));
        decimal.count = at + 1;
    } else {
        decimal.digits.front() = '1';
        decimal.count = 1;
        ++decimal.point;
    }
}

int decimals_of(std::string_view format) {
    const auto point = format.find('.');
    return point == std::string_view::npos ? 0 : static_cast<int>(format.size() - point - 1);
}

}  // namespace

NumberRead read_number(std::string_view text) {
    text = trim_blanks(text);
    const char* at = text.data();
    const char* end = at + text.size();
    const bool negative = !text.empty() && *at == '-';
    at += (!text.empty() && (*at == '+' || *at == '-')) ? 1 : 0;
    const char* start = at;
    at = skip_digits(at, end);
    auto digits = at - start;
    if (at != end && *at == '.') {
        const char* fraction = at + 1;
        at = skip_digits(fraction, end);
        digits += at - fraction;
    }
    if (digits == 0 || skip_exponent(at, end) != end) {
        return {.fault = NumberFault::unreadable};
    }
    double number = 0.0;
    const auto read = std::from_chars(start, end, number);
    if (read.ec == std::errc::result_out_of_range) {
        if (exceeds_one(start, end)) {
            return {.fault = NumberFault::overflow};
        }
        number = 0.0;
    }
    return {.number = negative ? -number : number};
}

std::string number_text(double number) {
    if (number == 0.0) {
        return "0";
    }
    std::array<char, 40> buffer{};
    const auto written =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::general, 15);
    std::string text(buffer.data(), written.ptr);
    std::replace(text.begin(), text.end(), 'e', 'E');
    return text;
}

std::string format_number(double number, std::string_view format) {
    const int decimals = decimals_of(format);
    Decimal decimal = decimal_digits(number);
    round_half_away(decimal, decimals);
    std::string text;
    if (decimal.negative && decimal.count > 0) {
        text += '-';
    }
    for (int i = std::min(0, decimal.point - 1); i < decimal.point; ++i) {
        text += digit_at(decimal, i);
    }
    if (decimals > 0) {
        text += '.';
        for (int i = 0; i < decimals; ++i) {
            text += digit_at(decimal, decimal.point + i);
        }
    }
    return text;
}

std::string format_text(std::string_view text, std::string_view format) {
    const NumberRead read = read_number(text);
    return read.fault == NumberFault::none ? format_number(read.number, format) : std::string(text);
}

std::string_view trim_blanks(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? text.substr(0, 0)
                                           : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace gullymark::platform
