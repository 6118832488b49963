// The help page "Checking a design" and the road beside it: the page shows every rule and every finding of the road.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
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

/// Writes `mark` in the place of the blanks that the text ends with, once.
void end_with(std::string& text, std::string_view mark) {
    while (text.ends_with(' ')) {
        text.pop_back();
    }
    text += text.ends_with(mark) ? std::string_view() : mark;
}

void add_tag(std::string& text, std::string_view tag) {
    constexpr std::size_t behind_slash = 1;
    if (tag.find("td") <= behind_slash || tag.find("th") <= behind_slash) {
        end_with(text, "|");
    } else if (tag == "br") {
        end_with(text, " / ");
    }
}

void add_letter(std::string& text, char letter) {
    const bool is_blank = letter == ' ' || letter == '\n';
    if (!is_blank) {
        text += letter;
    } else if (!text.ends_with(' ') && !text.ends_with('|')) {
        text += ' ';
    }
}

/// As a reader sees it: cells stand between bars, lines of a cell between strokes, and two blanks are one.
std::string as_read(std::string_view html) {
    constexpr std::string_view fixed_blank = "&nbsp;";
    std::string text;
    while (!html.empty()) {
        std::size_t taken = 1;
        if (html.front() == '<') {
            taken = std::min(html.find('>'), html.size() - 1) + 1;
            add_tag(text, html.substr(1, taken - 2));
        } else if (html.starts_with(fixed_blank)) {
            taken = fixed_blank.size();
            add_letter(text, ' ');
        } else {
            add_letter(text, html.front());
        }
        html.remove_prefix(taken);
    }
    return text;
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
        const std::string first_cell = "<tr>\n    <td><code>";
        for (auto at = html.find(first_cell); at != std::string::npos; at = html.find(first_cell, at + 1)) {
            rows.push_back(as_read(std::string_view(html).substr(at, html.find("</tr>", at) - at)));
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
