#pragma once

#include <string>
#include <vector>

#include "engine/inlet_record.h"
#include "section/view.h"

/// The section of an inlet, drawn to scale from its record: logic without a toolkit.
///
/// On a continuous grade one view: the section at the inlet, with the water of the approach. In a sump three: the
/// section at the inlet with the water that stands there, and both approaches as seen from the inlet, the left one with its
/// curb on the right. A ditch on a grade is cut across, one in a sump along its bottom, with both approaches.
///
/// Lengths are in ft or m by the unit system in force. Whatever the texts of a record are, a section comes out, and all of
/// its points are finite and within the frames of its views.
namespace gullymark::section {

/// What is known of the water.
enum class Water : unsigned char {
    none,      // there are no results
    solved,    // the results belong to the inputs
    unsolved,  // the inputs changed since
};

/// What a record tells of its water: `unsolved` from the first change after it was loaded, solved or saved.
[[nodiscard]] Water water_of(const engine::InletRecord& record);

struct Section {
    Water water = Water::none;
    double exaggeration = 1;         // how much y is stretched against x, the same in all views
    std::vector<View> views;         // at the inlet, and in a sump of a road: left approach, right approach
    std::vector<std::string> notes;  // "vertical x 5", "not solved", ...
    std::string sentence;            // what the picture shows, for who cannot see it
};

/// The section of an inlet.
[[nodiscard]] Section draw_section(const engine::InletRecord& record, Water water);

}  // namespace gullymark::section
