#pragma once

#include <string_view>

/// From the command SOLVE to the result columns of the open inlet.
namespace gullymark::engine {

/// What a box says when inputs keep a solver from its results.
inline constexpr const char* invalid_input = "No results computed.  Invalid input.";

/// True while the open inlet may be saved: a solve ran after its last change.
extern bool DataSolved;

/// The command SOLVE on the open inlet. A discharge of 0 or below and a text that is none show a box and change nothing
/// else; so does a fault that escapes a solver, which leaves the results empty. Otherwise the inlet is solved,
/// `DataSolved` becomes true whatever the solver did, and the answer is true: the results page is to be shown.
bool cmdsolve_Click();

/// Clears the results and runs the solver for the inlet's location and type; an unknown one runs none.
void solve_inlet();

/// Empties the 26 result columns.
void clear_results();

/// Writes each numeric result with its fixed decimals; an empty one stays empty.
void format_results();

}  // namespace gullymark::engine
