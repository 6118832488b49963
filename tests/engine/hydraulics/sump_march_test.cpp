#include "engine/hydraulics/sump_march.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <random>
#include <string>

namespace gullymark::engine {
namespace {

constexpr double pi = 3.14159265358979;

/// How a march ends.
struct Outcome {
    enum class Kind { depth, fault, not_yet } kind = Kind::not_yet;
    double depth = 0.0;

    bool operator==(const Outcome&) const = default;
};

std::string text_of(const Outcome& outcome) {
    switch (outcome.kind) {
        case Outcome::Kind::fault:
            return "fault";
        case Outcome::Kind::not_yet:
            return "not yet";
        case Outcome::Kind::depth:
            break;
    }
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%a", outcome.depth);
    return text.data();
}

Real discharge_at(const SumpFlow& f, Real d) {
    Real head = 0.0;
    if (f.throat == Throat::horizontal) {
        head = d - f.h / 2.0;
    } else if (f.throat == Throat::inclined) {
        head = d - f.h / 2.0 * sine(f.angle);
    } else if (f.throat == Throat::vertical) {
        head = d;
    }
    if (head <= 0.0) {
        return 0.67 * f.A * power(2.0 * f.g * d, 0.5);
    }
    return 0.67 * (f.A * power(2.0 * f.g * d, 0.5) + f.B * f.C * (2.0 * f.g) * power(head, 0.5));
}

/// The march as it is told: every depth one after the other, up to `most` of them.
Outcome plain_march(const SumpFlow& flow, int most) {
    try {
        Real d = 0.001;
        for (int i = 0; i < most; ++i) {
            d = d + 0.001;
            if (!(flow.Q - discharge_at(flow, d) > 0.001)) {
                return {.kind = Outcome::Kind::depth, .depth = d.number()};
            }
        }
        return {};
    } catch (Fault) {
        return {.kind = Outcome::Kind::fault};
    }
}

Outcome march(const SumpFlow& flow) {
    try {
        return {.kind = Outcome::Kind::depth, .depth = march_to_sump_depth(flow).number()};
    } catch (Fault) {
        return {.kind = Outcome::Kind::fault};
    }
}

std::string describe(const SumpFlow& f) {
    std::array<char, 300> text{};
    std::snprintf(text.data(), text.size(), "Q %a A %a g %a B %a h %a C %a throat %d angle %a", f.Q.number(),
                  f.A.number(), f.g.number(), f.B.number(), f.h.number(), f.C.number(),
                  static_cast<int>(f.throat), f.angle.number());
    return text.data();
}

/// Compares with the plain march as far as that comes within `most` depths; beyond, the answer must lie
/// beyond too.
testing::AssertionResult agrees(const SumpFlow& flow, int most) {
    const Outcome expected = plain_march(flow, most);
    const Outcome computed = march(flow);
    const bool beyond = computed.kind == Outcome::Kind::fault || computed.depth > 0.001 * most;
    if (expected == computed || (expected.kind == Outcome::Kind::not_yet && beyond)) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure()
           << describe(flow) << ": plain " << text_of(expected) << ", computed " << text_of(computed);
}

class SumpMarch : public testing::Test {
  protected:
    double between(double low, double high) { return std::uniform_real_distribution(low, high)(random_); }
    double of_any_size(double low_exponent, double high_exponent) {
        return std::pow(10.0, between(low_exponent, high_exponent));
    }
    double either_sign(double number) { return between(0.0, 1.0) < 0.5 ? -number : number; }
    Throat any_throat() { return static_cast<Throat>(std::uniform_int_distribution(0, 3)(random_)); }

    SumpFlow likely_inlet() {
        return {.Q = between(0.01, 40.0),
                .A = between(0.0, 12.0),
                .g = 32.174F,
                .B = between(0.0, 1.2),
                .h = between(0.0, 1.2),
                .C = between(0.0, 20.0),
                .throat = any_throat(),
                .angle = between(0.0, pi / 2.0)};
    }

    SumpFlow odd_inlet(double exponent) {
        const double h = either_sign(of_any_size(-exponent, exponent));
        return {.Q = of_any_size(-4.0, exponent),
                .A = either_sign(of_any_size(-exponent, exponent)),
                .g = 9.81F,
                .B = h,
                .h = h,
                .C = either_sign(of_any_size(-exponent, exponent)),
                .throat = any_throat(),
                .angle = between(-10.0, 10.0)};
    }

    std::mt19937_64 random_{20240917};
};

TEST_F(SumpMarch, FindsTheDepthOfThePlainMarchForLikelyInlets) {
    for (int i = 0; i < 3000; ++i) {
        EXPECT_TRUE(agrees(likely_inlet(), 5'000));
    }
}

TEST_F(SumpMarch, FindsTheDepthOfThePlainMarchForOddInlets) {
    for (int i = 0; i < 600; ++i) {
        EXPECT_TRUE(agrees(odd_inlet(2.0), 5'000));
        EXPECT_TRUE(agrees(odd_inlet(5.0), 2'000));
        EXPECT_TRUE(agrees(odd_inlet(300.0), 500));
    }
}

TEST_F(SumpMarch, FindsTheDepthWhereTheDischargeIsMetToTheLastDigit) {
    for (int i = 0; i < 1000; ++i) {
        SumpFlow flow = i % 2 == 0 ? likely_inlet() : odd_inlet(2.0);
        const double d = between(0.002, 6.0);
        double Q = discharge_at(flow, d).number() + 0.001;
        for (int nudge = i % 5; nudge > 0; --nudge) {
            Q = std::nextafter(Q, i % 3 == 0 ? 0.0 : 1e300);
        }
        flow.Q = std::fabs(Q);
        EXPECT_TRUE(agrees(flow, 7'000));
    }
}

TEST_F(SumpMarch, FindsTheTopOfAFlowThatFallsAgainBehindTheThroat) {
    // An opening of negative length takes back what the grate gives: the flow peaks where the throat is
    // reached.
    for (int i = 0; i < 600; ++i) {
        SumpFlow flow = likely_inlet();
        flow.throat = Throat::horizontal;
        flow.h = between(0.1, 3.0);
        flow.C = -flow.C;
        const double top = discharge_at(flow, flow.h / 2.0).number() + 0.001;
        flow.Q = top * (1.0 + either_sign(of_any_size(-17.0, -2.0)));
        EXPECT_TRUE(agrees(flow, 3'000));
    }
}

TEST_F(SumpMarch, FindsTheDepthWhereAFlowFallsAndThenRises) {
    for (int i = 0; i < 600; ++i) {
        SumpFlow flow = likely_inlet();
        flow.h = i % 2 == 0 ? flow.h : -flow.h;
        const double share = std::sqrt(2.0 * flow.g.number()) * between(0.5, 1.0);
        (i % 4 < 2 ? flow.A : flow.C) = -flow.A / flow.B / share;
        EXPECT_TRUE(agrees(flow, 5'000));
    }
}

TEST_F(SumpMarch, TriesEveryDepthWhereTwoTermsCancelAndOnlyRoundingDecides) {
    for (int i = 0; i < 60; ++i) {
        SumpFlow flow = likely_inlet();
        flow.throat = i % 3 == 0 ? Throat::horizontal : Throat::vertical;
        flow.C = of_any_size(-1.0, 14.0);
        const double root = std::sqrt(2.0 * flow.g.number());
        flow.A = -(flow.B * flow.C).number() * root * (1.0 + either_sign(of_any_size(-17.0, -13.0)));
        flow.Q = 0.001 + of_any_size(-14.0, -1.0);
        EXPECT_TRUE(agrees(flow, 20'000));
    }
}

TEST_F(SumpMarch, FindsADepthFarBeyondThePlainMarchBetweenTwoThatItTries) {
    // d = 1,000,000 ft: 0.67 A (2 g d)^0.5 = Q. The march reaches it after a thousand million depths.
    SumpFlow flow{.A = 1.0, .g = 32.0, .throat = Throat::none};
    flow.Q = 0.67 * 8000.0;
    const double d = march_to_sump_depth(flow).number();
    EXPECT_NEAR(d, 1e6, 1.0);
    EXPECT_LE(flow.Q - discharge_at(flow, d), 0.001);
    EXPECT_GT(flow.Q - discharge_at(flow, d - 0.001), 0.001);
}

TEST_F(SumpMarch, FollowsTheSumsOfTheDepthThroughEveryPowerOfTwo) {
    // Nine million depths summed up one by one, against the leaps: all up to 2 ft, then some in each power of
    // two.
    double d = 0.001;
    double next = 0.0;
    for (int i = 0; i < 9'000'000; ++i) {
        d = d + 0.001;
        if (d < next) {
            continue;
        }
        next = d < 2.0 ? 0.0 : d * 1.3;
        SumpFlow flow{.A = 1.0, .g = 0.5, .throat = Throat::none};
        flow.Q = discharge_at(flow, d) + 0.001 + 1e-9;
        const double found = march_to_sump_depth(flow).number();
        EXPECT_EQ(found, d + 0.001) << d;
    }
}

TEST_F(SumpMarch, AFlowThatNeverComesIsAnEndlessSearch) {
    const auto is_endless = [](const SumpFlow& flow) {
        try {
            march_to_sump_depth(flow);
        } catch (Fault fault) {
            return fault == Fault::endless_search;
        }
        return false;
    };
    EXPECT_TRUE(is_endless({.Q = 1.0, .A = 0.0, .g = 32.174F, .throat = Throat::none}));
    EXPECT_TRUE(is_endless({.Q = 1.0, .A = -1.0, .g = 32.174F, .throat = Throat::none}));
    EXPECT_TRUE(is_endless({.Q = 1e300, .A = 1.0, .g = 32.174F, .throat = Throat::none}));
    EXPECT_TRUE(is_endless(
        {.Q = 1.0, .A = -9.0, .g = 9.81F, .B = 0.5, .h = 0.5, .C = -2.0, .throat = Throat::vertical}));
}

TEST_F(SumpMarch, TakesNoLongerThanTheLimitForAnyInput) {
    for (int i = 0; i < 300; ++i) {
        const SumpFlow flow = odd_inlet(i % 2 == 0 ? 12.0 : 300.0);
        const std::clock_t before = std::clock();
        march(flow);
        // The limit of a solve is 20 ms; the checked build is some ten times slower.
        EXPECT_LT(std::clock() - before, CLOCKS_PER_SEC / 5) << describe(flow);
    }
    // The most that a march ever tries: two terms that cancel, so that every depth is in doubt.
    SumpFlow flow{
        .Q = 1.0, .A = -1e14, .g = 32.0, .B = 1e14, .h = 1.0, .C = 0.125, .throat = Throat::vertical};
    const std::clock_t before = std::clock();
    march(flow);
    EXPECT_LT(std::clock() - before, CLOCKS_PER_SEC / 5);
}

}  // namespace
}  // namespace gullymark::engine
