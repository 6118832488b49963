#pragma once

#include <optional>
#include <string>

#include "engine/inlet_record.h"
#include "section/measures.h"
#include "section/view.h"

/// Sections across a road at an inlet and upstream of it.
namespace gullymark::section {

/// The spread of water and how it stands to the allowable one, judged on the texts of both.
struct Spread {
    std::optional<Measure> spread;     // what is drawn
    std::optional<Measure> allowable;  // none where the record has no number above 0
    bool beyond = false;               // the spread exceeds the allowable one
    std::string excess;                // by how much: "2.209 ft"
};

[[nodiscard]] Spread judge_spread(const engine::InletRecord& record, std::string_view spread);

/// The section at an inlet of a road. `spread` is the text of the spread there, empty without results.
[[nodiscard]] View view_at_inlet(const engine::InletRecord& record, std::string_view spread);

/// The section of the approach to an inlet, without anything of the inlet.
[[nodiscard]] View view_of_approach(const engine::InletRecord& record, std::string_view spread);

}  // namespace gullymark::section
