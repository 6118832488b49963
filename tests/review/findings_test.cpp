#include "review_fixture.h"

namespace gullymark::review {
namespace {

struct Findings : ReviewTest {};

TEST_F(Findings, EachNamesItsInletByItsPlaceInTheProject) {
    change(2, {{Column::QINT, "9"}});
    const auto findings = judge(project, limits);
    ASSERT_FALSE(findings.empty());
    for (const auto& finding : findings) {
        const bool of_the_project = finding.rule == "balance-open";
        EXPECT_EQ(finding.index, of_the_project ? whole_project : 2U) << finding.rule;
        EXPECT_EQ(finding.inlet, of_the_project ? "" : "L3") << finding.rule;
    }
}

/// Two inlets of one number are told apart by their places.
TEST_F(Findings, AnInletIsNamedByItsPlaceWhereItsNumberIsNotUnique) {
    change(1, {{Column::INLET_NUMBER, "L1"}, {Column::PREINLET1, ""}, {Column::TOTAL_DISCHARGE, "7"}});
    const auto findings = judge(project, limits);
    const auto total = std::ranges::find(findings, "total-differs", &Finding::rule);
    ASSERT_NE(total, findings.end());
    EXPECT_EQ(total->index, 1U);
}

TEST_F(Findings, WhoWatchesIsToldOfEveryInlet) {
    std::vector<std::size_t> done;
    const auto found = judge(project, limits, [&](std::size_t so_many, std::size_t all) {
        EXPECT_EQ(all, 10U);
        done.push_back(so_many);
        return true;
    });
    EXPECT_TRUE(found.has_value());
    ASSERT_FALSE(done.empty());
    EXPECT_EQ(done.front(), 0U);
    EXPECT_TRUE(std::ranges::is_sorted(done));
    EXPECT_LE(done.back(), 10U);
}

TEST_F(Findings, WhoWatchesEndsIt) {
    int told = 0;
    EXPECT_FALSE(judge(project, limits, [&](std::size_t, std::size_t) { return ++told < 3; }).has_value());
    EXPECT_EQ(told, 3);
    EXPECT_EQ(engine::UnitSystem, "ENGLISH");
}

}  // namespace
}  // namespace gullymark::review
