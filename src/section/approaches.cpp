#include "section/approaches.h"

#include <algorithm>
#include <array>

#include "engine/hydraulics/Common_Libraries.h"
#include "engine/unit_constants.h"
#include "platform/number_text.h"
#include "section/measures.h"

namespace gullymark::section {
namespace {

using engine::Column;
using engine::Unit;

std::optional<double> number_of(const engine::InletRecord& record, Column column) {
    const auto read = platform::read_number(record.text(column));
    return read.fault == platform::NumberFault::none ? std::optional(read.number) : std::nullopt;
}

/// A sum that has no number stays 0, as in the solvers.
double flow_of(const engine::InletRecord& record, Column discharge, Column carryover) {
    const auto one = number_of(record, discharge);
    const auto other = number_of(record, carryover);
    return one && other ? *one + *other : 0;
}

std::string shown_spread(const std::optional<double>& spread) {
    return spread ? platform::format_number(*spread, engine::by_units("#0.000", "#0.0000")) : std::string();
}

}  // namespace

std::optional<double> gutter_spread(const engine::InletRecord& record, double flow) {
    constexpr std::array columns{Column::LONGSLOPE, Column::MANNINGS,  Column::GUTWIDTH,
                                 Column::PAVXSLOPE, Column::GUTXSLOPE, Column::ALLOWABLE_SPREAD};
    std::array<double, columns.size()> numbers{};
    for (std::size_t i = 0; i < columns.size(); ++i) {
        numbers.at(i) = number_of(record, columns.at(i)).value_or(0);
    }
    auto [S, n, W, Sx, Sw, limit] = numbers;
    if (inlet_of(record) == Inlet::combination) {  // its solver widens the gutter to the grate first
        W = std::max(W, number_of(record, Column::GRATEWIDTH).value_or(0));
    }
    if (!(flow > 0) || W < 0 || Sw < 0) {
        return std::nullopt;
    }
    try {
        engine::set_gutterFlowConstant();
        return engine::compute_gutter_spread({.K = engine::unit_constants.gutterFlowConstant,
                                              .Q = flow,
                                              .S = S,
                                              .n = n,
                                              .W = W,
                                              .Sx = Sx,
                                              .Sw = Sw,
                                              .Wa = 0.0,
                                              .spread_limit = limit})
            .number();
    } catch (engine::Fault) {
        return std::nullopt;
    }
}

Approaches approaches_of(const engine::InletRecord& record, bool results_belong) {
    const double left = flow_of(record, Column::DISCHARGE1, Column::CARRYOVER1);
    const double right = flow_of(record, Column::DISCHARGE2, Column::CARRYOVER2);
    const auto shown_flow = [](double flow) {
        return shown_number(platform::format_number(flow, "0.000"), Unit::discharge);
    };
    Approaches both{.left = {.flow = shown_flow(left), .spread = {}},
                    .right = {.flow = shown_flow(right), .spread = {}}};
    Approach& larger = left < right ? both.right : both.left;
    Approach& smaller = left < right ? both.left : both.right;
    larger.spread = record.text(Column::GUTTERSPREAD);
    if (results_belong && !larger.spread.empty()) {
        smaller.spread = shown_spread(gutter_spread(record, std::min(left, right)));
    }
    return both;
}

}  // namespace gullymark::section
