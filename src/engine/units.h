#pragma once

#include <string_view>

#include "engine/inlet_record.h"

namespace gullymark::engine {

/// What a quantity is measured in. The unit itself follows the unit system.
enum class Unit : unsigned char {
    text,
    ratio,
    percent,
    degrees,
    years,
    length,       // ft, m
    depth,        // in, mm
    slope,        // ft/ft, m/m
    discharge,    // cfs, cms
    velocity,     // ft/sec, m/sec
    area,         // sf, sm
    runoff_area,  // Ac, Hc
    intensity,    // in/hr, mm/hr
    other,        // a coefficient with a unit of its own
};

/// The unit's caption for the unit system in force: "ft" or "m"; empty for a pure number or a text.
std::string_view unit_text(Unit unit);

/// What the number in a column is measured in.
Unit column_unit(Column column);

/// What a column means, in a few words for a reader.
std::string_view column_meaning(Column column);

}  // namespace gullymark::engine
