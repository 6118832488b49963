#include "engine/hydraulics/sump_inlets.h"

#include "engine/words.h"

namespace gullymark::engine {

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

}  // namespace gullymark::engine
