#include "engine/hydraulics/Common_Libraries.h"

#include <cmath>

#include "engine/engine_fixture.h"

namespace gullymark::engine {
namespace {

using platform::Box;
using platform::BoxKind;

constexpr double english_gutter_constant = 0.5600000023841858;

/// A gutter that carries its flow beyond its width.
GutterFlow composite_gutter() {
    return {.K = 0.56F,
            .Q = 3.0,
            .S = 0.01,
            .n = 0.016,
            .W = 2.0,
            .Sx = 0.02,
            .Sw = 0.08,
            .Wa = 0.0,
            .spread_limit = 8.0};
}

double uniform_spread(double Q, double S, double n, double Sx) {
    return std::pow(Q * n / (english_gutter_constant * std::pow(Sx, 1.67) * std::pow(S, 0.5)), 1.0 / 2.67);
}

/// The flow that a composite section carries at spread T, from the two equations that the search solves.
double composite_discharge(const GutterFlow& g, double T) {
    const double W = g.W.number();
    const double r = g.Sw.number() / g.Sx.number();
    const double Eo = 1.0 / (1.0 + r / (std::pow(1.0 + r / (T / W - 1.0), 2.67) - 1.0));
    const double Qs = g.K.number() / g.n.number() * std::pow(g.Sx.number(), 1.67) * std::sqrt(g.S.number()) *
                      std::pow(T - W, 2.67);
    return Qs / (1.0 - Eo);
}

const Box discharge_box{BoxKind::plain, "No results computed.  Check your input for discharge.",
                        "GullymarkAL"};

class GutterSpread : public EngineTest {};

TEST_F(GutterSpread, TheSpreadOfACompositeSectionCarriesTheDischarge) {
    const auto gutter = composite_gutter();
    const Real T = compute_gutter_spread(gutter);
    EXPECT_GT(T, 2.0);
    EXPECT_NEAR(composite_discharge(gutter, T.number()), 3.0, 0.0001);
}

TEST_F(GutterSpread, NoDischargeGivesNoSpreadAndTheDischargeMessage) {
    auto gutter = composite_gutter();
    gutter.Q = 0.0;
    EXPECT_EQ(compute_gutter_spread(gutter), 0.0);
    EXPECT_EQ(boxes, std::vector{discharge_box});
}

TEST_F(GutterSpread, NoGutterTakesTheUniformSpreadOnThePavement) {
    auto gutter = composite_gutter();
    gutter.W = 0.0;
    EXPECT_DOUBLE_EQ(compute_gutter_spread(gutter).number(), uniform_spread(3.0, 0.01, 0.016, 0.02));
    gutter.Sw = -1.0;
    EXPECT_DOUBLE_EQ(compute_gutter_spread(gutter).number(), uniform_spread(3.0, 0.01, 0.016, 0.02));
    EXPECT_TRUE(boxes.empty());
}

TEST_F(GutterSpread, AFlatGutterTakesTheUniformSpreadOnThePavementAsWell) {
    auto gutter = composite_gutter();
    gutter.Sw = 0.0;
    EXPECT_DOUBLE_EQ(compute_gutter_spread(gutter).number(), uniform_spread(3.0, 0.01, 0.016, 0.02));
}

TEST_F(GutterSpread, ANegativeWidthOrSlopeOfTheGutterIsRefused) {
    auto narrow = composite_gutter();
    narrow.W = -1.0;
    auto reversed = composite_gutter();
    reversed.Sw = -0.02;
    for (const auto& gutter : {narrow, reversed}) {
        boxes.clear();
        EXPECT_EQ(compute_gutter_spread(gutter), 0.0);
        EXPECT_EQ(boxes, std::vector{(Box{BoxKind::plain, "You must enter valid data", "GullymarkAL"})});
    }
}

TEST_F(GutterSpread, ASpreadEqualToTheGutterWidthIsReturnedWithoutASearch) {
    auto gutter = composite_gutter();
    gutter.W = compute_uniform_spread(gutter.K, gutter.Q, gutter.S, gutter.n, gutter.Sw);
    gutter.spread_limit = 0.0;  // any search would fault
    EXPECT_EQ(compute_gutter_spread(gutter), gutter.W);
}

TEST_F(GutterSpread, ADischargeBeyondTheCeilingReturnsExactlySixTimesTheAllowableSpread) {
    auto gutter = composite_gutter();
    gutter.Q = 1.0e6;
    for (const double limit : {2.3, 8.0, 0.7, 3.1, 10.0, 0.4}) {
        gutter.spread_limit = limit;
        EXPECT_EQ(compute_gutter_spread(gutter), 6.0 * limit) << limit;
    }
    EXPECT_TRUE(boxes.empty());
}

TEST_F(GutterSpread, AnAllowableSpreadOfZeroReturnsZeroWithoutAMessage) {
    auto gutter = composite_gutter();
    gutter.spread_limit = 0.0;
    EXPECT_EQ(compute_gutter_spread(gutter), 0.0);
    EXPECT_TRUE(boxes.empty());
}

TEST_F(GutterSpread, NoLongitudinalSlopeOrRoughnessOrPavementSlopeReturnsZeroWithoutAMessage) {
    auto level = composite_gutter();
    level.S = 0.0;
    auto smooth = composite_gutter();
    smooth.n = 0.0;
    auto flat = composite_gutter();
    flat.Sx = 0.0;
    for (const auto& gutter : {level, smooth, flat}) {
        EXPECT_EQ(compute_gutter_spread(gutter), 0.0);
    }
    EXPECT_TRUE(boxes.empty());
}

TEST_F(GutterSpread, EverySearchEndsWhateverTheNumbers) {
    for (const double Q : {1e-300, 1e-5, 1.0, 1e13, 1e300}) {
        for (const double W : {1e-300, 0.5, 1e13}) {
            for (const double slope : {1e-300, 1e-9, 0.02, 1.0, 1e9}) {
                for (const double limit : {1e-300, 1.0, 1e15, 1e307}) {
                    const Real T = compute_gutter_spread({.K = 0.56F,
                                                          .Q = Q,
                                                          .S = 0.01,
                                                          .n = 0.016,
                                                          .W = W,
                                                          .Sx = slope,
                                                          .Sw = 0.08,
                                                          .Wa = 0.0,
                                                          .spread_limit = limit});
                    EXPECT_GE(T, 0.0);
                }
            }
        }
    }
}

class DitchDepth : public EngineTest {};

TEST_F(DitchDepth, TheDepthCarriesTheDischarge) {
    const auto M = static_cast<double>(1.486F);
    const double y = compute_ditch_depth(1.486F, 9.9, 0.03, 0.03, 2.0, 6.0, 6.0).number();
    const double A = 2.0 * y + 6.0 * y * y;
    const double P = 2.0 + 2.0 * std::sqrt(y * y + 36.0 * y * y);
    EXPECT_NEAR(M / 0.03 * A * std::sqrt(0.03) * std::pow(A / P, 0.6667), 9.9, 0.0001);
}

TEST_F(DitchDepth, NoDischargeGivesNoDepthAndTheDischargeMessage) {
    EXPECT_EQ(compute_ditch_depth(1.486F, 0.0, 0.03, 0.03, 2.0, 6.0, 6.0), 0.0);
    EXPECT_EQ(boxes, std::vector{discharge_box});
}

TEST_F(DitchDepth, ASearchThatNothingBringsCloserIsAFaultOfTheCaller) {
    EXPECT_THROW(compute_ditch_depth(1.486F, 9.9, 0.0, 0.03, 2.0, 6.0, 6.0), Fault);    // no slope
    EXPECT_THROW(compute_ditch_depth(1.486F, 9.9, 0.03, -0.03, 2.0, 6.0, 6.0), Fault);  // a negative n
    EXPECT_THROW(compute_ditch_depth(1.486F, 9.9, 0.03, 0.0, 2.0, 6.0, 6.0), Fault);
    EXPECT_TRUE(boxes.empty());
}

TEST_F(DitchDepth, ADischargeTooLargeForTheToleranceEndsWhereTheBoundsMeet) {
    const Real y = compute_ditch_depth(1.486F, 1e13, 0.03, 0.03, 2.0, 6.0, 6.0);
    EXPECT_GT(y, 1000.0);
    EXPECT_LT(y, 1e13);
}

class SumpDepth : public EngineTest {
  protected:
    SumpFlow flow{.Q = 10.0,
                  .A = 2.0,
                  .g = 32.174F,
                  .B = 0.5,
                  .h = 0.5,
                  .C = 5.0,
                  .throat = Throat::vertical,
                  .angle = 0.0};

    [[nodiscard]] double discharge(double d, double head) const {
        const double g = flow.g.number();
        const double grate = flow.A.number() * std::sqrt(2.0 * g * d);
        return head > 0.0 ? 0.67 * (grate + flow.B.number() * flow.C.number() * (2.0 * g) * std::sqrt(head))
                          : 0.67 * grate;
    }
};

TEST_F(SumpDepth, TheDepthIsTheFirstStepThatReachesTheDischarge) {
    const double d = compute_sump_depth(flow).number();
    EXPECT_LE(10.0 - discharge(d, d), 0.001);
    EXPECT_GT(10.0 - discharge(d - 0.001, d - 0.001), 0.001);
}

TEST_F(SumpDepth, TheFirstDepthTriedIsTwoThousandths) {
    flow.Q = 0.0001;
    EXPECT_EQ(compute_sump_depth(flow).number(), 0.001 + 0.001);
}

TEST_F(SumpDepth, TheThroatDecidesTheHead) {
    const double vertical = compute_sump_depth(flow).number();
    flow.throat = Throat::horizontal;
    const double horizontal = compute_sump_depth(flow).number();
    EXPECT_LE(10.0 - discharge(horizontal, horizontal - 0.25), 0.001);
    EXPECT_GT(horizontal, vertical);
    flow.throat = Throat::inclined;
    flow.angle = 0.0;
    EXPECT_EQ(compute_sump_depth(flow).number(), vertical);
    flow.angle = std::acos(-1.0) / 2.0;
    EXPECT_EQ(compute_sump_depth(flow).number(), horizontal);
    flow.throat = Throat::none;
    const double no_throat = compute_sump_depth(flow).number();
    EXPECT_LE(10.0 - discharge(no_throat, 0.0), 0.001);
    EXPECT_GT(no_throat, horizontal);
}

TEST_F(SumpDepth, NoDischargeShowsTheDischargeMessage) {
    flow.Q = 0.0;
    EXPECT_EQ(compute_sump_depth(flow), 0.0);
    EXPECT_EQ(boxes, std::vector{discharge_box});
}

TEST_F(SumpDepth, AFaultShowsTheDischargeMessage) {
    flow.B = 1e308;
    EXPECT_EQ(compute_sump_depth(flow), 0.0);
    EXPECT_EQ(boxes, std::vector{discharge_box});
}

}  // namespace
}  // namespace gullymark::engine
