#include "engine/formula.h"

#include <limits>

#include "engine/condition.h"
#include "engine/engine_fixture.h"
#include "engine/workings.h"

namespace gullymark::engine {
namespace {

using formula::Named;
using formula::Style;

class Formulas : public EngineTest {
  protected:
    Quantity Q{"Q", Unit::discharge, "flow", 3.5};
    Quantity S{"S", Unit::slope, "slope", 0.01};
    Quantity W{"W", Unit::length, "width", -2.0};
    Quantity zero{"zero", Unit::length, "nothing", 0.0};

    template <typename Part>
    static std::string symbols(const Part& part) {
        return text_of(part.spelled(), Style::symbols);
    }
    template <typename Part>
    static std::string numbers(const Part& part) {
        return text_of(part.spelled(), Style::numbers);
    }
    template <typename Part>
    static std::string exact(const Part& part) {
        return text_of(part.spelled(), Style::exact);
    }
};

TEST_F(Formulas, AFormulaIsANumberAndATextFromOneSpelling) {
    const auto LT = 0.6 * power(Q, 0.42) * power(S, 0.3);
    EXPECT_EQ(LT.value(), Real(0.6) * power(Real(3.5), 0.42) * power(Real(0.01), 0.3));
    EXPECT_EQ(symbols(LT), "0.6 x Q^0.42 x S^0.3");
    EXPECT_EQ(numbers(LT), "0.6 x 3.5^0.42 x 0.01^0.3");
}

TEST_F(Formulas, ParenthesesStandWhereTheOrderAsksForThem) {
    EXPECT_EQ(symbols((Q + S) * W), "(Q + S) x W");
    EXPECT_EQ(symbols(Q + S * W), "Q + S x W");
    EXPECT_EQ(symbols(Q - (S - W)), "Q - (S - W)");
    EXPECT_EQ(symbols(Q - S - W), "Q - S - W");
    EXPECT_EQ(symbols(Q / (S * W)), "Q / (S x W)");
    EXPECT_EQ(symbols(Q / S * W), "Q / S x W");
    EXPECT_EQ(symbols(power(Q / S, Named(1.0) / 2.67)), "(Q / S)^(1 / 2.67)");
    EXPECT_EQ(symbols(square(square(Q))), "(Q^2)^2");
    EXPECT_EQ(symbols(square_root(Q + S) + sine(W)), "sqrt(Q + S) + sin(W)");
    EXPECT_EQ(symbols(larger(Q, S) / natural_logarithm(Q)), "max(Q, S) / ln(Q)");
}

TEST_F(Formulas, ANegativeNumberStandsInParenthesesBehindASign) {
    EXPECT_EQ(numbers(W - W), "-2 - (-2)");
    EXPECT_EQ(numbers(W * Q), "(-2) x 3.5");
    EXPECT_EQ(numbers(square(W)), "(-2)^2");
}

TEST_F(Formulas, AThirtyTwoBitConstantIsComputedWithAsItIsAndShownAsItIsKnown) {
    const auto known = Named("K_L", 0.6F) * Q;
    EXPECT_EQ(known.value(), Real(static_cast<double>(0.6F)) * 3.5);
    EXPECT_EQ(symbols(known), "K_L x Q");
    EXPECT_EQ(numbers(known), "0.6 x 3.5");
    EXPECT_EQ(exact(known), "0.6000000238418579 x 3.5");
}

TEST_F(Formulas, NumbersComeInSixDigitsOrInAllOfTheirs) {
    Q.value = Real(1.0) / 3.0;
    EXPECT_EQ(numbers(Q * 1.0), "0.333333 x 1");
    EXPECT_EQ(exact(Q * 1.0), "0.3333333333333333 x 1");
    Q.value = 12345678.9;
    EXPECT_EQ(numbers(Q * 1.0), "12345678.9 x 1");
    Q.value = 0.00001234;
    EXPECT_EQ(numbers(Q * 1.0), "1.234E-05 x 1");
}

TEST_F(Formulas, ATreeKeepsTheNumbersThatItWasMadeOf) {
    const auto sum = Q + S;
    Q.value = 100.0;
    EXPECT_EQ(sum.value(), Real(3.5) + 0.01);
    EXPECT_EQ(numbers(sum), "3.5 + 0.01");
}

TEST_F(Formulas, AFaultComesWhereTheValueIsAskedFor) {
    const auto quotient = Q / zero;
    EXPECT_EQ(symbols(quotient), "Q / zero");
    EXPECT_EQ(numbers(quotient), "3.5 / 0");
    EXPECT_THROW((void)quotient.value(), Fault);
    EXPECT_EQ(divide(Q, zero).outcome().fault, Fault::division_by_zero);
    EXPECT_THROW((void)power(W, 0.5).value(), Fault);
    EXPECT_THROW((void)(Q * std::numeric_limits<double>::max()).value(), Fault);
}

TEST_F(Formulas, AColumnIsReadUnderItsNameAndToldAsItStands) {
    open_inlet.load(Column::INLETLENGTH, " 4.50 ");
    open_inlet.load(Column::GRATEPERCLOG, "half");
    const auto length = (1.0 - number_in(Column::GRATEPERCLOG) / 100.0) * number_in(Column::INLETLENGTH);
    EXPECT_EQ(symbols(length), "(1 - GRATEPERCLOG / 100) x INLETLENGTH");
    EXPECT_EQ(numbers(length), "(1 - \"half\" / 100) x 4.5");
    EXPECT_EQ(columns_in(length.spelled()), (std::vector{Column::GRATEPERCLOG, Column::INLETLENGTH}));
    EXPECT_THROW((void)length.value(), Fault);
}

TEST_F(Formulas, ARoundedNumberIsANumberAndAText) {
    const auto Se = rounded(Named("Se", Real(0.25545)), "0.0000");
    EXPECT_EQ(Se.value(), 0.2555);
    EXPECT_EQ(Se.text(), "0.2555");
    EXPECT_EQ(symbols(Se), "round(Se, 4)");
    EXPECT_EQ(symbols(rounded(Q, "#0.000")), "round(Q, 3)");
    EXPECT_EQ(numbers(rounded(Named("Q", Real(1234.567890625)), "#0.000")), "round(1234.567890625, 3)");
}

TEST_F(Formulas, AConditionTellsItsReason) {
    EXPECT_EQ(symbols(Q > S), "Q > S");
    EXPECT_EQ(numbers(Q >= S), "3.5 >= 0.01");
    EXPECT_EQ(symbols(Q == 0.0 || S != 0.0), "Q = 0 or S <> 0");
    EXPECT_EQ(symbols((Q < 0.0 || S <= 0.0) && !(W > 0.0 && Q > 0.0)),
              "(Q < 0 or S <= 0) and not (W > 0 and Q > 0)");
    EXPECT_TRUE(bool(Q > S && !(W > 0.0)));
    EXPECT_FALSE(bool(Q < S || W > 0.0));
    open_inlet.load(Column::THROATYPE, "Vertical");
    EXPECT_EQ(symbols(says(Column::THROATYPE, "Inclined")), "THROATYPE = \"Inclined\"");
    EXPECT_EQ(numbers(says(Column::THROATYPE, "Inclined")), "\"Vertical\" = \"Inclined\"");
    EXPECT_TRUE(says(Column::THROATYPE, "Vertical").holds());
}

TEST_F(Formulas, AComparisonShowsWhereItsSidesDiffer) {
    Q.value = 2.00000001;
    EXPECT_EQ(numbers(Q > 2.0), "2.00000001 > 2");
    EXPECT_EQ(numbers(Q > 2.1), "2 > 2.1");
}

TEST_F(Formulas, ASideThatIsNotReachedCannotFault) {
    EXPECT_FALSE(bool(Q < 0.0 && Q / zero > 1.0));
    EXPECT_TRUE(bool(Q > 0.0 || Q / zero > 1.0));
    EXPECT_THROW((void)(Q > 0.0 && Q / zero > 1.0).holds(), Fault);
}

TEST_F(Formulas, AStepTellsItsFormulaBeforeItsTargetChanges) {
    std::vector<TraceLine> trace;
    onlooker.trace = &trace;
    step(1, Q, [&] { return Q * 2.0; });
    holds(2, [&] { return Q > W; });
    step(3, Q, [&] { return Q / zero; });
    open_inlet.load(Column::MANNINGS, "0.016");
    step(4, S, [] { return number_in(Column::MANNINGS); });
    EXPECT_EQ(describe_formula(trace[0]), (std::vector<std::string>{"= Q x 2", "= 3.5 x 2"}));
    EXPECT_EQ(describe_formula(trace[1]), (std::vector<std::string>{"if Q > W", "if 7 > -2"}));
    EXPECT_EQ(describe(trace[2]), "3  Q abandoned: division by zero; it stays 7 cfs  flow");
    EXPECT_EQ(describe_formula(trace[2]), (std::vector<std::string>{"= Q / zero", "= 7 / 0"}));
    EXPECT_EQ(describe_formula(trace[3]),
              (std::vector<std::string>{"= MANNINGS", "= 0.016",
                                        "reads MANNINGS \"0.016\": Manning's roughness coefficient"}));
}

TEST_F(Formulas, AFunctionTellsItsOwnLinesWithinAStep) {
    const auto with_workings = [&] {
        const Named r = formula::let({"r", Unit::ratio, "ratio"}, Q / S);
        formula::decides(r > 1.0);
        return formula::called(
            "grown", [&] { return r * 2.0; }, r);
    };
    EXPECT_EQ(with_workings().value(), 700.0);
    EXPECT_EQ(formula::workings, nullptr);
    std::vector<TraceLine> trace;
    onlooker.trace = &trace;
    step(1, W, with_workings);
    EXPECT_EQ(W.value, 700.0);
    EXPECT_EQ(describe_formula(trace[0]),
              (std::vector<std::string>{"= grown(r)", "= grown(350)", "- r = 350  ratio", "    = Q / S",
                                        "    = 3.5 / 0.01", "- if r > 1: yes", "    if 350 > 1"}));
    EXPECT_EQ(formula::workings, nullptr);
}

TEST_F(Formulas, AValueWithinAFormulaFaultsWhereItIsUsed) {
    const Named r = formula::let({"r", Unit::ratio, "ratio"}, Q / zero);
    EXPECT_EQ(r.number.fault, Fault::division_by_zero);
    EXPECT_THROW((void)(r + 1.0).value(), Fault);
    const auto fails = formula::called(
        "fails", []() -> Real { throw Fault::endless_search; }, Q);
    EXPECT_EQ(fails.outcome().fault, Fault::endless_search);
    EXPECT_EQ(symbols(fails), "fails(Q)");
}

}  // namespace
}  // namespace gullymark::engine
