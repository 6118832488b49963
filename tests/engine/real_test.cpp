#include "engine/real.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

namespace gullymark::engine {
namespace {

static_assert(!std::is_constructible_v<Real, int>,
              "a division of whole numbers must not slip into a formula");
static_assert(std::is_convertible_v<float, Real> && std::is_convertible_v<double, Real>);

Fault fault_of(const std::function<Real()>& formula) {
    try {
        formula();
    } catch (Fault fault) {
        return fault;
    }
    return Fault::none;
}

constexpr double huge = std::numeric_limits<double>::max();
constexpr double tiny = std::numeric_limits<double>::denorm_min();

TEST(Real, EveryOperationFaultsOnWhatHasNoValue) {
    struct Case {
        std::string name;
        Fault fault;
        std::function<Real()> formula;
    };
    const std::vector<Case> cases = {
        {"huge + huge", Fault::overflow, [] { return Real(huge) + Real(huge); }},
        {"-huge - huge", Fault::overflow, [] { return Real(-huge) - Real(huge); }},
        {"huge * 2", Fault::overflow, [] { return Real(huge) * 2.0; }},
        {"huge / 0.5", Fault::overflow, [] { return Real(huge) / 0.5; }},
        {"1 / 0", Fault::division_by_zero, [] { return Real(1.0) / 0.0; }},
        {"0 / 0", Fault::division_by_zero, [] { return Real(0.0) / 0.0; }},
        {"0 / -0", Fault::division_by_zero, [] { return Real(0.0) / -0.0; }},
        {"infinity", Fault::overflow, [] { return Real(std::numeric_limits<double>::infinity()); }},
        {"NaN", Fault::overflow, [] { return Real(std::numeric_limits<double>::quiet_NaN()); }},
        {"(-1)^0.5", Fault::no_real_power, [] { return power(-1.0, 0.5); }},
        {"0^-1", Fault::no_real_power, [] { return power(0.0, -1.0); }},
        {"huge^2", Fault::overflow, [] { return power(huge, 2.0); }},
        {"sqrt(-1)", Fault::no_real_power, [] { return square_root(-1.0); }},
        {"ln 0", Fault::no_real_power, [] { return natural_logarithm(0.0); }},
        {"ln -1", Fault::no_real_power, [] { return natural_logarithm(-1.0); }},
    };
    for (const auto& [name, fault, formula] : cases) {
        EXPECT_EQ(fault_of(formula), fault) << name;
    }
}

TEST(Real, WholePowersOfNegativeBasesAndZeroPowersHaveValues) {
    EXPECT_EQ(power(-2.0, 2.0).number(), 4.0);
    EXPECT_EQ(power(-2.0, -1.0).number(), -0.5);
    EXPECT_EQ(power(0.0, 0.0).number(), 1.0);
    EXPECT_EQ(power(0.0, 0.42).number(), 0.0);
}

TEST(Real, AnUnderflowIsZeroAndNoFault) {
    EXPECT_EQ((Real(tiny) / 4.0).number(), 0.0);
    EXPECT_EQ(power(tiny, 2.0).number(), 0.0);
}

TEST(Real, ASingleValueKeepsItsOwnRounding) {
    EXPECT_EQ(Real(0.56F).number(), 0.5600000023841858);
}

}  // namespace
}  // namespace gullymark::engine
