#pragma once

#include "engine/inlet_record.h"
#include "section/approaches.h"
#include "section/view.h"

/// Sections of a ditch with a grate in its bottom.
namespace gullymark::section {

/// Across a ditch on a continuous grade, seen down the flow: bottom, both banks, grate and the depth of the water.
[[nodiscard]] View view_across_ditch(const engine::InletRecord& record);

/// Along a ditch in a sump, where no field tells bottom and banks: the grate with its length between both approaches.
[[nodiscard]] View view_along_ditch(const engine::InletRecord& record, const Approaches& approaches);

/// The depth over a grate in a ditch as the record has it, none where it is no number above 0.
[[nodiscard]] bool has_ditch_water(const engine::InletRecord& record);

}  // namespace gullymark::section
