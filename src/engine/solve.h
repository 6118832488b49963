#pragma once

#include <string_view>

/// From the command SOLVE to the solver of the open inlet.
namespace gullymark::engine {

/// True while the open inlet may be saved: a solve ran after its last change.
extern bool DataSolved;

/// What the command SOLVE does to the open inlet. A discharge of 0 or below and a text that is none show a box and
/// change nothing else; so does a fault that escapes a solver, which leaves the results empty. Otherwise the inlet is
/// solved, `DataSolved` becomes true whatever the solver did, and the answer is true: the results page is to be shown.
bool check_and_solve();

/// The calculation sheet for an inlet of that location and type, by its section in doc/sources.md ("cisi-cg"); empty where
/// there is none.
std::string_view sheet_of(std::string_view location, std::string_view type);

/// Clears the results and runs the solver for the inlet's location and type; an unknown one runs none.
void solve_inlet();

}  // namespace gullymark::engine
