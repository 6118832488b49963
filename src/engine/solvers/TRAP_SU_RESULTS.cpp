#include "engine/solvers/TRAP_SU_RESULTS.h"

#include <algorithm>
#include <array>
#include <limits>

#include "engine/constants.h"
#include "engine/headings.h"
#include "engine/hydraulics/sump_march.h"
#include "engine/results.h"
#include "engine/step.h"
#include "engine/unit_constants.h"
#include "engine/words.h"
#include "platform/outside.h"

namespace gullymark::engine::TRAP_SU_RESULTS {
namespace {

using enum Column;
using formula::decides;
using formula::Taken;

struct Sheet {
    Quantity Q{"Q", Unit::discharge, "flow that the inlet must take"};
    Quantity C{"C", Unit::percent, "clogged share of the grate"};
    Quantity P{"P", Unit::length, "perimeter of the grate"};
    Quantity A{"A", Unit::area, "opening area of the grate"};
    Quantity Wg{"Wg", Unit::length, "width of the grate; no formula uses it"};
    Quantity weir_depth{"dw", Unit::length, "depth of weir flow"};
    Quantity orifice_depth{"do", Unit::length, "depth of orifice flow"};
    Quantity d{"d", Unit::length, "depth over the inlet"};
};

Sheet sheet;

constexpr const char* y_weld = "Y-Weld";
constexpr const char* y_di_grate = "Y-DI Gr";

/// One piece of a rating: d = slope Q + constant for all discharges below `below`.
struct Piece {
    Real below;
    Real slope;
    Real constant;
};

constexpr Real no_end = std::numeric_limits<double>::max();

// The rating of the clean grate starts with a logarithm, below a discharge of 1.
constexpr auto clean_rating = std::to_array<Piece>({
    {6.0, 0.0493, 0.2129},
    {25.0, 0.0303, 0.3429},
    {no_end, 0.0943, -1.2857},
});

constexpr auto half_clogged_rating = std::to_array<Piece>({
    {0.21, 0.1 / 0.21, 0.0},
    {1.2, 0.166, 0.0666},
    {10.0, 0.0594, 0.2069},
    {15.0, 0.14, -0.6},
    {no_end, 0.2333, -2.0},
});

template <std::size_t Count>
Taken depth_on(const std::array<Piece, Count>& rating, const Quantity& Q) {
    const auto* const piece = std::find_if(rating.begin(), rating.end() - 1,
                                           [&Q](const Piece& each) { return decides(Q < each.below); });
    return Taken(piece->slope * Q + piece->constant);
}

/// The rated depth; 0 for any clogging but 0 and 50 percent.
Taken rated_depth(const Quantity& C, const Quantity& Q) {
    if (decides(C == rated_clogging[0])) {
        return decides(Q < 1.0) ? Taken(0.255 + 0.0741 * natural_logarithm(Q)) : depth_on(clean_rating, Q);
    }
    return decides(C == rated_clogging[1]) ? depth_on(half_clogged_rating, Q) : Taken(formula::Named(0.0));
}

bool is_rated() {
    return strict_holds(3, [] { return says(INLET_SUBTYPE, y_weld) || says(INLET_SUBTYPE, y_di_grate); });
}

void use_rating() {
    auto& s = sheet;
    under(heading::rating);
    strict_step(4, s.d, [&s] { return rated_depth(s.C, s.Q); });
    strict_step(5, DEPTHATINLET, [&s] { return constants::depthFactor() * s.d; });
}

void use_dimensions() {
    auto& s = sheet;
    under(heading::inputs);
    strict_step(6, s.P, [] { return number_in(GRATEPERI); });
    strict_step(7, s.A, [] { return number_in(GRATEAREA); });
    strict_step(8, s.Wg, [] { return number_in(GRATEWIDTH); });
    under(heading::depth);
    strict_step(9, s.weir_depth, [&s] { return power(s.Q / (constants::Cw() * s.P), 0.6667); });
    strict_step(10, s.orifice_depth,
                [&s] { return square(s.Q / (s.A * orifice_coefficient)) / (2.0 * constants::g()); });
    if (strict_holds(11, [&s] { return s.weir_depth > s.orifice_depth; })) {
        strict_step(12, s.d, [&s] { return s.weir_depth; });
        strict_step(13, INLETPERF, [] { return words::weir_flow; });
    } else {
        strict_step(14, s.d, [&s] { return s.orifice_depth; });
        strict_step(15, INLETPERF, [] { return words::orifice_flow; });
    }
    under(heading::interception_in_sump);
    strict_step(16, DEPTHATINLET, [&s] { return constants::depthFactor() * s.d; });
    strict_step(17, RAREA, [&s] { return s.A; });
    strict_step(18, RPERI, [&s] { return s.P; });
    strict_step(19, QINT, [&s] { return s.Q; });
}

}  // namespace

bool has_rating(std::string_view standard) {
    return standard == y_weld || standard == y_di_grate;
}

void compute_results() {
    set_gravity();
    set_depthFactor();
    unit_constants.weirCoefficient = by_units(3.0, 1.66);
    sheet = {};
    try {
        under(heading::flow);
        strict_step(1, sheet.Q, [] { return number_in(TOTAL_DISCHARGE); });
        strict_step(2, sheet.C, [] { return number_in(GRATEPERCLOG); });
        if (is_rated()) {
            use_rating();
        } else {
            use_dimensions();
        }
        format_results();
    } catch (Fault) {
        platform::tell(invalid_input, platform::BoxKind::warning);
    }
}

}  // namespace gullymark::engine::TRAP_SU_RESULTS
