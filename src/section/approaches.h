#pragma once

#include <optional>
#include <string>

#include "engine/inlet_record.h"

/// The two approaches of an inlet in a sump.
namespace gullymark::section {

struct Approach {
    std::string flow;    // what comes from that side: discharge and carryover, with the unit
    std::string spread;  // its spread; empty where none is known
};

struct Approaches {
    Approach left;
    Approach right;
};

/// Both sides of a sump. The record has the spread of the larger flow. That of the smaller one is worked out as the
/// solver works out the other where `results_belong` to the inputs; otherwise it is unknown.
[[nodiscard]] Approaches approaches_of(const engine::InletRecord& record, bool results_belong);

/// The spread that a flow has in the gutter of the record, as the solvers of sumps find it; nothing where they would
/// find none. Shows no box.
[[nodiscard]] std::optional<double> gutter_spread(const engine::InletRecord& record, double flow);

}  // namespace gullymark::section
