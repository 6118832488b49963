#include "platform/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <system_error>

#include "platform/decimal.h"

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

/// Writes the digit at `index` of the letters of a decimal, or a zero beyond them.
char digit_at(std::string_view letters, int index) {
    return index >= 0 && index < static_cast<int>(letters.size()) ? letters[static_cast<std::size_t>(index)]
                                                                  : '0';
}

/// The decimal with `decimals` places behind its point, which it has been rounded to.
std::string place_digits(const Decimal& decimal, int decimals) {
    std::array<char, 20> buffer{};
    const char* const end =
        decimal.count == 0 ? buffer.data()
                           : std::to_chars(buffer.data(), buffer.data() + buffer.size(), decimal.digits).ptr;
    const std::string_view letters(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const bool minus = decimal.negative && decimal.count > 0;
    const int whole = std::max(decimal.point, 1);
    std::string text(static_cast<std::size_t>((minus ? 1 : 0) + whole + (decimals > 0 ? decimals + 1 : 0)),
                     '0');
    char* to = text.data();
    if (minus) {
        *to++ = '-';
    }
    for (int i = decimal.point - whole; i < decimal.point; ++i) {
        *to++ = digit_at(letters, i);
    }
    if (decimals > 0) {
        *to++ = '.';
        for (int i = 0; i < decimals; ++i) {
            *to++ = digit_at(letters, decimal.point + i);
        }
    }
    return text;
}

/// The 15 digits of a whole number. Its halves do not wait for each other.
std::array<char, 15> letters_of(std::uint64_t digits) {
    std::array<char, 15> letters{};
    auto high = static_cast<std::uint32_t>(digits / 100'000'000);
    auto low = static_cast<std::uint32_t>(digits % 100'000'000);
    for (std::size_t i = 0; i < 7; ++i) {
        letters[6 - i] = static_cast<char>('0' + high % 10);
        letters[14 - i] = static_cast<char>('0' + low % 10);
        high /= 10;
        low /= 10;
    }
    letters[7] = static_cast<char>('0' + low);
    return letters;
}

/// A decimal of 15 digits, point -3 to 15, as its digits alone, with a point where it needs one and no zero too many; the
/// end of what was written.
char* write_plain(const Decimal& decimal, char* to) {
    const auto letters = letters_of(decimal.digits);
    const char* const digits = letters.data();
    const char* end = digits + letters.size();
    while (*(end - 1) == '0') {
        --end;
    }
    if (decimal.negative) {
        *to++ = '-';
    }
    if (decimal.point <= 0) {
        *to++ = '0';
        *to++ = '.';
        to = std::fill_n(to, -decimal.point, '0');
        return std::copy(digits, end, to);
    }
    to = std::copy(digits, digits + decimal.point, to);
    if (end > digits + decimal.point) {
        *to++ = '.';
        to = std::copy(digits + decimal.point, end, to);
    }
    return to;
}

/// A text of the form in which `number_letters` writes without an exponent: [-] digits [. digits], no zero too many before
/// the point, at most 15 significant digits. Its digits are those of the double that it reads as.
struct PlainText {
    bool is_plain = false;
    std::size_t point = 0;  // where it stands, or the end of the text
};

PlainText plain_text(std::string_view text) {
    const char* const start = text.data();
    const char* const end = start + text.size();
    const char* const whole = !text.empty() && *start == '-' ? start + 1 : start;
    const char* const point = skip_digits(whole, end);
    const bool below_one = point - whole == 1 && *whole == '0';
    if (point == whole || (*whole == '0' && !below_one)) {
        return {};
    }
    const char* significant = whole;
    const char* last = point;
    if (point != end) {
        if (*point != '.' || skip_digits(point + 1, end) != end) {
            return {};
        }
        last = end - 1;
        if (below_one) {
            significant = std::find_if(point + 1, end, [](char c) { return c != '0'; }) - 1;
        }
    }
    return {last - significant <= 15, static_cast<std::size_t>(point - start)};
}

/// Adds one to the last digit of a text of digits, a point and a minus sign.
void count_up(std::string& text) {
    std::size_t at = text.size();
    while (at > 0 && text[at - 1] != '-') {
        --at;
        if (text[at] == '9') {
            text[at] = '0';
        } else if (text[at] != '.') {
            ++text[at];
            return;
        }
    }
    text.insert(at, 1, '1');
}

/// Rounds a plain text to `decimals` behind its point, halves away from zero.
std::string round_plain(std::string_view text, const PlainText& plain, std::size_t decimals) {
    const std::size_t there = plain.point == text.size() ? 0 : text.size() - plain.point - 1;
    std::string rounded(text.substr(0, plain.point + (decimals == 0 ? 0 : decimals + 1)));
    if (there < decimals) {
        if (plain.point == text.size()) {
            rounded += '.';
        }
        rounded.append(decimals - there, '0');
    } else if (there > decimals && text[plain.point + 1 + decimals] >= '5') {
        count_up(rounded);
    }
    if (rounded.front() == '-' && rounded.find_first_not_of("0.", 1) == std::string::npos) {
        rounded.erase(0, 1);
    }
    return rounded;
}

int decimals_of(std::string_view format) {
    const auto point = format.find('.');
    return point == std::string_view::npos ? 0 : static_cast<int>(format.size() - point - 1);
}

}  // namespace

NumberRead read_number(std::string_view text) {
    Decimal decimal;
    double exact = 0.0;
    if (read_plain_digits(text, decimal) && read_exactly(decimal, exact)) {
        return {.number = exact};
    }
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

NumberLetters number_letters(double number) {
    NumberLetters written;
    if (!std::isfinite(number)) {
        return written;
    }
    char* const start = written.letters.data();
    char* to = start;
    if (number == 0.0) {
        *to++ = '0';
    } else if (const Decimal decimal = decimal_digits(number); decimal.point >= -3 && decimal.point <= 15) {
        to = write_plain(decimal, to);
    } else {
        to = std::to_chars(start, start + written.letters.size(), number, std::chars_format::general, 15).ptr;
        std::replace(start, to, 'e', 'E');
    }
    written.count = static_cast<std::size_t>(to - start);
    return written;
}

std::string number_text(double number) {
    return std::string(number_letters(number));
}

std::string format_number(double number, std::string_view format) {
    if (!std::isfinite(number)) {
        return {};
    }
    Decimal decimal = decimal_digits(number);
    const int decimals = decimals_of(format);
    round_half_away(decimal, decimals);
    return place_digits(decimal, decimals);
}

std::string format_text(std::string_view text, std::string_view format) {
    const int decimals = decimals_of(format);
    if (const PlainText plain = plain_text(text); plain.is_plain) {
        return round_plain(text, plain, static_cast<std::size_t>(decimals));
    }
    const NumberRead read = read_number(text);
    return read.fault == NumberFault::none ? format_number(read.number, format) : std::string(text);
}

std::string_view trim_blanks(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? text.substr(0, 0)
                                           : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace gullymark::platform
