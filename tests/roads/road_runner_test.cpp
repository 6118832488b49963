#include "roads/road_runner.h"

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "roads/road_words.h"
#include "support/outside_double.h"

namespace gullymark::roads {
namespace {

using platform::Answer;
using platform::BoxKind;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using Reports = std::vector<std::string>;

/// What a road reports on a stage on which only Save does something: it asks a question and takes a Yes.
struct RoadOnASmallStage : testing::Test {
    testing_support::TempFolder folder;
    std::vector<Answer> answers;

    Reports reports(const std::string& text) {
        const std::string path = folder.path("small.road");
        testing_support::write_file(path, text);
        Road road(path, folder.path());
        Stage stage;
        stage.choose = [&](const std::string& caption) {
            if (caption != "Save Inlet") {
                return false;
            }
            answers.push_back(road.answer({.kind = BoxKind::warning_question, .text = "Sure?"}));
            return true;
        };
        stage.text = [](const std::string& name) -> std::string {
            if (name != "offset") {
                throw std::runtime_error("no field is called " + name);
            }
            return "5.000";
        };
        testing::TestPartResultArray results;
        {
            const testing::ScopedFakeTestPartResultReporter reporter(
                testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &results);
            road.run(stage);
        }
        Reports reported;
        for (int i = 0; i < results.size(); ++i) {
            const auto& result = results.GetTestPartResult(i);
            reported.push_back(std::to_string(result.line_number()) + " " + result.message());
        }
        return reported;
    }
};

TEST_F(RoadOnASmallStage, WhatComesAsToldIsNotReported) {
    EXPECT_THAT(
        reports("# Save asks.\n\nchoose Save Inlet # now\n    box warning question \"Sure?\" answer Yes\n"
                "try choose Edit Inlet\nexpect offset \"5.000\"\n"),
        IsEmpty());
    EXPECT_THAT(answers, ElementsAre(Answer::yes));
}

TEST_F(RoadOnASmallStage, ABoxThatIsNotToldIsReportedAndAnsweredNo) {
    EXPECT_THAT(reports("choose Save Inlet\n"),
                ElementsAre(HasSubstr("1 Failed\na box that is not told: box warning question \"Sure?\"")));
    EXPECT_THAT(answers, ElementsAre(Answer::no));
}

TEST_F(RoadOnASmallStage, ABoxWithAnotherTextKindOrTitleIsReportedAtItsLine) {
    for (const char* box : {"warning question \"Sure\" answer No", "information question \"Sure?\" answer No",
                            "warning question \"Sure?\" titled \"Gullymark\" answer No"}) {
        EXPECT_THAT(reports("choose Save Inlet\n    box " + std::string(box)),
                    ElementsAre(HasSubstr("2 Failed\nanother box: box warning question \"Sure?\"")));
    }
}

TEST_F(RoadOnASmallStage, AQuestionWithoutItsAnswerIsReported) {
    EXPECT_THAT(reports("choose Save Inlet\n    box warning question \"Sure?\"\n"),
                ElementsAre(HasSubstr("a question is answered Yes or No")));
}

TEST_F(RoadOnASmallStage, ABoxThatDoesNotComeIsReported) {
    EXPECT_THAT(reports("expect offset \"5.000\"\n    box plain \"Hello\"\n"),
                ElementsAre(HasSubstr("2 Failed\nthis did not come: box plain \"Hello\"")));
}

TEST_F(RoadOnASmallStage, ADeedThatIsNotPossibleIsReportedUnlessItIsTried) {
    EXPECT_THAT(reports("choose Edit Inlet\n"), ElementsAre(HasSubstr("1 Failed\nthis was not possible")));
    EXPECT_THAT(reports("try choose Save Inlet\n    box warning question \"Sure?\" answer No\n"),
                ElementsAre(HasSubstr("1 Failed\nthis happened")));
}

TEST_F(RoadOnASmallStage, EverySightOfALineIsLookedAt) {
    EXPECT_THAT(reports("expect offset \"5\", offset \"5.000\", offset \"\"\n"),
                ElementsAre(HasSubstr("expected offset \"5\", seen: 5.000"),
                            HasSubstr("expected offset \"\", seen: 5.000")));
}

TEST_F(RoadOnASmallStage, AWordThatNobodyKnowsIsReported) {
    EXPECT_THAT(reports("swim\nexpect nothing at all\nexpect offsett \"5\"\n"),
                ElementsAre(HasSubstr("1 Failed\nno such deed: swim"),
                            HasSubstr("2 Failed\nnothing to expect: nothing at all"),
                            HasSubstr("3 Failed\nno field is called offsett")));
}

TEST(RoadWords, AreCutAtBlanksCommasAndQuotations) {
    EXPECT_THAT(
        cut_words(R"(  expect a "b, \"c\"\r\n", d on # e)"),
        ElementsAre(Word{"expect"}, Word{"a"}, Word{"b, \"c\"\r\n", true}, Word{","}, Word{"d"}, Word{"on"}));
    EXPECT_THROW(cut_words("type \"5"), std::runtime_error);
}

TEST(RoadWords, FitAPatternWordForWord) {
    const auto words = cut_words("type \"5\" into offset");
    EXPECT_THAT(fit("type $ into $", words), testing::Optional(ElementsAre("5", "offset")));
    EXPECT_THAT(fit("type ...", words), testing::Optional(ElementsAre("5", "into", "offset")));
    EXPECT_EQ(fit("type $ into", words), std::nullopt);
    EXPECT_EQ(fit("type $ into $ now", words), std::nullopt);
    EXPECT_EQ(fit("$ \"into\"", cut_words("offset into")), std::nullopt);
}

}  // namespace
}  // namespace gullymark::roads
