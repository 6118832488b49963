#include "engine/hydraulics/sump_march.h"

#include <cmath>

namespace gullymark::engine {
namespace {

constexpr double rise = 0.001;
constexpr double sump_tolerance = 0.001;

// More than the rounding of the formula ever amounts to, as a share of its greatest term.
constexpr double rounding_share = 1e-13;

// So many depths are tried one by one where rounding leaves it open which is the first.
constexpr int depths_in_doubt = 50'000;

/// What a depth gives.
struct Trial {
    bool goes_on = false;  // too shallow: the march goes on
    bool by_far = false;   // so much too shallow that rounding plays no part in it
};

class Sump {
  public:
    explicit Sump(const SumpFlow& flow) : flow_(flow), throat_(throat_level(flow)) {}

    [[nodiscard]] Trial try_depth(Real d) const {
        const Real head = flow_.throat == Throat::none ? Real(0.0) : d - throat_;
        const Real root = power(2.0 * flow_.g * d, 0.5);
        if (head > 0.0) {
            const Real grate = flow_.A * root;
            const Real throat = flow_.B * flow_.C * (2.0 * flow_.g) * power(head, 0.5);
            return judge(orifice_coefficient * (grate + throat),
                         std::fabs(grate.number()) + std::fabs(throat.number()));
        }
        const Real grate = orifice_coefficient * flow_.A * root;
        return judge(grate, std::fabs(grate.number()));
    }

    /// The depth at which water reaches the throat, where the formula changes.
    [[nodiscard]] double throat() const { return throat_.number(); }

  private:
    static Real throat_level(const SumpFlow& flow) {
        switch (flow.throat) {
            case Throat::horizontal:
                return flow.h / 2.0;
            case Throat::inclined:
                return flow.h / 2.0 * sine(flow.angle);
            case Throat::vertical:
            case Throat::none:
                break;
        }
        return 0.0;
    }

    [[nodiscard]] Trial judge(Real discharge, double greatest) const {
        const Real shortfall = flow_.Q - discharge;
        const double rounding = rounding_share * (flow_.Q.number() + greatest);
        return {.goes_on = shortfall > sump_tolerance,
                .by_far = shortfall.number() > sump_tolerance + rounding};
    }

    SumpFlow flow_;
    Real throat_;
};

/// Depths that the march tries one after the other, all one `step` apart.
///
/// Within one power of two the rounded sum d + 0.001 lies a constant number of units in the last place above
/// d. Where 0.001 is an odd number of half units, from 1/128 to 1/64, the sums are rounded to the even
/// neighbor, and from the second on that step is constant as well; the march enters there at an even depth.
struct Stretch {
    double first = 0.0;
    double step = 0.0;
    double last = 0.0;  // index of the last

    [[nodiscard]] double depth(double index) const { return first + index * step; }
};

/// The depths from `d` to the next power of two or, before that, the throat. Over them a depth that falls
/// short turns into one that does not once at most: where the two terms of the flow oppose each other, it
/// falls and then rises, or it has its greatest value below 0.
Stretch stretch_from(double d, double throat) {
    const double power_of_two = std::exp2(std::ilogb(d) + 1);
    const double end = throat > d && throat < power_of_two ? throat : power_of_two;
    Stretch stretch{.first = d, .step = (d + rise) - d};
    if (stretch.step > 0.0) {
        stretch.last = std::floor((end - d) / stretch.step);
        while (stretch.last > 0.0 && stretch.depth(stretch.last) >= end) {
            stretch.last -= 1.0;
        }
    }
    return stretch;
}

/// The last depth of the stretch that surely falls short, given that the first does.
template <typename FallsShort>
double last_short_depth(const Stretch& stretch, FallsShort&& falls_short) {
    if (falls_short(stretch.depth(stretch.last))) {
        return stretch.depth(stretch.last);
    }
    double low = 0.0;
    double high = stretch.last;
    while (high - low > 1.0) {
        const double middle = std::floor((low + high) / 2.0);
        (falls_short(stretch.depth(middle)) ? low : high) = middle;
    }
    return stretch.depth(low);
}

}  // namespace

Real march_to_sump_depth(const SumpFlow& flow) {
    const Sump sump(flow);
    int in_doubt = 0;
    const auto may_pass = [&in_doubt](const Trial& trial) {
        return in_doubt < depths_in_doubt ? trial.by_far : trial.goes_on;
    };
    const auto falls_short = [&](double d) {
        try {
            return may_pass(sump.try_depth(d));
        } catch (Fault) {
            return false;
        }
    };
    double d = rise + rise;
    while (true) {
        const Trial trial = sump.try_depth(d);
        if (!trial.goes_on) {
            return d;
        }
        if (may_pass(trial)) {
            d = last_short_depth(stretch_from(d, sump.throat()), falls_short);
        } else {
            ++in_doubt;
        }
        if (d + rise == d) {
            throw Fault::endless_search;
        }
        d += rise;
    }
}

}  // namespace gullymark::engine
