// Which findings a list shows, and how it finds its place again.

#include "review/finding_list.h"

#include <gmock/gmock.h>

namespace gullymark::review {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Finding finding(Severity severity, std::size_t index, const std::string& rule, const std::string& inlet,
                const std::string& text) {
    return {.severity = severity,
            .rule = rule,
            .index = index,
            .inlet = inlet,
            .text = text,
            .advice = "Look at it."};
}

const std::vector<Finding> some{
    finding(Severity::wrong, 2, "total-differs", "C", "Total is 2."),
    finding(Severity::wrong, whole_project, "balance-open", "", "Balance is open."),
    finding(Severity::beyond, 0, "spread-beyond", "A", "Spread is 9."),
    finding(Severity::doubtful, 2, "clogging-idle", "C", "Clogging is idle."),
    finding(Severity::doubtful, 1, "clogging-idle", "B-7", "Clogging is idle."),
};

TEST(ChooseFindings, AllAreShownBySeverityAndThenAsTheyCome) {
    EXPECT_THAT(choose_findings(some, {}), ElementsAre(0, 1, 2, 3, 4));
    EXPECT_THAT(choose_findings(some, {.descending = true}), ElementsAre(3, 4, 2, 0, 1));
}

TEST(ChooseFindings, AlongTheRoadThoseOfTheProjectComeLast) {
    EXPECT_THAT(choose_findings(some, {.order = FindingOrder::along_the_road}), ElementsAre(2, 4, 0, 3, 1));
    EXPECT_THAT(choose_findings(some, {.order = FindingOrder::by_text}), ElementsAre(1, 3, 4, 2, 0));
}

TEST(ChooseFindings, ATextIsLookedForInAllThatIsToldOfAFinding) {
    const auto with = [](const std::string& text) { return choose_findings(some, {.text = text}); };
    EXPECT_THAT(with("b-7"), ElementsAre(4));
    EXPECT_THAT(with("SPREAD IS"), ElementsAre(2));
    EXPECT_THAT(with("balance-open"), ElementsAre(1));
    EXPECT_THAT(with("look at it."), ElementsAre(0, 1, 2, 3, 4));
    EXPECT_THAT(with("nowhere"), IsEmpty());
}

TEST(ChooseFindings, SeveritiesAreChosenTogetherWithTheText) {
    EXPECT_THAT(choose_findings(some, {.severities = {Severity::wrong}}), ElementsAre(0, 1));
    EXPECT_THAT(choose_findings(some, {.severities = {Severity::doubtful, Severity::beyond}, .text = "is"}),
                ElementsAre(2, 3, 4));
    EXPECT_THAT(choose_findings(some, {.severities = {}}), IsEmpty());
}

TEST(FindAgain, TheSameWordsComeBeforeTheSameRule) {
    EXPECT_EQ(find_again(some, some[4]), 4U);
    auto changed = some;
    changed[0].text = "Total is 3.";
    EXPECT_EQ(find_again(changed, some[0]), 0U);
    changed.push_back(some[0]);
    EXPECT_EQ(find_again(changed, some[0]), changed.size() - 1);
    changed.erase(changed.begin() + 2);
    EXPECT_EQ(find_again(changed, some[2]), std::nullopt);
}

Project road(std::initializer_list<const char*> numbers) {
    Project project;
    for (const char* number : numbers) {
        project.inlets.emplace_back().load(engine::Column::INLET_NUMBER, number);
    }
    return project;
}

TEST(FindInletAgain, AnInletIsFoundByItsNumberWhereverItStands) {
    const Project before = road({"1", "2", "3"});
    EXPECT_EQ(find_inlet_again(road({"3", "1", "2"}), before, 1), 2U);
    EXPECT_EQ(find_inlet_again(road({"0", "1", "2", "3"}), before, 2), 3U);
}

TEST(FindInletAgain, TheSecondOfANumberIsTheSecondAgain) {
    const Project before = road({"1", "2", "2"});
    EXPECT_EQ(find_inlet_again(road({"2", "1", "2"}), before, 2), 2U);
    EXPECT_EQ(find_inlet_again(road({"2", "1", "2"}), before, 1), 0U);
}

TEST(FindInletAgain, OneThatIsGoneLeavesItsPlace) {
    const Project before = road({"1", "2", "3"});
    EXPECT_EQ(find_inlet_again(road({"1", "3"}), before, 1), 1U);
    EXPECT_EQ(find_inlet_again(road({"1"}), before, 2), 0U);
    EXPECT_EQ(find_inlet_again(road({}), before, 0), std::nullopt);
    EXPECT_EQ(find_inlet_again(road({"1", "2"}), road({}), 0), 0U);
}

}  // namespace
}  // namespace gullymark::review
