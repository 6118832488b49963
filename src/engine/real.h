#pragma once

#include <cmath>
#include <compare>
#include <concepts>

namespace gullymark::engine {

/// Why a formula has no value.
enum class Fault : unsigned char {
    none,
    division_by_zero,
    overflow,
    no_real_power,  // a negative base under a non-whole power, 0 under a negative one, a root or logarithm of those
    unreadable_number,  // a text that is no number
    endless_search,     // a search that no further pass can bring closer
    tripped,            // made by a test
};

/// A checked double, finite by construction: an operation whose result is no finite number throws its Fault.
/// An underflow is 0. There is no way in from a whole number, so that no division of whole numbers can hide in a
/// formula: write 1.0 / 2.67.
class Real {
  public:
    constexpr Real() = default;
    template <std::floating_point Number>
    constexpr Real(Number number) : number_(check(static_cast<double>(number))) {}

    [[nodiscard]] constexpr double number() const { return number_; }

  private:
    static constexpr double check(double number) {
        // The difference of an infinity or a NaN with itself is no number.
        if (number - number != 0.0) {
            throw Fault::overflow;
        }
        return number;
    }

    double number_ = 0.0;
};

// The four operations and the comparisons of doubles. A result too large faults, and so does a division by 0.
constexpr Real operator+(Real a, Real b) {
    return {a.number() + b.number()};
}
constexpr Real operator-(Real a, Real b) {
    return {a.number() - b.number()};
}
constexpr Real operator*(Real a, Real b) {
    return {a.number() * b.number()};
}
constexpr Real operator/(Real a, Real b) {
    if (b.number() == 0.0) {
        throw Fault::division_by_zero;
    }
    return {a.number() / b.number()};
}
constexpr Real operator-(Real a) {
    return {-a.number()};
}
constexpr bool operator==(Real a, Real b) {
    return a.number() == b.number();
}
constexpr std::partial_ordering operator<=>(Real a, Real b) {
    return a.number() <=> b.number();
}

/// The value of a formula, or why it has none: for a fault that is nothing unusual, which is returned and not thrown.
struct Outcome {
    constexpr Outcome(Real number) : value(number) {}
    constexpr Outcome(Fault reason) : fault(reason) {}

    Real value;
    Fault fault = Fault::none;
};

/// The quotient of a formula whose divisor is 0 in ordinary inlets.
constexpr Outcome divide(Real a, Real b) {
    return b == 0.0 ? Outcome(Fault::division_by_zero) : Outcome(a / b);
}

/// `base` to the power `exponent`. Faults on a negative base under a non-whole exponent, on 0 under a negative one, and on
/// a result too large.
inline Real power(Real base, Real exponent) {
    const double b = base.number();
    const double e = exponent.number();
    if ((b < 0.0 && e != std::trunc(e)) || (b == 0.0 && e < 0.0)) {
        throw Fault::no_real_power;
    }
    return {std::pow(b, e)};
}

/// Faults on a result too large.
inline Real square(Real number) {
    return number * number;
}

/// Faults on a negative number.
inline Real square_root(Real number) {
    if (number < 0.0) {
        throw Fault::no_real_power;
    }
    return {std::sqrt(number.number())};
}

/// Faults on a number of 0 or below.
inline Real natural_logarithm(Real number) {
    if (number <= 0.0) {
        throw Fault::no_real_power;
    }
    return {std::log(number.number())};
}

/// The sine of an angle in radians.
inline Real sine(Real radians) {
    return {std::sin(radians.number())};
}

/// The number without its sign.
inline Real absolute(Real number) {
    return {std::fabs(number.number())};
}

}  // namespace gullymark::engine
