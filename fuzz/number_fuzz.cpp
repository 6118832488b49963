// Any text as a number, and any number in any format: the reader agrees with the grammar of its header, a number written
// reads again as itself, a formatted one as the rounded one, and formatting what is formatted changes nothing.
//
// An input is a letter that stands for one of the formats, then the text.

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/number_text.h"
#include "target.h"

namespace {

using namespace gullymark::platform;

[[noreturn]] void fail(const char* what, std::string_view text) {
    std::fprintf(stderr, "number_fuzz: %s: \"%.*s\"\n", what, static_cast<int>(text.size()), text.data());
    std::abort();
}

/// The grammar as a machine: where the reader is, and what the next letter brings it to. Written apart from the reader.
enum State { start, sign, whole, point, bare_point, fraction, mark, mark_sign, exponent, tail, wrong };

State next(State state, char letter) {
    const bool digit = letter >= '0' && letter <= '9';
    switch (state) {
        case start:
            if (letter == ' ') {
                return start;
            }
            if (letter == '+' || letter == '-') {
                return sign;
            }
            [[fallthrough]];
        case sign:
            return digit ? whole : letter == '.' ? bare_point : wrong;
        case bare_point:
            return digit ? fraction : wrong;
        case whole:
            if (digit || letter == '.') {
                return digit ? whole : point;
            }
            [[fallthrough]];
        case point:
        case fraction:
            return digit ? fraction : letter == 'e' || letter == 'E' ? mark : letter == ' ' ? tail : wrong;
        case mark:
            if (letter == '+' || letter == '-') {
                return mark_sign;
            }
            [[fallthrough]];
        case mark_sign:
            return digit ? exponent : wrong;
        case exponent:
            return digit ? exponent : letter == ' ' ? tail : wrong;
        case tail:
            return letter == ' ' ? tail : wrong;
        case wrong:
            break;
    }
    return wrong;
}

bool is_number(std::string_view text) {
    State state = start;
    for (const char letter : text) {
        state = next(state, letter);
    }
    return state == whole || state == point || state == fraction || state == exponent || state == tail;
}

void check_read(std::string_view text, const NumberRead& read) {
    if (is_number(text) == (read.fault == NumberFault::unreadable)) {
        fail("the reader and the grammar do not agree", text);
    }
    if (!std::isfinite(read.number) || (read.fault != NumberFault::none && read.number != 0.0)) {
        fail("the number is not what the fault says", text);
    }
    // The library's own reader takes more, but what both take is one number.
    if (read.fault == NumberFault::none && std::strtod(std::string(text).c_str(), nullptr) != read.number) {
        fail("another number was read", text);
    }
}

/// 15 digits say a number to within one half of the last.
void check_written(double number) {
    const auto text = number_text(number);
    const auto again = read_number(text);
    const bool overflows = std::abs(number) > 1.7e308;
    if (!overflows && (again.fault != NumberFault::none || number_text(again.number) != text ||
                       std::abs(again.number - number) > std::abs(number) * 1e-14)) {
        fail("a number written does not read again", text);
    }
}

void check_formatted(std::string_view text, const NumberRead& read, std::string_view format) {
    const auto formatted = format_text(text, format);
    if (read.fault != NumberFault::none) {
        if (formatted != text) {
            fail("what is no number was formatted", text);
        }
        return;
    }
    const auto point = format.find('.');
    const auto decimals = point == std::string_view::npos ? 0 : format.size() - point - 1;
    const auto again = read_number(formatted);
    if (std::abs(read.number) > 1e300) {
        return;
    }
    const double half = 0.5 * std::pow(10.0, -static_cast<double>(decimals));
    if (again.fault != NumberFault::none ||
        std::abs(again.number - read.number) > half + std::abs(read.number) * 1e-14) {
        fail("a formatted number does not read again as the rounded one", formatted);
    }
    if (formatted.starts_with("-") && again.number == 0.0) {
        fail("a zero with a minus sign", formatted);
    }
    if (decimals > 0 && formatted.size() - formatted.find('.') - 1 != decimals) {
        fail("another number of decimals", formatted);
    }
    if (std::abs(read.number) < 1e9 && format_text(formatted, format) != formatted) {
        fail("formatting twice changes it", formatted);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static constexpr std::array formats{"0",      "0.0", "0.00", "0.000", "0.0000",
                                        "0.0000", "#0",  "#0.0", "#0.00", "#,##0.00"};
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const auto format =
        formats.at(input.empty() ? 0 : static_cast<unsigned char>(input.front()) % formats.size());
    const auto text = input.substr(input.empty() ? 0 : 1);
    const auto read = read_number(text);
    check_read(text, read);
    check_written(read.number);
    check_formatted(text, read, format);
    return 0;
}
