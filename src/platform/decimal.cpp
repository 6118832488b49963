#include "platform/decimal.h"

#include <array>
#include <bit>
#include <cfloat>
#include <charconv>

namespace gullymark::platform {
namespace {

// A double is worked on as a double, and no wider.
static_assert(FLT_EVAL_METHOD == 0);

__extension__ using Wide = unsigned __int128;

constexpr int most_digits = 15;

constexpr auto powers_of_ten = [] {
    std::array<std::uint64_t, 20> powers{1};
    for (std::size_t i = 1; i < powers.size(); ++i) {
        powers[i] = powers[i - 1] * 10;
    }
    return powers;
}();

std::uint64_t power_of_ten(int exponent) {
    return powers_of_ten[static_cast<std::size_t>(exponent)];
}

/// The digits by way of the library's text "d.dde+xx".
Decimal digits_by_text(double number) {
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                   std::chars_format::scientific, most_digits - 1)
                         .ptr;
    Decimal decimal;
    const char* at = buffer.data();
    if (*at == '-') {
        decimal.negative = true;
        ++at;
    }
    for (; *at != 'e'; ++at) {
        if (*at != '.') {
            decimal.digits = decimal.digits * 10 + static_cast<std::uint64_t>(*at - '0');
        }
    }
    at += at[1] == '+' ? 2 : 1;
    std::from_chars(at, end, decimal.point);
    ++decimal.point;
    decimal.count = decimal.digits == 0 ? 0 : most_digits;
    return decimal;
}

/// A number whose digits follow from whole numbers of 128 bits alone: mantissa x 10^shift x 2^exponent.
struct Scaled {
    std::uint64_t mantissa;
    int exponent;  // from -79 to -3

    /// The number times 10^shift, shift 0 to 22, without what stands behind its point.
    [[nodiscard]] Wide product(int shift) const {
        const int first = shift > 19 ? 19 : shift;
        return Wide(mantissa) * power_of_ten(first) * power_of_ten(shift - first);
    }
    [[nodiscard]] std::uint64_t whole(Wide product) const {
        return static_cast<std::uint64_t>(product >> -exponent);
    }
    /// The same rounded, halves to the even number.
    [[nodiscard]] std::uint64_t rounded(Wide product) const {
        const auto down = whole(product);
        const Wide rest = product - (Wide(down) << -exponent);
        const Wide half = Wide(1) << (-exponent - 1);
        return down + ((rest > half || (rest == half && down % 2 == 1)) ? 1 : 0);
    }
};

const char* skip_zeros(const char* at, const char* end) {
    while (at != end && *at == '0') {
        ++at;
    }
    return at;
}

/// Appends the digits that stand at `at`, as far as a whole number has room for them; the end of those taken.
const char* take_digits(const char* at, const char* end, std::uint64_t& digits) {
    const char* const last = end - at > most_digits + 1 ? at + most_digits + 1 : end;
    for (; at != last && *at >= '0' && *at <= '9'; ++at) {
        digits = digits * 10 + static_cast<std::uint64_t>(*at - '0');
    }
    return at;
}

constexpr double smallest_scaled = 1e-7;
constexpr double scaled_end = 1e15;

}  // namespace

Decimal decimal_digits(double number) {
    const double size = number < 0.0 ? -number : number;
    if (!(size >= smallest_scaled && size < scaled_end)) {
        return digits_by_text(number);
    }
    const auto bits = std::bit_cast<std::uint64_t>(size);
    const int binary_exponent = static_cast<int>(bits >> 52) - 1023;
    const Scaled scaled{(bits & ((std::uint64_t(1) << 52) - 1)) | (std::uint64_t(1) << 52),
                        binary_exponent - 52};
    // The decimal exponent from the binary one, or one less: log10(2) is 315653 / 2^20.
    int exponent = static_cast<int>((std::int64_t(binary_exponent) * 315653) >> 20);
    Wide product = scaled.product(most_digits - 1 - exponent);
    if (scaled.whole(product) >= power_of_ten(most_digits)) {
        ++exponent;
        product = scaled.product(most_digits - 1 - exponent);
    }
    Decimal decimal{scaled.rounded(product), most_digits, exponent + 1, number < 0.0};
    if (decimal.digits == power_of_ten(most_digits)) {
        decimal.digits /= 10;
        ++decimal.point;
    }
    return decimal;
}

bool read_plain_digits(std::string_view text, Decimal& decimal) {
    const char* at = text.data();
    const char* const end = at + text.size();
    decimal = {};
    if (at != end && (*at == '-' || *at == '+')) {
        decimal.negative = *at == '-';
        ++at;
    }
    const char* const start = at;
    at = skip_zeros(at, end);
    const char* const whole = at;
    at = take_digits(at, end, decimal.digits);
    auto count = at - whole;
    if (at == end) {
        decimal.count = static_cast<int>(count);
        decimal.point = decimal.count;
        return end != start && count <= most_digits;
    }
    if (*at != '.' || end - start == 1) {
        return false;
    }
    const char* const fraction = ++at;
    at = count == 0 ? skip_zeros(at, end) : at;
    const char* const behind = at;
    at = take_digits(at, end, decimal.digits);
    count += at - behind;
    decimal.count = static_cast<int>(count);
    decimal.point = static_cast<int>(count - (end - fraction));
    return at == end && count <= most_digits;
}

bool read_exactly(const Decimal& decimal, double& number) {
    // Both a whole number of 15 digits and a power of ten up to the 22nd are doubles: their quotient is rounded once.
    const int decimals = decimal.count - decimal.point;
    constexpr int last_exact_power = 19;
    if (decimals > last_exact_power) {
        return false;
    }
    const double size = static_cast<double>(decimal.digits) / static_cast<double>(power_of_ten(decimals));
    number = decimal.negative ? -size : size;
    return true;
}

void round_half_away(Decimal& decimal, int decimals) {
    const int keep = decimal.point + decimals;
    if (keep >= decimal.count) {
        return;
    }
    if (keep < 0) {
        decimal.digits = 0;
        decimal.count = 0;
        return;
    }
    const std::uint64_t unit = power_of_ten(decimal.count - keep);
    const std::uint64_t rest = decimal.digits % unit;
    decimal.digits = decimal.digits / unit + (rest >= unit / 2 ? 1 : 0);
    decimal.count = keep;
    if (decimal.digits == power_of_ten(keep)) {  // carried into a new digit
        ++decimal.count;
        ++decimal.point;
    }
    if (decimal.digits == 0) {
        decimal.count = 0;
    }
}

}  // namespace gullymark::platform
