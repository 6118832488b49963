// The inlets as a table, and what stands above all of them.

#include "review/inlet_list.h"

#include "review/review_fixture.h"
#include "review/summary.h"

namespace gullymark::review {
namespace {

using testing::ElementsAre;

class InletListTest : public ReviewTest {
  protected:
    [[nodiscard]] Reviewed reviewed() const {
        return {.project = project,
                .findings = judge(project, limits),
                .fresh = make_fresh_road(project),
                .balance = balance_of(project),
                .places = {}};
    }
    [[nodiscard]] std::vector<std::string> sorted(ListColumn column, bool descending = false) const {
        std::vector<std::string> numbers;
        for (const auto inlet : sort_inlets(reviewed(), column, descending)) {
            numbers.push_back(stored(inlet, Column::INLET_NUMBER));
        }
        return numbers;
    }
    /// A carryover that was handed on before the bypass changed.
    void make_stale() {
        change(3, {{Column::CARRYOVER1, "0.250"}, {Column::TOTAL_DISCHARGE, "1.150"}}), solve(3);
    }
};

TEST_F(InletListTest, WhatIsUpToDateStandsTwiceTheSame) {
    const auto all = reviewed();
    for (std::size_t inlet = 0; inlet < project.inlets.size(); ++inlet) {
        EXPECT_EQ(list_cell(all, inlet, ListColumn::state), "up to date");
        EXPECT_EQ(list_cell(all, inlet, ListColumn::fresh_total), stored(inlet, Column::TOTAL_DISCHARGE));
        EXPECT_EQ(list_cell(all, inlet, ListColumn::fresh_bypass), stored(inlet, Column::QCARRY));
        EXPECT_FALSE(is_stale_cell(all, inlet, ListColumn::fresh_spread));
    }
    EXPECT_EQ(to_do_line(all, 5), "Every inlet is up to date");
    EXPECT_TRUE(balance_line(all.balance).ends_with(": the balance closes")) << balance_line(all.balance);
}

TEST_F(InletListTest, AStaleInletAndAllBelowItAreMarked) {
    make_stale();
    const auto all = reviewed();
    EXPECT_EQ(list_cell(all, 3, ListColumn::state), "stale");
    EXPECT_EQ(list_cell(all, 3, ListColumn::total), "1.150");
    EXPECT_EQ(list_cell(all, 3, ListColumn::fresh_total), "1.324");
    EXPECT_TRUE(is_stale_cell(all, 3, ListColumn::fresh_total));
    EXPECT_FALSE(is_stale_cell(all, 3, ListColumn::total));
    EXPECT_EQ(list_cell(all, 2, ListColumn::state), "up to date");
    EXPECT_TRUE(to_do_line(all, 5).starts_with("Open, solve and save, in this order: L4"))
        << to_do_line(all, 5);
    EXPECT_TRUE(to_do_line(all, 1).find("L4 and ") == std::string::npos || all.fresh.to_do.size() > 1);
    EXPECT_TRUE(numbers_line(all, 3, false).starts_with("total 1.150 cfs, spread "))
        << numbers_line(all, 3, false);
    EXPECT_TRUE(numbers_line(all, 3, true).starts_with("total 1.324 cfs, spread "))
        << numbers_line(all, 3, true);
}

TEST_F(InletListTest, AnInletWithoutResultsIsNotSolved) {
    // Solve refuses a flow of 0.
    change(2, {{Column::TOTAL_DISCHARGE, "0.000"},
               {Column::DISCHARGE1, "0.000"},
               {Column::LDISCHARGE_OVERRIDE, "YES"},
               {Column::PREINLET1, ""},
               {Column::CARRYOVER1, "0.0"}});
    const auto all = reviewed();
    EXPECT_EQ(list_cell(all, 2, ListColumn::state), "not solved");
    EXPECT_EQ(sort_inlets(all, ListColumn::state, false).front(), 2U);
}

TEST_F(InletListTest, TheSpreadOfASumpIsTheLargerOne) {
    change(sump, {{Column::OPENSPREAD, "3.000"}, {Column::GUTTERSPREAD, "4.000"}});
    EXPECT_EQ(list_cell(reviewed(), sump, ListColumn::spread), "4.000");
    change(sump, {{Column::OPENSPREAD, "5.000"}});
    EXPECT_EQ(list_cell(reviewed(), sump, ListColumn::spread), "5.000");
    change(0, {{Column::OPENSPREAD, "3.000"}, {Column::GUTTERSPREAD, "4.000"}});
    EXPECT_EQ(list_cell(reviewed(), 0, ListColumn::spread), "3.000");
}

TEST_F(InletListTest, NumbersAreSortedByTheirValueAndBeforeTexts) {
    project.inlets.resize(4);
    for (std::size_t i = 0; i < 4; ++i) {
        change(i, {{Column::INLET_NUMBER, std::vector{"10", "9", "CB", "A"}.at(i)}});
    }
    EXPECT_THAT(sorted(ListColumn::number), ElementsAre("9", "10", "A", "CB"));
    EXPECT_THAT(sorted(ListColumn::number, true), ElementsAre("CB", "A", "10", "9"));
    EXPECT_THAT(sorted(ListColumn::station), ElementsAre("10", "9", "CB", "A"));
}

TEST_F(InletListTest, HeadingsTellTheUnitsInForce) {
    EXPECT_EQ(heading_of(ListColumn::fresh_spread).text, "Fresh spread");
    EXPECT_EQ(heading_of(ListColumn::fresh_spread).unit, "ft");
    EXPECT_EQ(heading_of(ListColumn::bypass).unit, "cfs");
    EXPECT_EQ(heading_of(ListColumn::station).unit, "");
    EXPECT_TRUE(is_number_column(ListColumn::fresh_total));
    EXPECT_FALSE(is_number_column(ListColumn::station));
}

TEST_F(InletListTest, AnObstacleIsTold) {
    change(7, {{Column::PREINLET1, "X9"}});
    const auto line = obstacle_line(reviewed());
    EXPECT_TRUE(line.starts_with("What cannot be brought up to date: inlet R3. ")) << line;
    EXPECT_NE(line.find("X9"), std::string::npos) << line;
    change(7, {{Column::PREINLET1, "R2"}});
    EXPECT_EQ(obstacle_line(reviewed()), "");
}

TEST_F(InletListTest, WhatIsMissingInTheBalanceIsTold) {
    change(7, {{Column::PREINLET1, ""}, {Column::CARRYOVER1, ""}});
    const auto line = balance_line(reviewed().balance);
    EXPECT_TRUE(line.starts_with("Runoff in 9.450 cfs, intercepted ")) << line;
    EXPECT_NE(line.find(", unexplained -"), std::string::npos) << line;
}

}  // namespace
}  // namespace gullymark::review
