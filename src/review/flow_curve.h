#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "catalogue/table.h"
#include "engine/inlet_record.h"

/// How the water at an inlet answers to its flow.
namespace gullymark::review {

struct FlowPoint {
    double flow = 0;               // cfs or cms
    std::optional<double> spread;  // the greatest that counts, ft or m
    std::optional<double> depth;   // at the curb or in the ditch; in a sump at the inlet; in or mm
    std::optional<double> share;   // of the flow that the inlet takes: QINT / TOTAL_DISCHARGE
};

struct FlowCurve {
    std::vector<FlowPoint> points;    // by growing flow, each of them finite
    std::optional<FlowPoint> inlet;   // with the flow that the inlet has
    std::optional<double> allowable;  // ft or m; nothing where the record has no number above 0
    bool has_spread = false;          // false for an inlet in a ditch
};

/// The inlet, or a standard of its table as a pick would write it, solved at flows up from 0: `count` of them up to twice
/// its own flow, and further, up to sixteen times, where the allowable spread is not reached before. In a sump all shares
/// grow in proportion. What the solver does not tell at a flow, or tells as a spread of 0, is missing there.
FlowCurve flow_curve(const engine::InletRecord& inlet, const std::string& units,
                     const catalogue::Row* standard, std::size_t count = 60);

}  // namespace gullymark::review
