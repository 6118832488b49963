#include "platform/decimal.h"

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <random>
#include <string>

#include "platform/number_text.h"

namespace gullymark::platform {
namespace {

std::string shown(const Decimal& decimal) {
    return (decimal.negative ? "-0." : "0.") + std::to_string(decimal.digits) + 'e' +
           std::to_string(decimal.point);
}

/// The same by the C library, which has all digits of the binary value.
std::string shown_by_the_library(double number) {
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%.14e", number);
    const std::string all(text.data());
    const auto e = all.find('e');
    std::string digits;
    for (const char c : all.substr(0, e)) {
        digits += c == '.' || c == '-' ? "" : std::string(1, c);
    }
    return (all.front() == '-' ? "-0." : "0.") + digits + 'e' +
           std::to_string(std::stoi(all.substr(e + 1)) + 1);
}

TEST(Decimal, HasTheFifteenDigitsOfTheBinaryValueCorrectlyRounded) {
    for (const double number :
         {1.0, 0.1, 1.0 / 3.0, -2.0 / 3.0, 123456789012345.0, 999999999999999.9, 1e15, 1e-7,
          9.99999999999999951e-8, 5e-324, 1.7976931348623157e308, 0.5, 1.0 / 1024.0}) {
        EXPECT_EQ(shown(decimal_digits(number)), shown_by_the_library(number)) << number;
    }
}

TEST(Decimal, HalvesGoToTheEvenDigit) {
    // Exactly representable, and exactly between two numbers of 15 digits.
    EXPECT_EQ(decimal_digits(100000000000000.5).digits, 100000000000000U);
    EXPECT_EQ(decimal_digits(100000000000001.5).digits, 100000000000002U);
    EXPECT_EQ(decimal_digits(1000000000000.125).digits, 100000000000012U);
    EXPECT_EQ(decimal_digits(1000000000000.375).digits, 100000000000038U);
}

TEST(Decimal, AgreesWithTheLibraryOnRandomNumbersOfAllSizes) {
    std::mt19937_64 random(1999);
    for (int i = 0; i < 20'000; ++i) {
        const double fraction = static_cast<double>(random() >> 11) + 0.5;
        const double number = std::ldexp(fraction, static_cast<int>(random() % 160) - 110);
        ASSERT_EQ(shown(decimal_digits(number)), shown_by_the_library(number)) << number;
    }
}

TEST(Decimal, RoundsHalvesAwayFromZero) {
    struct Rounding {
        const char* text;
        int decimals;
        const char* rounded;
    };
    for (const auto& each :
         {Rounding{"2.5", 0, "0.3e1"}, Rounding{"0.5", 0, "0.1e1"}, Rounding{"0.49", 0, "0.0e0"},
          Rounding{"0.05", 0, "0.0e-1"}, Rounding{"9.995", 2, "0.1000e2"}, Rounding{"-1.005", 2, "-0.101e1"},
          Rounding{"12.5", 3, "0.125e2"}}) {
        Decimal decimal;
        ASSERT_TRUE(read_plain_digits(each.text, decimal));
        round_half_away(decimal, each.decimals);
        EXPECT_EQ(shown(decimal), each.rounded) << each.text;
    }
}

TEST(Decimal, ReadsPlainTextsAlone) {
    Decimal decimal;
    for (const auto* text : {"1", "-1.5", "+.5", "3.", "007", "0.000000000000000000123456789012345"}) {
        EXPECT_TRUE(read_plain_digits(text, decimal)) << text;
    }
    for (const auto* text : {"", ".", "-", "-.", "1e5", " 1", "1 ", "1.2.3", "1,5", "1234567890123456",
                             "1.234567890123456", "12345678901234567890123456789012345678901234567890"}) {
        EXPECT_FALSE(read_plain_digits(text, decimal)) << text;
    }
}

TEST(Decimal, AReadNumberIsTheNearestDouble) {
    std::mt19937_64 random(1999);
    for (int i = 0; i < 20'000; ++i) {
        const std::string text =
            std::to_string(random() % 1'000'000'000) + '.' + std::to_string(random() % 1'000'000);
        double nearest = 0.0;
        std::from_chars(text.data(), text.data() + text.size(), nearest);
        ASSERT_EQ(read_number(text).number, nearest) << text;
    }
}

}  // namespace
}  // namespace gullymark::platform
