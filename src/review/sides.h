#pragma once

#include <span>
#include <string_view>

#include "engine/inlet_flow.h"
#include "engine/inlet_record.h"

/// The flow of an inlet by the sides that it comes from.
namespace gullymark::review {

/// One of the two sides from which an inlet takes flow, by its columns.
struct Side {
    std::string_view behind;  // " of the left side", behind what is told of it
    engine::Column override_text;
    engine::Column area;
    engine::Column coefficient;
    engine::Column intensity;
    engine::Column discharge;
    engine::Column preinlet;
    engine::Column carryover;
};

/// The sides that count: both in a sump, else the left one, which then has no name.
std::span<const Side> sides_of(const engine::InletRecord& record);

/// What comes to an inlet; a text that is no number counts as 0.
engine::FlowShares shares_of(const engine::InletRecord& record);

}  // namespace gullymark::review
