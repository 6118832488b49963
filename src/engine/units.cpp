#include "engine/units.h"

#include <array>

#include "engine/unit_constants.h"

namespace gullymark::engine {
namespace {

struct ColumnNote {
    Unit unit;
    std::string_view meaning;
};

constexpr std::array<ColumnNote, column_count> column_notes = {{
#define INLET_COLUMN(name, unit, meaning) {Unit::unit, meaning},
#include "engine/inlet_columns.def"
}};

}  // namespace

std::string_view unit_text(Unit unit) {
    switch (unit) {
        case Unit::percent:
            return "%";
        case Unit::degrees:
            return "deg";
        case Unit::years:
            return "yr";
        case Unit::length:
            return by_units("ft", "m");
        case Unit::depth:
            return by_units("in", "mm");
        case Unit::slope:
            return by_units("ft/ft", "m/m");
        case Unit::discharge:
            return by_units("cfs", "cms");
        case Unit::velocity:
            return by_units("ft/sec", "m/sec");
        case Unit::area:
            return by_units("sf", "sm");
        case Unit::runoff_area:
            return by_units("Ac", "Hc");
        case Unit::intensity:
            return by_units("in/hr", "mm/hr");
        case Unit::text:
        case Unit::ratio:
        case Unit::other:
            break;
    }
    return "";
}

Unit column_unit(Column column) {
    return column_notes.at(static_cast<std::size_t>(column)).unit;
}

std::string_view column_meaning(Column column) {
    return column_notes.at(static_cast<std::size_t>(column)).meaning;
}

}  // namespace gullymark::engine
