#pragma once

#include "calculation/document.h"
#include "engine/inlet_record.h"
#include "section/section.h"

namespace gullymark::shell {

/// What is known of an inlet's water once the inlet has been worked out anew: it belongs to the inputs where the document warns of
/// nothing, whatever was typed since.
inline section::Water water_of(const engine::InletRecord& inlet, const calculation::Document& worked_out) {
    if (section::water_of(inlet) == section::Water::none) {
        return section::Water::none;
    }
    return worked_out.warnings.empty() ? section::Water::solved : section::Water::unsolved;
}

}  // namespace gullymark::shell
