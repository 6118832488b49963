#include "platform/characters.h"

#include <gtest/gtest.h>

namespace gullymark::platform {
namespace {

TEST(Characters, AreCountedAsAUserCountsThem) {
    EXPECT_EQ(count_characters(""), 0U);
    EXPECT_EQ(count_characters("abc"), 3U);
    EXPECT_EQ(count_characters("Stra\u00dfe \u20ac"), 8U);
}

TEST(Characters, TheFirstAndTheLastAreNeverCutInTheMiddle) {
    EXPECT_EQ(first_characters("\u00e4\u00f6x", 2), "\u00e4\u00f6");
    EXPECT_EQ(last_characters("x\u00e4\u00f6", 2), "\u00e4\u00f6");
    EXPECT_EQ(first_characters("\u00e4", 0), "");
    EXPECT_EQ(last_characters("\u00e4", 0), "");
}

TEST(Characters, ATextWithNoMoreThanWantedComesBackWhole) {
    EXPECT_EQ(first_characters("ab", 2), "ab");
    EXPECT_EQ(first_characters("ab", 9), "ab");
    EXPECT_EQ(last_characters("ab", 2), "ab");
    EXPECT_EQ(last_characters("ab", 9), "ab");
    EXPECT_EQ(last_characters("", 1), "");
}

TEST(Characters, StandOnOneLineWithABlankForEachLineEndWithin) {
    EXPECT_EQ(on_one_line("A1"), "A1");
    EXPECT_EQ(on_one_line(" A1 "), " A1 ");
    EXPECT_EQ(on_one_line("A1\r\n"), "A1");
    EXPECT_EQ(on_one_line("\n\rA1\n\n"), "A1");
    EXPECT_EQ(on_one_line("A1\r\nB1\nC1\rD1"), "A1 B1 C1 D1");
    EXPECT_EQ(on_one_line("A1\n\nB1"), "A1  B1");
    EXPECT_EQ(on_one_line("\r\n"), "");
    EXPECT_EQ(on_one_line(""), "");
}

}  // namespace
}  // namespace gullymark::platform
