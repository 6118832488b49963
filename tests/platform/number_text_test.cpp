#include "platform/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace gullymark::platform {
namespace {

struct ReadCase {
    std::string text;
    double number;
};

TEST(NumberText, ReadsEveryFormOfTheGrammar) {
    const std::vector<ReadCase> cases = {
        {"1", 1.0},       {" -2.50 ", -2.5}, {"+.5", 0.5},         {"3.", 3.0},
        {"1e-3", 0.001},  {"007", 7.0},      {"1E+2", 100.0},      {"-0", 0.0},
        {"  0 ", 0.0},    {"12.5e1", 125.0}, {"1e-400", 0.0},      {"-1e-999999", 0.0},
        {"1e308", 1e308}, {"0e999", 0.0},    {"0.0000001e7", 1.0}, {"0e-999", 0.0},
    };
    for (const auto& [text, number] : cases) {
        const NumberRead read = read_number(text);
        EXPECT_EQ(read.fault, NumberFault::none) << '"' << text << '"';
        EXPECT_EQ(read.number, number) << '"' << text << '"';
    }
}

TEST(NumberText, RefusesEverythingElse) {
    const std::vector<std::string> texts = {"",    " ",     ".",   "-",   "+.",    "1,000", "0x10", "inf",
                                            "nan", "1.5ft", "1 2", "- 1", "1e",    "--1",   "1e+",  "e5",
                                            ".e5", "1.2.3", "\t1", "1\n", "1e5.0", "abc",   "-inf", "1_0"};
    for (const auto& text : texts) {
        EXPECT_EQ(read_number(text).fault, NumberFault::unreadable) << '"' << text << '"';
        EXPECT_EQ(read_number(text).number, 0.0) << '"' << text << '"';
    }
}

TEST(NumberText, ANumberTooLargeForADoubleIsAnOverflow) {
    for (const std::string text : {"1e309", "-1e309", "1e99999999999999999999", "1000e306", "0.01e311"}) {
        EXPECT_EQ(read_number(text).fault, NumberFault::overflow) << text;
    }
    EXPECT_EQ(read_number("1" + std::string(400, '0')).fault, NumberFault::overflow);
    EXPECT_EQ(read_number("0." + std::string(400, '0') + "1").number, 0.0);
    EXPECT_EQ(read_number("0." + std::string(400, '0') + "1e401").number, 1.0);
}

TEST(NumberText, WritesUpToFifteenSignificantDigits) {
    EXPECT_EQ(number_text(0.0), "0");
    EXPECT_EQ(number_text(-0.0), "0");
    EXPECT_EQ(number_text(12.5), "12.5");
    EXPECT_EQ(number_text(0.1 + 0.2), "0.3");
    EXPECT_EQ(number_text(-1.0 / 3.0), "-0.333333333333333");
    EXPECT_EQ(number_text(1e15), "1E+15");
    EXPECT_EQ(number_text(123456789012345.0), "123456789012345");
    EXPECT_EQ(number_text(0.00001), "1E-05");
    EXPECT_EQ(read_number(number_text(2.5e-7)).number, 2.5e-7);
    EXPECT_EQ(number_text(0.0001), "0.0001");
    EXPECT_EQ(number_text(0.00099999999999999991), "0.001");
    EXPECT_EQ(number_text(9.9999999999999999e-5), "0.0001");
    EXPECT_EQ(number_text(0.00009999999999999), "9.999999999999E-05");
    EXPECT_EQ(number_text(999999999999999.0), "999999999999999");
    EXPECT_EQ(number_text(999999999999999.9), "1E+15");
    EXPECT_EQ(number_text(-1200.0), "-1200");
}

struct FormatCase {
    std::string text, format, result;
};

TEST(NumberText, FormatsWithFixedDecimalsAndRoundsHalvesAwayFromZero) {
    const std::vector<FormatCase> cases = {
        {"1", "#0.000", "1.000"},
        {"0.5", "#0.000", "0.500"},
        {"23.9452", "0.000", "23.945"},
        {"0.0005", "0.000", "0.001"},
        {"-0.0005", "0.000", "-0.001"},
        {"0.00049999", "0.000", "0.000"},
        {"-0.0004", "0.000", "0.000"},
        {"2.5", "#0", "3"},
        {"-2.5", "#0", "-3"},
        {"0.5", "#0", "1"},
        {"0.05", "0", "0"},
        {"0.4", "#0", "0"},
        {"9.9996", "0.000", "10.000"},
        {"99.95", "0.0", "100.0"},
        {"1.0005", "0.000", "1.001"},
        {"1.005", "0.00", "1.01"},
        {"1e15", "0.00", "1000000000000000.00"},
        {"1.5E+20", "0.0", "150000000000000000000.0"},
        {"0", "#0.0000", "0.0000"},
        {"-0", "0.0", "0.0"},
        {" 7 ", "0.00", "7.00"},
        {"1e-300", "0.0000", "0.0000"},
        {"0.00000000000000049999999999999999", "0.000", "0.000"},
        {"-0.0", "0", "0"},
        {"-0.0005", "0.00", "0.00"},
        {"-9.9995", "0.000", "-10.000"},
        {"007", "0.0", "7.0"},
        {"+7", "0.0", "7.0"},
        {".5", "0.00", "0.50"},
        {"3.", "0.0", "3.0"},
        {"99999.5", "#0", "100000"},
        {"0.999999999999999", "0.000", "1.000"},
        {"123456789012.0005", "0.000", "123456789012.001"},
        // The sixteenth digit is rounded before the format rounds: 0.0005 becomes of what is less.
        {"0.12345000000000049", "0.0000", "0.1235"},
        {"1.000499999999999999", "0.000", "1.001"},
    };
    for (const auto& [text, format, result] : cases) {
        EXPECT_EQ(format_text(text, format), result) << text << " with " << format;
    }
}

TEST(NumberText, ATextThatIsNoNumberGoesThroughAFormatUnchanged) {
    for (const std::string text : {"", ".", "abc", "1,000", "1e999"}) {
        EXPECT_EQ(format_text(text, "0.000"), text);
    }
}

/// A sum of numbers that a project may hold can be infinite, and has no digits.
TEST(NumberText, ANumberWithoutDigitsHasNoText) {
    for (const double number : {HUGE_VAL, -HUGE_VAL, std::nan("")}) {
        EXPECT_EQ(number_text(number), "");
        EXPECT_EQ(format_number(number, "0.000"), "");
        EXPECT_EQ(number_letters(number).count, 0U);
    }
    EXPECT_EQ(number_text(1.7e308), "1.7E+308");
}

TEST(NumberText, TrimsBlanksAtBothEndsOnly) {
    EXPECT_EQ(trim_blanks("  a b "), "a b");
    EXPECT_EQ(trim_blanks("   "), "");
    EXPECT_EQ(trim_blanks(""), "");
}

}  // namespace
}  // namespace gullymark::platform
