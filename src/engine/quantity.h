#pragma once

#include <string_view>

#include "engine/real.h"
#include "engine/units.h"

namespace gullymark::engine {

/// A named number of a calculation sheet. It starts at 0.
struct Quantity {
    std::string_view symbol;
    Unit unit = Unit::ratio;
    std::string_view meaning;
    Real value = 0.0;

    operator Real() const {
        return value;
    }  // NOLINT(google-explicit-constructor): a symbol stands for its value
};

}  // namespace gullymark::engine
