#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

/// Numbers as text. Every value of a project is text; it is a number only while it is computed with.
/// Nothing here looks at the locale.
///
/// The one grammar of a number:
///
///     blanks [+|-] digits [. [digits]] [(e|E) [+|-] digits] blanks
///     blanks [+|-] . digits            [(e|E) [+|-] digits] blanks
///
/// Legal: "1", " -2.50 ", "+.5", "3.", "1e-3", "007". Illegal: "", ".", "-", "1,000", "0x10", "inf", "nan",
/// "1.5ft", "1 2", "- 1", "1e", "--1". A blank is the space character alone.
namespace gullymark::platform {

/// What a text is when it is read as a number.
enum class NumberFault { none, unreadable, overflow };

/// A number, or why there is none.
struct NumberRead {
    double number = 0.0;
    NumberFault fault = NumberFault::none;
};

/// The number in `text`, correctly rounded to a double. A value too small for a double is 0.
/// On a text outside the grammar, or a value too large for a double: `fault` says so and the number is 0.
NumberRead read_number(std::string_view text);

/// The decimal text of up to 15 significant digits of `number`: "0.1", "12.5", "1E-05"; empty for one that is infinite or
/// none. Values from 1E-04 up to below 1E+15 are written without an exponent. Zero is "0", never "-0".
std::string number_text(double number);

/// The decimal text of a number, in place.
struct NumberLetters {
    std::array<char, 32> letters{};
    std::size_t count = 0;

    /// Valid as long as this object.
    operator std::string_view() const { return {letters.data(), count}; }
};

/// As `number_text`, without a string of its own, for who writes many.
NumberLetters number_letters(double number);

/// `text` written as a number with as many decimals as `format` has zeros behind its point ("0.000", "#0", "#0.00"),
/// at least one digit before the point, halves rounded away from zero on the decimal digits of `number_text`,
/// and no minus sign before a zero. A text that is no number comes back unchanged, an empty one empty.
std::string format_text(std::string_view text, std::string_view format);

/// The same for a number that is at hand; empty for one that is infinite or none.
std::string format_number(double number, std::string_view format);

/// `text` without the blanks at both ends.
std::string_view trim_blanks(std::string_view text);

}  // namespace gullymark::platform
