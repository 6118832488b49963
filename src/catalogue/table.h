#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

#include "engine/inlet_record.h"

/// What a table of standard inlets is made of. All values are texts in feet and square feet, whatever the units of the
/// project; "-" is a value that a standard does not have. A standard has one row for each clogging.
namespace gullymark::catalogue {

inline constexpr std::size_t most_columns = 7;

/// The fields of a row, the name of the standard first; those beyond the columns of its table are empty.
using Row = std::array<std::string_view, most_columns>;

/// The row between two groups.
inline constexpr Row separator{};

/// True for a row without a name: it groups the rows and cannot be picked.
constexpr bool is_separator(const Row& row) {
    return row.front().empty();
}

struct TableColumn {
    std::string_view heading;
    std::string_view unit;                 // "Ft.", "Sq. Ft."; empty for a name or a per cent
    std::optional<engine::Column> target;  // what a pick writes; nothing for a column that is only read
};

struct Table {
    std::string_view name;
    std::string_view location;                // INLET_LOCATION and
    std::string_view type;                    // INLET_TYPE of the inlets that it serves
    std::string_view title;                   // of the window
    std::array<std::string_view, 2> heading;  // the lines above the rows; the second may be empty
    std::string_view select_command;          // name of the command "Select"
    std::span<const TableColumn> columns;
    std::span<const Row> rows;
    bool pads_names =
        false;  // a pick drops the blanks on both sides of a field, elsewhere on the right alone
    bool tells_curb = false;  // a pick sets CURBOPTION by the name of the standard
};

}  // namespace gullymark::catalogue
