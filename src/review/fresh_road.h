#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "engine/inlet_record.h"
#include "review/progress.h"
#include "review/project.h"

/// What a project would be with every carryover brought up to date along the chain, from the highest inlet down.
namespace gullymark::review {

/// An inlet that would be other than it is stored.
struct FreshInlet {
    engine::InletRecord record;
    /// False where Solve gives no results, and so nothing can be saved: the results are those that are stored.
    bool solved = true;
    std::vector<engine::Column> differing;  // the columns whose texts differ, in the table's order
};

/// What keeps a part of the road from being brought up to date.
struct Obstacle {
    std::size_t index = 0;  // of the inlet
    std::string text;       // one plain sentence
};

struct FreshRoad {
    std::map<std::size_t, FreshInlet> inlets;  // by their indices; all others are as they should be
    /// The inlets to open, solve and save, in this order, so that all is fresh: no shorter list does. In each the designer
    /// goes through the previous inlets and leaves a flow field, solves, and saves.
    std::vector<std::size_t> to_do;
    /// Loops, previous inlets that are missing or have the number of others, inlets that Solve gives no results for. What
    /// can be done in spite of them is done: a carryover that comes from nowhere, or from within a loop, stays as stored.
    std::vector<Obstacle> obstacles;

    /// The inlet as it would be.
    [[nodiscard]] const engine::InletRecord& inlet(const Project& project, std::size_t index) const;
};

/// Solves copies: nothing that is open changes, and no box is shown. An inlet whose carryover and total are right, and whose
/// stored results follow from its stored inputs, stays as it is to the letter.
FreshRoad make_fresh_road(const Project& project);

/// The same for who can be asked to end it; nothing when that was asked.
std::optional<FreshRoad> make_fresh_road(const Project& project, const Progress& progress);

}  // namespace gullymark::review
