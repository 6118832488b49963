#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "review/finding.h"
#include "review/review_file.h"

/// The inlets of a project as a list: what each stores beside what it would store with everything brought up to date.
namespace gullymark::review {

enum class ListColumn : unsigned char {
    number,
    state,
    station,
    total,
    fresh_total,
    spread,
    fresh_spread,
    bypass,
    fresh_bypass,
    type,
    location,
};

inline constexpr std::array list_columns{
    ListColumn::number,       ListColumn::state,  ListColumn::station,      ListColumn::total,
    ListColumn::fresh_total,  ListColumn::spread, ListColumn::fresh_spread, ListColumn::bypass,
    ListColumn::fresh_bypass, ListColumn::type,   ListColumn::location,
};

struct ListHeading {
    std::string text;
    std::string unit;  // of the unit system in force; empty for a text
};

ListHeading heading_of(ListColumn column);

/// True for numbers, which stand right in their column.
bool is_number_column(ListColumn column);

/// What the inlet stores or would store; numbers stand as they are stored. The spread is the one at the opening, in a sump the
/// larger one of opening and gutter. The state is "up to date", "stale" or, where Solve gives no results, "not solved".
std::string list_cell(const Reviewed& reviewed, std::size_t inlet, ListColumn column);

/// True for a fresh number that differs from the one that is stored.
bool is_stale_cell(const Reviewed& reviewed, std::size_t inlet, ListColumn column);

/// True where something of the inlet would be stored otherwise.
bool is_stale(const Reviewed& reviewed, std::size_t inlet);

/// The inlets in the order of a column: numbers by their value and before texts, stations along the road, states with the worst
/// first. Those that the column does not tell apart stay in the order of the file.
std::vector<std::size_t> sort_inlets(const Reviewed& reviewed, ListColumn column, bool descending);

}  // namespace gullymark::review
