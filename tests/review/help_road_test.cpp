// The help page "Checking a design" and the road beside it: the page shows every rule and every finding of the road.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

#include "calculation/units_in_force.h"
#include "review/finding_lines.h"
#include "review/review_file.h"
#include "review/rules.h"
#include "review/summary.h"
#include "support/outside_double.h"

namespace gullymark::review {
namespace {

using engine::Column;

std::string replaced(const std::string& text, const char* pattern, const char* by) {
    return std::regex_replace(text, std::regex(pattern), by);
}

/// As a reader sees it: cells stand between bars, lines of a cell between strokes, and two blanks are one.
std::string as_read(std::string text) {
    text = replaced(text, "&nbsp;", " ");
    text = replaced(text, "\\s+", " ");
    text = replaced(text, "</t[dh]> ?<t[dh][^>]*>", "|");
    text = replaced(text, " ?</?t[dh][^>]*> ?", "|");
    text = replaced(text, " ?<br> ?", " / ");
    return replaced(text, "<[^>]+>", "");
}

struct HelpRoad : testing::Test {
    const std::string html = testing_support::read_file(GULLYMARK_SOURCE_DIR "/resources/help/checking.html");
    const std::string page = as_read(html);
    const std::filesystem::path bin = std::filesystem::path(GULLYMARK_TEMPLATE).parent_path();
    const Reviewed road = *review_file(bin / "checking_road.gmk");
    const calculation::UnitsInForce units{road.project.units};

    /// The rows of the page that show a rule.
    [[nodiscard]] std::vector<std::string> rows_of_rules() const {
        std::vector<std::string> rows;
        const std::regex row("<tr>\\s*<td><code>[^]*?</tr>");
        for (std::sregex_iterator found(html.begin(), html.end(), row), end; found != end; ++found) {
            rows.push_back(as_read(found->str()));
        }
        return rows;
    }

    /// What such a row is to tell.
    [[nodiscard]] std::string expected_row(const Rule& rule) const {
        std::string sentences;
        std::string advice;
        for (const auto& finding : road.findings) {
            if (finding.rule == rule.name) {
                sentences += sentences.empty() ? "" : " / ";
                sentences += (finding.inlet.empty() ? "" : finding.inlet + ": ") + finding.text;
                EXPECT_TRUE(advice.empty() || advice == finding.advice) << "two advices: " << rule.name;
                advice = finding.advice;
            }
        }
        EXPECT_FALSE(sentences.empty()) << "the road has no finding of the rule " << rule.name;
        return as_read("|" + std::string(rule.name) + "|" + rule.finds + "|" + sentences + "|" + advice +
                       "|");
    }
};

TEST_F(HelpRoad, ThePageShowsEachRuleOnceWithAllThatItTellsOfTheRoad) {
    std::vector<std::string> expected;
    for (const auto& rule : all_rules()) {
        expected.push_back(expected_row(rule));
    }
    EXPECT_THAT(rows_of_rules(), testing::ElementsAreArray(expected));
}

TEST_F(HelpRoad, ThePageShowsTheHeadOfTheWindow) {
    constexpr std::size_t all = 100;
    for (const auto& line : {finding_counts(road.findings, road.project.inlets.size()),
                             balance_line(road.balance), to_do_line(road, all), obstacle_line(road)}) {
        EXPECT_THAT(page, testing::HasSubstr(as_read(line)));
    }
}

TEST_F(HelpRoad, ThePageListsTheInletsAsTheyAreStored) {
    for (const auto& inlet : road.project.inlets) {
        EXPECT_THAT(page,
                    testing::HasSubstr("|" + inlet.text(Column::INLET_NUMBER) + "|" +
                                       inlet.text(Column::STATION) + "|" + inlet.text(Column::INLET_TYPE) +
                                       "|" + inlet.text(Column::INLET_LOCATION) + "|"));
    }
}

TEST_F(HelpRoad, EveryInletOfTheRoadHasAFinding) {
    for (std::size_t index = 0; index < road.project.inlets.size(); ++index) {
        EXPECT_THAT(road.findings, testing::Contains(testing::Field(&Finding::index, index)));
    }
}

}  // namespace
}  // namespace gullymark::review
