#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "engine/inlet_record.h"

/// The tables of standard inlets, one for each type and location that has standards, and the pick of a row.
/// All values are texts in feet and square feet, whatever the units of the project; "-" is a value that a standard
/// does not have. A standard has one row for each clogging.
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

/// The eight tables.
std::span<const Table> tables();

/// The table of an inlet by the exact texts of INLET_LOCATION and INLET_TYPE; null when it has none.
const Table* table_for(std::string_view location, std::string_view type);

/// The row as one text, its fields separated by tab characters; empty for a separator.
std::string row_text(const Table& table, const Row& row);

/// Writes a row into the open inlet: each field, trimmed, as text into the target of its column.
///
/// A text that is empty but for blanks, or that then begins with a tab character (a separator, or no row selected),
/// changes nothing. There are at most as many fields as the table has columns: the last takes all that is left.
/// A row with fewer fields writes those it has.
///
/// Where RAREA and EFFPERI are targets, a row tells what its clogging leaves of a grate, and the pick works back the
/// gross values, for a solver clogs them again. With C in GRATEPERCLOG and L in INLETLENGTH as just written:
///
///     GRATEAREA = RAREA / (1 - C / 100)                    sq. ft., three decimals
///     GRATEPERI = L + (EFFPERI - L) / (1 - C / 100)        ft., three decimals
///
/// A text that is no number, or a C of 100, leaves the gross column as it was.
void pick(const Table& table, std::string_view row_text);

}  // namespace gullymark::catalogue
