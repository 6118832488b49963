#include "engine/written_formula.h"

#include <gtest/gtest.h>

#include <cmath>

namespace gullymark::engine::written {
namespace {

double number(std::string_view formula) {
    return std::get<double>(evaluate(formula));
}
bool answer(std::string_view formula) {
    return std::get<bool>(evaluate(formula));
}

TEST(WrittenFormula, IsWorkedOutInItsOrder) {
    EXPECT_EQ(number("1 + 2 x 3"), 7.0);
    EXPECT_EQ(number("(1 + 2) x 3"), 9.0);
    EXPECT_EQ(number("8 / 4 / 2 - 1 - 1"), -1.0);
    EXPECT_EQ(number("2 x 3^2"), 18.0);
    EXPECT_EQ(number("8^(1 / 3)"), std::pow(8.0, 1.0 / 3.0));
    EXPECT_EQ(number("3 - (-2)"), 5.0);
    EXPECT_EQ(number("(-2)^2 + -1"), 3.0);
    EXPECT_EQ(number("1e-05 x 1E+3"), 1e-05 * 1e3);
    EXPECT_EQ(number("max(1, 2) + sqrt(9) - sin(-2) + ln(1)"), 5.0 - std::sin(-2.0));
    EXPECT_EQ(std::get<double>(evaluate("spread(1, 2) + 1", {{"spread", 4.0}})), 5.0);
}

TEST(WrittenFormula, AConditionEndsAtTheSideThatDecides) {
    EXPECT_TRUE(answer("1 < 2 and not 2 <> 2"));
    EXPECT_FALSE(answer("1 >= 2 or 3 <= 2"));
    EXPECT_TRUE(answer("1 > 0 or 1 / 0 > 1"));
    EXPECT_FALSE(answer("1 < 0 and 1 / 0 > 1"));
    EXPECT_TRUE(answer("(1 < 0 or 1 = 1) and \"a\" = \"a\""));
    EXPECT_FALSE(answer("\"a b (\" = \"\""));
    EXPECT_THROW(answer("1 > 0 and 1 / 0 > 1"), NoValue);
}

TEST(WrittenFormula, WhatHasNoValueOrIsNoFormulaIsToldApart) {
    for (const auto* text : {"1 / 0", "(-2)^0.5", "sqrt(-1)", "ln(0)", "0^(-1)", "\"abc\" + 1", "1e308 x 10",
                             "? + 1", "no_lines(1, 2)"}) {
        EXPECT_THROW(number(text), NoValue) << text;
    }
    for (const auto* text : {"1 +", "(1", "1 2", "cot(1)", "\"a", "1 and 2"}) {
        EXPECT_THROW(number(text), NoFormula) << text;
    }
}

TEST(WrittenFormula, HalvesAreRoundedAwayFromZeroOnFifteenDigits) {
    EXPECT_EQ(rounded_text(0.25545, 4), "0.2555");
    EXPECT_EQ(rounded_text(2.0005, 3), "2.001");
    EXPECT_EQ(rounded_text(-2.0005, 3), "-2.001");
    EXPECT_EQ(rounded_text(9.9996, 3), "10.000");
    EXPECT_EQ(rounded_text(-0.0004, 3), "0.000");
    EXPECT_EQ(rounded_text(0.0005, 3), "0.001");
    EXPECT_EQ(rounded_text(0.00005, 3), "0.000");
    EXPECT_EQ(rounded_text(123456.0, 3), "123456.000");
    EXPECT_EQ(rounded_text(0.0, 3), "0.000");
}

}  // namespace
}  // namespace gullymark::engine::written
