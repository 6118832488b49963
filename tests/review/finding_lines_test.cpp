// Findings as scripts read them.

#include "review/finding_lines.h"

#include <gtest/gtest.h>

namespace gullymark::review {
namespace {

Finding finding_of(const std::string& text) {
    return {.severity = Severity::wrong, .rule = "rule", .inlet = "A", .text = text, .advice = "Solve it."};
}

/// The text of a finding as JSON has it.
std::string json_text(const std::string& text) {
    const std::string json = finding_json({finding_of(text)});
    const std::string before = R"("text": ")";
    const auto begin = json.find(before) + before.size();
    return json.substr(begin, json.find(R"(", "advice")") - begin);
}

TEST(FindingLinesTest, AFindingIsALineOfFiveFields) {
    auto second = finding_of("Wide.");
    second.severity = Severity::beyond;
    auto third = second;
    third.severity = Severity::doubtful;
    EXPECT_EQ(finding_lines({finding_of("Stale."), second, third}),
              "wrong\trule\tA\tStale.\tSolve it.\n"
              "beyond\trule\tA\tWide.\tSolve it.\n"
              "doubtful\trule\tA\tWide.\tSolve it.\n");
    EXPECT_EQ(finding_lines({}), "");
}

TEST(FindingLinesTest, AControlCharacterIsABlankInALine) {
    EXPECT_EQ(finding_lines({finding_of("a\tb\r\nc\x1b[0m\x7f\xff\xc3\xa9")}),
              "wrong\trule\tA\ta b  c [0m \xff\xc3\xa9\tSolve it.\n");
}

TEST(FindingLinesTest, JsonIsAnArrayOfObjects) {
    EXPECT_EQ(finding_json({}), "[]\n");
    const std::string one =
        R"({"severity": "wrong", "rule": "rule", "inlet": "A", "text": "x", "advice": "Solve it."})";
    EXPECT_EQ(finding_json({finding_of("x"), finding_of("x")}), "[\n" + one + ",\n" + one + "\n]\n");
}

TEST(FindingLinesTest, JsonEscapesWhatItMust) {
    EXPECT_EQ(json_text("a\"b\\c/\t\n\x01\x7f"), R"(a\"b\\c/\u0009\u000a\u0001\u007f)");
    EXPECT_EQ(json_text(std::string("a\0b", 3)), R"(a\u0000b)");
}

TEST(FindingLinesTest, JsonKeepsCharactersOfUtf8) {
    for (const char* text : {"\xc2\x80", "\xdf\xbf", "\xe0\xa0\x80", "\xed\x9f\xbf", "\xee\x80\x80",
                             "\xef\xbf\xbf", "\xf0\x90\x80\x80", "\xf4\x8f\xbf\xbf"}) {
        EXPECT_EQ(json_text(text), text);
    }
}

TEST(FindingLinesTest, AByteThatIsNoUtf8IsTheReplacementCharacterInJson) {
    const std::string one = R"(\ufffd)";
    EXPECT_EQ(json_text("a\xff"
                        "b"),
              "a" + one + "b");
    EXPECT_EQ(json_text("\x80"), one);                      // goes on nothing
    EXPECT_EQ(json_text("\xc3"), one);                      // cut off
    EXPECT_EQ(json_text("\xe2\x82"), one + one);            // cut off
    EXPECT_EQ(json_text("\xf0\x9f\x98"), one + one + one);  // cut off
    EXPECT_EQ(json_text("\xc1\xbf"), one + one);            // longer than it must be
    EXPECT_EQ(json_text("\xe0\x9f\xbf"), one + one + one);  // longer than it must be
    EXPECT_EQ(json_text("\xf0\x8f\xbf\xbf"), one + one + one + one);
    EXPECT_EQ(json_text("\xed\xa0\x80"), one + one + one);            // half of a pair
    EXPECT_EQ(json_text("\xf4\x90\x80\x80"), one + one + one + one);  // beyond the last
    EXPECT_EQ(json_text("\xf5\x80\x80\x80"), one + one + one + one);
    EXPECT_EQ(json_text("\xc3x"), one + "x");
}

TEST(FindingLinesTest, CountsAreOfEachSeverity) {
    auto second = finding_of("Wide.");
    second.severity = Severity::doubtful;
    EXPECT_EQ(finding_counts({finding_of("Stale."), second}, 1),
              "2 findings on 1 inlet: 1 wrong, 0 beyond, 1 doubtful");
    EXPECT_EQ(finding_counts({second}, 12), "1 finding on 12 inlets: 0 wrong, 0 beyond, 1 doubtful");
}

}  // namespace
}  // namespace gullymark::review
