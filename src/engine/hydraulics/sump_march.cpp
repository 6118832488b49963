#include "engine/hydraulics/sump_march.h"

#include <cmath>
#include <cstddef>

#include "engine/workings.h"

namespace gullymark::engine {
namespace {

using formula::decides;
using formula::let;
using formula::Named;

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

/// The flow whose numbers have the symbols that they have in the sheet of a combination.
struct NamedFlow {
    Named Q;
    Named A;
    Named g;
    Named B;
    Named h;
    Named C;
    Named angle;
};

NamedFlow name_numbers(const SumpFlow& flow) {
    NamedFlow named{.Q = {"Q", flow.Q},
                    .A = {"Ae", flow.A},
                    .g = {"g", flow.g},
                    .B = {"h", flow.B},
                    .h = {"h", flow.h},
                    .C = {"L", flow.C},
                    .angle = {"radians", flow.angle}};
    named.g.is_single = true;
    return named;
}

// The pieces of the flow at a depth d with a head on the throat: for SumpFlow with Real, or for NamedFlow.
template <typename Flow>
auto horizontal_level(const Flow& f) {
    return f.h / 2.0;
}
template <typename Flow>
auto inclined_level(const Flow& f) {
    return f.h / 2.0 * sine(f.angle);
}
template <typename Flow, typename Number>
auto root_of(const Flow& f, const Number& d) {
    return power(2.0 * f.g * d, 0.5);
}
template <typename Flow, typename Number>
auto grate_beside_throat(const Flow& f, const Number& root) {
    return f.A * root;
}
template <typename Flow, typename Number>
auto throat_discharge(const Flow& f, const Number& head) {
    return f.B * f.C * (2.0 * f.g) * power(head, 0.5);
}
template <typename Number>
auto discharge_of_both(const Number& grate, const Number& throat) {
    return orifice_coefficient * (grate + throat);
}
template <typename Flow, typename Number>
auto discharge_of_grate(const Flow& f, const Number& root) {
    return orifice_coefficient * f.A * root;
}

class Sump {
  public:
    explicit Sump(const SumpFlow& flow) : flow_(flow), throat_(throat_level(flow)) {}

    [[nodiscard]] Trial try_depth(Real d) const {
        const Real head = flow_.throat == Throat::none ? Real(0.0) : d - throat_;
        const Real root = root_of(flow_, d);
        if (head > 0.0) {
            const Real grate = grate_beside_throat(flow_, root);
            const Real throat = throat_discharge(flow_, head);
            return judge(discharge_of_both(grate, throat),
                         std::fabs(grate.number()) + std::fabs(throat.number()));
        }
        const Real grate = discharge_of_grate(flow_, root);
        return judge(grate, std::fabs(grate.number()));
    }

    /// The depth at which water reaches the throat, where the formula changes.
    [[nodiscard]] double throat() const { return throat_.number(); }

  private:
    static Real throat_level(const SumpFlow& flow) {
        switch (flow.throat) {
            case Throat::horizontal:
                return horizontal_level(flow);
            case Throat::inclined:
                return inclined_level(flow);
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

/// The head on the throat under a depth.
Named let_head(const SumpFlow& flow, const NamedFlow& f, const Named& d) {
    const Quantity target{"level", Unit::length, "from which the head on the throat counts"};
    const Quantity head{"head", Unit::length, "on the throat"};
    switch (flow.throat) {
        case Throat::horizontal:
            return let(head, d - let(target, horizontal_level(f)));
        case Throat::inclined:
            return let(head, d - let(target, inclined_level(f)));
        case Throat::vertical:
            return let(head, d - 0.0);
        case Throat::none:
            break;
    }
    return let(head, Named(0.0));
}

/// The depth put back into the formulas.
void tell_depth(const SumpFlow& flow, Real depth, std::size_t passes) {
    formula::note_search({.target = {"d", Unit::length, "depth over the inlet"},
                          .answer = depth,
                          .low = rise + rise,
                          .high = depth,
                          .tolerance = sump_tolerance,
                          .passes = passes,
                          .ending = "up in steps of 0.001 until the flow is within 0.001 or beyond"});
    const NamedFlow f = name_numbers(flow);
    const Named d("d", depth);
    const Quantity target{"Q_d", Unit::discharge, "flow that the depth carries"};
    const Named root = let({"root", Unit::velocity, "velocity under the depth"}, root_of(f, d));
    const Named head = let_head(flow, f, d);
    Named carried;
    if (decides(head > 0.0)) {
        const Named grate = let({"grate", Unit::other, "its part"}, grate_beside_throat(f, root));
        const Named throat = let({"throat", Unit::other, "its part"}, throat_discharge(f, head));
        carried = let(target, discharge_of_both(grate, throat));
    } else {
        carried = let(target, discharge_of_grate(f, root));
    }
    let({"residual", Unit::discharge, "what the answer leaves of the flow"}, f.Q - carried);
}

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
    std::size_t passes = 0;
    const auto may_pass = [&in_doubt](const Trial& trial) {
        return in_doubt < depths_in_doubt ? trial.by_far : trial.goes_on;
    };
    const auto falls_short = [&](double d) {
        ++passes;
        try {
            return may_pass(sump.try_depth(d));
        } catch (Fault) {
            return false;
        }
    };
    double d = rise + rise;
    while (true) {
        ++passes;
        const Trial trial = sump.try_depth(d);
        if (!trial.goes_on) {
            if (formula::workings != nullptr) {
                tell_depth(flow, d, passes);
            }
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
