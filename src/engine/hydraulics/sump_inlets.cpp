#include "engine/hydraulics/sump_inlets.h"

#include "engine/words.h"
#include "platform/number_text.h"

namespace gullymark::engine {
namespace {

constexpr double pi = 3.14159265358979;

}  // namespace

void read_sump_flows(int first, SumpFlows& flows) {
    using enum Column;
    auto& s = flows;
    step(first, s.Q, [] { return number_in(TOTAL_DISCHARGE); });
    step(first + 1, s.Ql, [] { return number_in(CARRYOVER1) + number_in(DISCHARGE1); });
    step(first + 2, s.Qr, [] { return number_in(CARRYOVER2) + number_in(DISCHARGE2); });
    if (holds(first + 3, [&s] { return s.Ql >= s.Qr; })) {
        step(first + 4, s.Qg, [&s] { return s.Ql; });
    } else {
        step(first + 5, s.Qg, [&s] { return s.Qr; });
    }
}

Throat throat_named(std::string_view text) {
    if (text == words::horizontal_throat) {
        return Throat::horizontal;
    }
    if (text == words::inclined_throat) {
        return Throat::inclined;
    }
    return text == words::vertical_throat ? Throat::vertical : Throat::none;
}

Real in_radians(Real degrees) {
    return degrees * pi / 180.0;
}

std::string clogged_perimeter(Real P, Real L, Real C) {
    const Real perimeter = L + (P - L) * (1.0 - C / 100.0);
    return platform::format_number(perimeter.number(), "0.000");
}

}  // namespace gullymark::engine
