#pragma once

#include <string_view>

#include "catalogue/table.h"

/// The pick of a standard: what a row of a table writes into the open inlet.
namespace gullymark::catalogue {

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
