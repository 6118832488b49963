#include "calculation/typeset.h"

#include <gtest/gtest.h>

#include "platform/characters.h"

namespace gullymark::calculation {
namespace {

TEST(Typeset, SignsOfAFormulaBecomeThoseOfPrint) {
    EXPECT_EQ(typeset("K_L x Q^0.42 x (1 / (n x Se))^0.6"),
              "K_L \u00D7 Q^0.42 \u00D7 (1 / (n \u00D7 Se))^0.6");
    EXPECT_EQ(typeset("1 - (1 - L / LT)^1.8"), "1 \u2212 (1 \u2212 L / LT)^1.8");
    EXPECT_EQ(typeset("W <= 2 or T >= 3 or B <> 0"), "W \u2264 2 or T \u2265 3 or B \u2260 0");
    EXPECT_EQ(typeset("B + sqrt(y^2)"), "B + \u221A(y^2)");
    EXPECT_EQ(typeset("0.14 x Q + (-0.6)"), "0.14 \u00D7 Q + (\u22120.6)");
    EXPECT_EQ(typeset("-0.25"), "\u22120.25");
    EXPECT_EQ(typeset(""), "");
}

TEST(Typeset, ATextOfTheUserStaysAsItIs) {
    EXPECT_EQ(typeset("INLET_SUBTYPE = \"X - DI x Grate\" or W x 2"),
              "INLET_SUBTYPE = \"X - DI x Grate\" or W \u00D7 2");
}

TEST(Typeset, ATextOfAnyLengthStaysOnItsLine) {
    const std::string longest(60, 'a');
    EXPECT_EQ(shortened(longest), longest);
    EXPECT_EQ(shortened(longest + "b"), longest + "...");
    EXPECT_EQ(shortened("two\r\nlines"), platform::on_one_line("two\r\nlines"));
    EXPECT_EQ(typeset("S = \"" + longest + "b\" and W x 2"), "S = \"" + longest + "...\" and W \u00D7 2");
    EXPECT_EQ(typeset("S = \"never closed"), "S = \"never closed\"");
}

}  // namespace
}  // namespace gullymark::calculation
