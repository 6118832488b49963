#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "faults/site.h"

/// What stands in a site's files, and whether the windows show it.
namespace gullymark::faults {

/// A row of a table by the names of its columns: a file may have got them in another order.
using TableRow = std::map<std::string, std::optional<std::string>>;

struct State {
    std::string content;           // all of the project and the report, to compare
    std::string columns;           // of both tables
    std::vector<TableRow> inlets;  // in the order of their numbers

    bool operator==(const State& other) const { return content == other.content; }
};

/// Looked up in copies: a journal beside the project stays where it is.
State state_of(const Site& site);

/// Empty when all that the windows show of the inlets stands so in one of these states, nothing shown left out.
std::string complaint_about_screen(const std::vector<State>& states);

/// What the program makes of the project, found by opening it: empty when it opens without a complaint, shows every
/// inlet of `state` as it is, and leaves a sound file with the columns of `last`: an upgrade is brought to its end.
std::string complaint_about_opening(const Site& site, const State& state, const State& last);

}  // namespace gullymark::faults
