#include "review/station.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace gullymark::review {
namespace {

TEST(Station, StationsOfAHundredFeetAreRead) {
    EXPECT_EQ(read_station("12+34.50"), 1234.5);
    EXPECT_EQ(read_station("12+34"), 1234);
    EXPECT_EQ(read_station("0+00"), 0);
    EXPECT_EQ(read_station("1234+05.25"), 123405.25);
}

TEST(Station, StationsOfAKilometerAreToldByTheirThreeDigits) {
    EXPECT_EQ(read_station("1+000"), 1000);
    EXPECT_EQ(read_station("1+250.5"), 1250.5);
    EXPECT_EQ(read_station("0+025.125"), 25.125);
}

TEST(Station, ADistanceIsReadAsItIs) {
    EXPECT_EQ(read_station("1234.5"), 1234.5);
    EXPECT_EQ(read_station("1234"), 1234);
    EXPECT_EQ(read_station("12."), 12);
}

TEST(Station, BlanksAndTheWordBeforeItAreNoPartOfIt) {
    EXPECT_EQ(read_station("  12+34.50 "), 1234.5);
    EXPECT_EQ(read_station("12 + 34.50"), 1234.5);
    EXPECT_EQ(read_station("STA 12+34"), 1234);
    EXPECT_EQ(read_station("Sta. 12+34"), 1234);
    EXPECT_EQ(read_station("sta12+34"), 1234);
    EXPECT_EQ(read_station("Station 12+34"), 1234);
}

TEST(Station, AMinusStandsAheadOfTheStart) {
    EXPECT_EQ(read_station("-0+50"), -50);
    EXPECT_EQ(read_station("-12.5"), -12.5);
    EXPECT_FALSE(std::signbit(*read_station("-0+00")));
}

TEST(Station, AnyOtherTextIsNone) {
    for (const char* text : {"",
                             " ",
                             "+",
                             "12+",
                             "+34",
                             "12+3",
                             "12+3456",
                             "12+34+56",
                             "12+34.5.6",
                             "12.5+34",
                             "12+-34",
                             "--12",
                             "12+.50",
                             ".5",
                             "1,234",
                             "1e3",
                             "12+34 RT",
                             "12+34 LT",
                             "sta",
                             "STA.",
                             "stat 12",
                             "inf",
                             "nan",
                             "A",
                             "12\t+34",
                             "\xc2\xa0"
                             "12+34",
                             "0x10",
                             "12 34",
                             "99999999999999999999",
                             "1+00000000",
                             "100001+00"}) {
        EXPECT_EQ(read_station(text), std::nullopt) << text;
    }
    EXPECT_EQ(read_station("100000+00"), 1e7);
    EXPECT_EQ(read_station(std::string(100000, '9')), std::nullopt);
}

}  // namespace
}  // namespace gullymark::review
