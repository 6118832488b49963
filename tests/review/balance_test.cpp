#include "review/balance.h"

#include "review/texts.h"
#include "review_fixture.h"

namespace gullymark::review {
namespace {

struct BalanceTest : ReviewTest {};

TEST_F(BalanceTest, RunoffIsInterceptedOrLeaves) {
    const auto balance = balance_of(project);
    EXPECT_NEAR(balance.in, 10 * 0.9 + 0.45, 1e-9);
    EXPECT_GT(balance.intercepted, 0);
    EXPECT_EQ(balance.out, 0);
    EXPECT_NEAR(balance.unexplained(), balance.in - balance.intercepted, 1e-9);
    EXPECT_TRUE(balance.closes());
}

TEST_F(BalanceTest, ABypassThatNobodyTakesGoesOut) {
    change(1, {{Column::PREINLET1, ""}});
    EXPECT_EQ(balance_of(project).out, number_or_zero(project.inlets[0], Column::QCARRY));
}

TEST_F(BalanceTest, WhatRoundingDoesNotExplainIsOpen) {
    const auto before = balance_of(project);
    change(3, {{Column::OVERLAND_FLOW, "0.500"}});
    const auto balance = balance_of(project);
    EXPECT_NEAR(balance.unexplained(), before.unexplained() + 0.5, 1e-9);
    EXPECT_FALSE(balance.closes());
}

TEST_F(BalanceTest, AnEmptyProjectHasNothingToExplain) {
    EXPECT_TRUE(balance_of(Project{}).closes());
}

}  // namespace
}  // namespace gullymark::review
