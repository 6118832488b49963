#pragma once

#include <vector>

#include "engine/inlet_record.h"

/// What all solvers do with the 26 result columns of the open inlet: emptied before a solve, formatted at its end.
namespace gullymark::engine {

/// What a box says when inputs keep a solver from its results.
inline constexpr const char* invalid_input = "No results computed.  Invalid input.";

/// The result columns, in the order in which they are formatted.
std::vector<Column> all_result_columns();

/// Empties the result columns.
void clear_results();

/// Writes each numeric result with its fixed decimals: four for slopes and the efficiencies of frontal and side flow,
/// those of `unit_constants.numberFormat` for all others. An empty one stays empty, a text that is no number stays as
/// it is, and so does INLETPERF.
void format_results();

}  // namespace gullymark::engine
