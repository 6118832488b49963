#include "engine/hydraulics/Common_Libraries.h"

#include "engine/hydraulics/sump_march.h"
#include "platform/outside.h"

namespace gullymark::engine {
namespace {

constexpr double tolerance = 0.0001;  // cfs or cms, in every system of units

void tell_check_discharge() {
    platform::tell("No results computed.  Check your input for discharge.");
}

/// The two bounds of a bisection, and whether it can still come closer.
class Bounds {
  public:
    Bounds(Real low, Real high) : low_(low), high_(high) {}

    [[nodiscard]] Real middle() const { return (low_ + high_) / 2.0; }
    [[nodiscard]] bool upper_moved() const { return upper_moved_; }

    /// Closes in by the difference of the wanted discharge and that of the middle. False when neither bound moved,
    /// so that every further pass would only repeat this one.
    bool close_in(Real difference, Real middle) {
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
};

Real search_composite_spread(const GutterFlow& flow) {
    const Real ceiling = 6.0 * flow.spread_limit;
    const Real conveyance = flow.K / flow.n * power(flow.Sx, 1.67) * power(flow.S, 0.5);
    Bounds bounds(flow.W, ceiling);
    while (true) {
        Real mid = bounds.middle();
        const Real Qs = conveyance * power(mid - flow.W, 2.67);
        const Real difference = flow.Q - Qs / side_flow_share(mid, flow.W, flow.Sw, flow.Sx);
        const bool moved = bounds.close_in(difference, mid);
        if (absolute(difference) > tolerance && mid <= flow.W + tolerance) {
            mid = compute_uniform_spread(flow.K, flow.Q, flow.S, flow.n, flow.Sx);
        }
        if (mid >= ceiling) {
            return ceiling;
        }
        if (absolute(difference) < tolerance) {
            return mid;
        }
        if (!moved) {
            return bounds.upper_moved() ? mid : ceiling;
        }
    }
}

Real spread_or_fault(const GutterFlow& flow) {
    if (flow.Q <= 0.0) {
        tell_check_discharge();
        return 0.0;
    }
    if (flow.W == 0.0 || flow.Sw == 0.0) {
        return compute_uniform_spread(flow.K, flow.Q, flow.S, flow.n, flow.Sx);
    }
    if (flow.W < 0.0 || flow.Sw < 0.0) {
        platform::tell("You must enter valid data");
        return 0.0;
    }
    const Real within_gutter = compute_uniform_spread(flow.K, flow.Q, flow.S, flow.n, flow.Sw);
    return within_gutter > flow.W ? search_composite_spread(flow) : within_gutter;
}

Real ditch_discharge(Real M, Real S, Real n, Real b, Real z1, Real z2, Real y) {
    const Real A = y * b + (z1 + z2) / 2.0 * square(y);
    const Real P = b + square_root(square(y) + square(z1 * y)) + square_root(square(y) + square(z2 * y));
    return M / n * A * power(S, 0.5) * power(A / P, 0.6667);
}

}  // namespace

Real side_flow_share(Real T, Real W, Real Sw, Real Sx) {
    const Real r = Sw / Sx;
    return 1.0 - 1.0 / (1.0 + r / (power(1.0 + r / (T / W - 1.0), 2.67) - 1.0));
}

Real compute_uniform_spread(Real K, Real Q, Real S, Real n, Real Sx) {
    return power((Q * n) / (K * power(Sx, 1.67) * power(S, 0.5)), Real(1.0) / 2.67);
}

Real compute_gutter_spread(const GutterFlow& flow) {
    try {
        return spread_or_fault(flow);
    } catch (Fault) {
        return 0.0;
    }
}

Real compute_ditch_depth(Real M, Real Q, Real S, Real n, Real b, Real z1, Real z2) {
    if (Q <= 0.0) {
        tell_check_discharge();
        return 0.0;
    }
    Bounds bounds(0.0, Q + 100.0);
    while (true) {
        const Real y = bounds.middle();
        const Real difference = Q - ditch_discharge(M, S, n, b, z1, z2, y);
        if (absolute(difference) < tolerance) {
            return y;
        }
        if (!bounds.close_in(difference, y)) {
            if (!bounds.upper_moved()) {
                throw Fault::endless_search;
            }
            return y;
        }
    }
}

Real compute_sump_depth(const SumpFlow& flow) {
    try {
        if (flow.Q > 0.0) {
            return march_to_sump_depth(flow);
        }
    } catch (Fault) {  // NOLINT(bugprone-empty-catch): told below like a discharge of 0
    }
    tell_check_discharge();
    return 0.0;
}

}  // namespace gullymark::engine
