#include "engine/hydraulics/Common_Libraries.h"

#include <string>

#include "engine/hydraulics/sump_march.h"
#include "engine/step.h"
#include "engine/workings.h"
#include "platform/outside.h"

namespace gullymark::engine {
namespace {

using formula::decides;
using formula::let;
using formula::Named;

constexpr double tolerance = 0.0001;  // cfs or cms, in every system of units

void tell(const char* text) {
    formula::note_text(text);
    platform::tell(text);
}

void tell_check_discharge() {
    tell("No results computed.  Check your input for discharge.");
}

void note_nothing_found(const char* text, Fault fault) {
    if (formula::workings != nullptr) {
        formula::note_text(text + std::string(fault_text(fault)));
    }
}

/// The two bounds of a bisection, and whether it can still come closer.
class Bounds {
  public:
    Bounds(Real low, Real high) : low_(low), high_(high) {}

    [[nodiscard]] Real middle() const { return (low_ + high_) / 2.0; }
    [[nodiscard]] bool upper_moved() const { return upper_moved_; }
    /// How often it closed in, or tried to.
    [[nodiscard]] std::size_t passes() const { return passes_; }

    /// Closes in by the difference of the wanted discharge and that of the middle. False when neither bound moved,
    /// so that every further pass would only repeat this one.
    bool close_in(Real difference, Real middle) {
        ++passes_;
        if (difference < -tolerance && middle != high_) {
            high_ = middle;
            upper_moved_ = true;
            return true;
        }
        if (difference > tolerance && middle != low_) {
            low_ = middle;
            return true;
        }
        return false;
    }

  private:
    Real low_;
    Real high_;
    bool upper_moved_ = false;
    std::size_t passes_ = 0;
};

// Each formula stands once, for two kinds of numbers: Real, and Named while somebody traces.

template <typename Number>
auto uniform_spread(const Number& K, const Number& Q, const Number& S, const Number& n, const Number& Sx) {
    return power((Q * n) / (K * power(Sx, 1.67) * power(S, 0.5)), Number(1.0) / 2.67);
}

/// A gutter whose numbers have the symbols of its formulas.
struct NamedGutter {
    Named K;
    Named Q;
    Named S;
    Named n;
    Named W;
    Named Sx;
    Named Sw;
    Named spread_limit;
};

NamedGutter name_numbers(const GutterFlow& flow) {
    NamedGutter named{.K = {"K", flow.K},
                      .Q = {flow.discharge, flow.Q},
                      .S = {"S", flow.S},
                      .n = {"n", flow.n},
                      .W = {"W", flow.W},
                      .Sx = {"Sx", flow.Sx},
                      .Sw = {"Sw", flow.Sw},
                      .spread_limit = {"limit", flow.spread_limit}};
    named.K.is_single = true;
    return named;
}

template <typename Gutter>
using NumberOf = decltype(Gutter::Q);

// The equation that the search solves for T: Q = Qs / B.
template <typename Gutter>
auto conveyance_of(const Gutter& g) {
    return g.K / g.n * power(g.Sx, 1.67) * power(g.S, 0.5);
}
template <typename Number>
auto pavement_discharge(const Number& conveyance, const Number& T, const Number& W) {
    return conveyance * power(T - W, 2.67);
}

/// How the search of a spread ended.
struct SpreadFound {
    Real T;
    std::string_view ending;
    bool is_close = false;    // within the tolerance
    bool is_uniform = false;  // the spread on the pavement slope took the place of a trial at W
};

constexpr std::string_view at_ceiling = "the ceiling of the search, which no greater discharge passes";

template <typename Gutter, typename Number>
SpreadFound bisect_spread(const Gutter& g, const Number& conveyance, const Number& r, Real ceiling,
                          Bounds& bounds) {
    while (true) {
        Real mid = bounds.middle();
        const Real Qs = pavement_discharge(conveyance, Number(mid), g.W);
        const Real difference = g.Q - Qs / side_flow_share_of_ratio(Number(mid), g.W, r);
        const bool moved = bounds.close_in(difference, mid);
        const bool is_uniform = absolute(difference) > tolerance && mid <= g.W + tolerance;
        if (is_uniform) {
            mid = uniform_spread(g.K, g.Q, g.S, g.n, g.Sx);
        }
        if (mid >= ceiling) {
            return {.T = ceiling, .ending = at_ceiling};
        }
        if (absolute(difference) < tolerance) {
            return {.T = mid, .ending = "until the flow is within 0.0001", .is_close = true};
        }
        if (!moved) {
            return bounds.upper_moved()
                       ? SpreadFound{.T = mid, .ending = "no pass comes closer", .is_uniform = is_uniform}
                       : SpreadFound{.T = ceiling, .ending = at_ceiling};
        }
    }
}

/// The answer of the search put back into its equation.
void tell_spread(const NamedGutter& g, const Named& conveyance, const Named& r, const SpreadFound& found,
                 const Named& ceiling, std::size_t passes) {
    const Quantity target{"T", Unit::length, "spread of the flow"};
    if (found.is_uniform) {
        let(target, uniform_spread(g.K, g.Q, g.S, g.n, g.Sx));
    }
    formula::note_search({.target = target,
                          .answer = found.T,
                          .low = g.W,
                          .high = ceiling,
                          .tolerance = found.is_close ? tolerance : 0.0,
                          .passes = passes,
                          .ending = found.ending});
    const Named T("T", found.T);
    const Named Qs =
        let({"Qs", Unit::discharge, "flow on the pavement"}, pavement_discharge(conveyance, T, g.W));
    const Named B = let({"B", Unit::ratio, "its share of the flow"}, side_flow_share_of_ratio(T, g.W, r));
    const Named carried = let({"Q_T", Unit::discharge, "flow that the spread carries"}, Qs / B);
    let({"residual", Unit::discharge, "what the answer leaves of the flow"}, g.Q - carried);
}

template <typename Gutter>
Real search_composite_spread(const Gutter& g) {
    using Number = NumberOf<Gutter>;
    const Number ceiling =
        let({"ceiling", Unit::length, "of the search"}, ceiling_in_limits * g.spread_limit);
    const Number conveyance =
        let({"k", Unit::other, "conveyance of the pavement beside the gutter"}, conveyance_of(g));
    const Number r = let({"r", Unit::ratio, "gutter slope over pavement slope"}, g.Sw / g.Sx);
    Bounds bounds(g.W, ceiling);
    const SpreadFound found = bisect_spread(g, conveyance, r, ceiling, bounds);
    if constexpr (formula::Tree<Number>) {
        tell_spread(g, conveyance, r, found, ceiling, bounds.passes());
    }
    return found.T;
}

template <typename Gutter>
Real spread_or_fault(const Gutter& g) {
    using Number = NumberOf<Gutter>;
    if (g.Q <= 0.0) {
        tell_check_discharge();
        return 0.0;
    }
    if (decides(g.W == 0.0 || g.Sw == 0.0)) {
        return let({"T", Unit::length, "spread on the pavement slope"},
                   uniform_spread(g.K, g.Q, g.S, g.n, g.Sx));
    }
    if (g.W < 0.0 || g.Sw < 0.0) {
        tell("You must enter valid data");
        return 0.0;
    }
    const Number within_gutter =
        let({"T_w", Unit::length, "spread on the gutter slope"}, uniform_spread(g.K, g.Q, g.S, g.n, g.Sw));
    return decides(within_gutter > g.W) ? search_composite_spread(g) : Real(within_gutter);
}

/// A ditch. With Named numbers they have the symbols of its formulas.
template <typename Number>
struct Ditch {
    Number M;
    Number Q;
    Number S;
    Number n;
    Number B;
    Number zl;
    Number zr;
};

template <typename Number>
auto ditch_area(const Ditch<Number>& d, const Number& y) {
    return y * d.B + (d.zl + d.zr) / 2.0 * square(y);
}
template <typename Number>
auto ditch_perimeter(const Ditch<Number>& d, const Number& y) {
    return d.B + square_root(square(y) + square(d.zl * y)) + square_root(square(y) + square(d.zr * y));
}
template <typename Number>
auto ditch_discharge(const Ditch<Number>& d, const Number& A, const Number& P) {
    return d.M / d.n * A * power(d.S, 0.5) * power(A / P, 0.6667);
}

/// The answer of the search put back into its equation.
void tell_ditch_depth(const Ditch<Named>& d, Real depth, const Named& high, bool is_close,
                      std::size_t passes) {
    formula::note_search({.target = {"y", Unit::length, "depth of the flow"},
                          .answer = depth,
                          .low = 0.0,
                          .high = high,
                          .tolerance = is_close ? tolerance : 0.0,
                          .passes = passes,
                          .ending = is_close ? "until the flow is within 0.0001" : "no pass comes closer"});
    const Named y("y", depth);
    const Named A = let({"A", Unit::area, "area of the flow"}, ditch_area(d, y));
    const Named P = let({"P", Unit::length, "wetted perimeter"}, ditch_perimeter(d, y));
    const Named carried =
        let({"Q_y", Unit::discharge, "flow that the depth carries"}, ditch_discharge(d, A, P));
    let({"residual", Unit::discharge, "what the answer leaves of the flow"}, d.Q - carried);
}

template <typename Number>
Real search_ditch_depth(const Ditch<Number>& d) {
    const Number high = let({"ceiling", Unit::length, "of the search"}, d.Q + 100.0);
    Bounds bounds(0.0, high);
    while (true) {
        const Real y = bounds.middle();
        const Real A = ditch_area(d, Number(y));
        const Real P = ditch_perimeter(d, Number(y));
        const Real difference = d.Q - ditch_discharge(d, Number(A), Number(P));
        const bool is_close = absolute(difference) < tolerance;
        const bool moved = bounds.close_in(difference, y);
        if (!is_close && moved) {
            continue;
        }
        if (!is_close && !bounds.upper_moved()) {
            throw Fault::endless_search;
        }
        if constexpr (formula::Tree<Number>) {
            tell_ditch_depth(d, y, high, is_close, bounds.passes());
        }
        return y;
    }
}

}  // namespace

formula::Taken side_flow_share(const Quantity& T, const Quantity& W, const Quantity& Sw, const Quantity& Sx) {
    if (formula::workings == nullptr) {
        return formula::Taken(side_flow_share(T.value, W.value, Sw.value, Sx.value));
    }
    const Named r = let({"r", Unit::ratio, "gutter slope over pavement slope"}, Sw / Sx);
    return formula::Taken(side_flow_share_of_ratio(Named(T), Named(W), r));
}

Real compute_uniform_spread(Real K, Real Q, Real S, Real n, Real Sx) {
    return uniform_spread(K, Q, S, n, Sx);
}

Real compute_gutter_spread(const GutterFlow& flow) {
    try {
        return formula::workings == nullptr ? spread_or_fault(flow) : spread_or_fault(name_numbers(flow));
    } catch (Fault fault) {
        note_nothing_found("no spread is found, it is 0: ", fault);
        return 0.0;
    }
}

Real compute_ditch_depth(Real M, Real Q, Real S, Real n, Real b, Real z1, Real z2) {
    if (Q <= 0.0) {
        tell_check_discharge();
        return 0.0;
    }
    if (formula::workings == nullptr) {
        return search_ditch_depth<Real>({.M = M, .Q = Q, .S = S, .n = n, .B = b, .zl = z1, .zr = z2});
    }
    Named constant("M", M);
    constant.is_single = true;
    return search_ditch_depth<Named>({.M = constant,
                                      .Q = {"Q", Q},
                                      .S = {"S", S},
                                      .n = {"n", n},
                                      .B = {"B", b},
                                      .zl = {"zl", z1},
                                      .zr = {"zr", z2}});
}

Real compute_sump_depth(const SumpFlow& flow) {
    try {
        if (flow.Q > 0.0) {
            return march_to_sump_depth(flow);
        }
    } catch (Fault fault) {
        note_nothing_found("no depth is found, it is 0: ", fault);
    }
    tell_check_discharge();
    return 0.0;
}

}  // namespace gullymark::engine
