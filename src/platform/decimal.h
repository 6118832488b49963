#pragma once

#include <cstdint>
#include <string_view>

/// The decimal digits of a number, which is what formats round: never its binary value.
namespace gullymark::platform {

/// A number of at most 15 significant digits, 0.d1d2d3... x 10^point, its digits held as one whole number.
struct Decimal {
    std::uint64_t digits = 0;  // 0 for a zero, which has no digits
    int count = 0;             // how many there are, zeros at the end included; the first is not 0
    int point = 0;
    bool negative = false;
};

/// The 15 significant digits of a finite number, correctly rounded, halves to the even one; none of 0.
Decimal decimal_digits(double number);

/// The digits of a text of the plain form [+|-] digits [. [digits]] with at most 15 that are significant. False for any
/// other text, a number or not.
bool read_plain_digits(std::string_view text, Decimal& decimal);

/// The double nearest to a decimal that `read_plain_digits` has read. False when it takes more than one exact operation;
/// then `number` stays.
bool read_exactly(const Decimal& decimal, double& number);

/// Rounds to `decimals` places behind the point, halves away from zero. A decimal that becomes 0 has no digits left.
void round_half_away(Decimal& decimal, int decimals);

}  // namespace gullymark::platform
