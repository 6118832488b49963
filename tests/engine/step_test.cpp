#include "engine/step.h"

#include "engine/engine_fixture.h"

namespace gullymark::engine {
namespace {

using StepRule = EngineTest;

Real fault_with(Fault fault) {
    throw fault;
}

TEST_F(StepRule, AFaultLeavesTheTargetAsItWasAndTheNextStepRuns) {
    Quantity T{"T", Unit::length, "spread", 7.0};
    step(1, T, [] { return fault_with(Fault::division_by_zero); });
    EXPECT_EQ(T.value, 7.0);
    step(2, T, [] { return Real(8.0); });
    EXPECT_EQ(T.value, 8.0);
}

TEST_F(StepRule, AFaultLeavesAColumnItsText) {
    open_inlet.load(Column::QINT, "old");
    step(1, Column::QINT, [] { return fault_with(Fault::overflow); });
    EXPECT_EQ(open_inlet.text(Column::QINT), "old");
    step(2, Column::QINT, [] { return Real(1.0) / 3.0; });
    EXPECT_EQ(open_inlet.text(Column::QINT), "0.333333333333333");
}

TEST_F(StepRule, AFaultInAConditionEntersTheBranch) {
    EXPECT_TRUE(holds(1, [] { return fault_with(Fault::unreadable_number) > 1.0; }));
    EXPECT_FALSE(holds(2, [] { return false; }));
}

TEST_F(StepRule, AColumnThatIsNoNumberFaultsWhereItIsRead) {
    for (const auto* text : {"", ".", "abc", "1,5"}) {
        open_inlet.load(Column::LONGSLOPE, text);
        EXPECT_THROW((void)number_in(Column::LONGSLOPE).value(), Fault) << text;
    }
    open_inlet.load(Column::LONGSLOPE, std::nullopt);
    EXPECT_THROW((void)number_in(Column::LONGSLOPE).value(), Fault);
    open_inlet.load(Column::LONGSLOPE, " 0.5 ");
    EXPECT_EQ(number_in(Column::LONGSLOPE).value(), 0.5);
}

TEST_F(StepRule, TheTraceTellsWhatEachStepDid) {
    std::vector<TraceLine> trace;
    onlooker.trace = &trace;
    Quantity T{"T", Unit::length, "spread", 0.0};
    step(1, T, [] { return Real(7.5); });
    step(2, T, [] { return Real(1.0) / 0.0; });
    step(3, Column::INLETPERF, [] { return std::string_view("Weir Flow"); });
    holds(4, [] { return false; });
    holds(5, [] { return fault_with(Fault::unreadable_number) > 1.0; });
    ASSERT_EQ(trace.size(), 5U);
    EXPECT_EQ(describe(trace[0]), "1  T = 7.5 ft  spread");
    EXPECT_EQ(describe(trace[1]), "2  T abandoned: division by zero; it stays 7.5 ft  spread");
    EXPECT_EQ(describe(trace[2]), "3  INLETPERF = \"Weir Flow\"  Flow regime at the inlet");
    EXPECT_EQ(describe(trace[3]), "4  branch passed by");
    EXPECT_EQ(describe(trace[4]), "5  branch entered: unreadable number");
}

TEST_F(StepRule, TheTraceNamesEveryFault) {
    EXPECT_EQ(fault_text(Fault::division_by_zero), "division by zero");
    EXPECT_EQ(fault_text(Fault::overflow), "overflow");
    EXPECT_EQ(fault_text(Fault::no_real_power), "no real power");
    EXPECT_EQ(fault_text(Fault::unreadable_number), "unreadable number");
    EXPECT_EQ(fault_text(Fault::endless_search), "endless search");
    EXPECT_EQ(fault_text(Fault::tripped), "tripped");
    EXPECT_EQ(fault_text(Fault::none), "");
}

TEST_F(StepRule, ATrippedStepFaultsWhateverItsFormula) {
    onlooker.tripped_step = 2;
    Quantity T{"T", Unit::length, "spread", 1.0};
    step(1, T, [] { return Real(2.0); });
    step(2, T, [] { return Real(3.0); });
    EXPECT_EQ(T.value, 2.0);
    EXPECT_TRUE(holds(2, [] { return false; }));
}

TEST_F(StepRule, AFaultThatIsReturnedLeavesTheTargetAndTheTraceAsOneThatIsThrown) {
    std::vector<TraceLine> trace;
    onlooker.trace = &trace;
    Quantity T{"T", Unit::length, "spread", 7.0};
    step(1, T, [] { return divide(1.0, 0.0); });
    EXPECT_EQ(T.value, 7.0);
    EXPECT_EQ(describe(trace[0]), "1  T abandoned: division by zero; it stays 7 ft  spread");
    step(2, T, [] { return divide(1.0, 4.0); });
    EXPECT_EQ(T.value, 0.25);
    EXPECT_THROW(strict_step(3, T, [] { return divide(1.0, 0.0); }), Fault);
    step(4, T, [] { return divide(1e300, 1e-300); });
    EXPECT_EQ(trace[3].fault, Fault::overflow);
}

TEST_F(StepRule, AColumnThatIsReadOnceFaultsAtEachUse) {
    open_inlet.load(Column::INLETLENGTH, "abc");
    const Reading unreadable(Column::INLETLENGTH);
    open_inlet.load(Column::INLETLENGTH, "4.5");
    const Reading length(Column::INLETLENGTH);
    EXPECT_THROW((void)(unreadable > 1.0).holds(), Fault);
    EXPECT_THROW((void)(unreadable * 2.0).value(), Fault);
    EXPECT_EQ((length * 2.0).value(), 9.0);
}

TEST_F(StepRule, AStrictStepFaultsToItsCaller) {
    Quantity T{"T", Unit::length, "spread", 1.0};
    EXPECT_THROW(strict_step(1, T, [] { return Real(1.0) / 0.0; }), Fault);
    EXPECT_EQ(T.value, 1.0);
}

}  // namespace
}  // namespace gullymark::engine
