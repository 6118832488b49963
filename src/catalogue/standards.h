#pragma once

#include <span>
#include <string>
#include <string_view>

#include "catalogue/table.h"

/// The tables of standard inlets, one for each type and location that has standards.
namespace gullymark::catalogue {

/// The eight tables.
std::span<const Table> tables();

/// The table of an inlet by the exact texts of INLET_LOCATION and INLET_TYPE; null when it has none.
const Table* table_for(std::string_view location, std::string_view type);

/// The row as one text, its fields separated by tab characters; empty for a separator.
std::string row_text(const Table& table, const Row& row);

}  // namespace gullymark::catalogue
