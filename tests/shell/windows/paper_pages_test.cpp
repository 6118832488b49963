// What stands on which page of paper.

#include "shell/windows/paper_pages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace gullymark::shell {
namespace {

TEST(PaperPages, NoLineIsCutAndNoHeadingIsPartedFromItsFirstLine) {
    using testing::ElementsAre;
    const BlockSize line{10.0, false};
    const BlockSize heading{5.0, true};
    EXPECT_THAT(first_blocks({line, line, line}, 30.0), ElementsAre(0));
    EXPECT_THAT(first_blocks({line, line, line}, 29.0), ElementsAre(0, 2));
    EXPECT_THAT(first_blocks({line, line, heading, line}, 34.0), ElementsAre(0, 2));
    EXPECT_THAT(first_blocks({line, heading, heading, line, line}, 29.0), ElementsAre(0, 1, 4));
    EXPECT_THAT(first_blocks({line, {50.0, false}, line}, 30.0), ElementsAre(0, 1, 2));
    EXPECT_THAT(first_blocks({heading}, 30.0), ElementsAre(0));
}

TEST(PaperPages, WhatBeginsAPageStandsOnANewOne) {
    using testing::ElementsAre;
    const BlockSize line{10.0};
    const BlockSize chapter{5.0, true, true};
    EXPECT_THAT(first_blocks({chapter, line, line}, 100.0), ElementsAre(0));
    EXPECT_THAT(first_blocks({line, chapter, line, chapter, line}, 100.0), ElementsAre(0, 1, 3));
}

TEST(PaperPages, TheHeadOfATableTakesItsRoomOnEachPage) {
    using testing::ElementsAre;
    const BlockSize head{5.0, true};
    const BlockSize row{.height = 10.0, .head = 5.0};
    EXPECT_THAT(first_blocks({head, row, row, row, row, row}, 25.0), ElementsAre(0, 3, 5));
    EXPECT_THAT(first_blocks({head, row, row, row, row, row}, 24.0), ElementsAre(0, 2, 3, 4, 5));
}

}  // namespace
}  // namespace gullymark::shell
