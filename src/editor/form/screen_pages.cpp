#include "editor/form/screen_pages.h"

#include <array>

#include "editor/form/sides.h"
#include "engine/words.h"

namespace gullymark::editor {
namespace {

using enum FieldId;
using namespace engine::words;

struct Captions {
    std::string_view type;
    std::string_view location;
    std::string_view longitudinal_slope;
    std::string_view width;
    std::string_view cross_slope;
    std::string_view length;
};

constexpr Captions usual_captions = {
    {}, {}, "GUTTER LONGITUDINAL SLOPE", "GUTTER WIDTH", "GUTTER CROSS SLOPE", "INLET LENGTH"};

// clang-format off
// Only the kinds whose captions differ from the usual ones. A combination inlet in a sump has those.
constexpr auto other_captions = std::to_array<Captions>({
    {grate_inlet,       continuous_grade, "GUTTER LONGITUDINAL SLOPE", "GUTTER WIDTH",          "GUTTER CROSS SLOPE", "GRATE LENGTH"},
    {grate_inlet,       sump,             "GUTTER LONGITUDINAL SLOPE", "GUTTER WIDTH",          "GUTTER CROSS SLOPE", "GRATE LENGTH"},
    {combination_inlet, continuous_grade, "GUTTER LONGITUDINAL SLOPE", "GUTTER WIDTH",          "GUTTER CROSS SLOPE", "GRATE LENGTH"},
    {ditch_inlet,       continuous_grade, "DITCH LONGITUDINAL SLOPE",  "BOTTOM WIDTH OF DITCH", "DITCH CROSS SLOPE",  "GRATE LENGTH"},
    {ditch_inlet,       sump,             "GUTTER LONGITUDINAL SLOPE", "GUTTER WIDTH",          "GUTTER CROSS SLOPE", "GRATE LENGTH"},
});
// clang-format on

const Captions& captions_for(std::string_view type, std::string_view location) {
    for (const auto& captions : other_captions) {
        if (captions.type == type && captions.location == location) {
            return captions;
        }
    }
    return usual_captions;
}

void show_override(InletScreen& screen, const Side& side) {
    const bool typed = screen.text(side.override_text) == "YES";
    screen[side.override_box].checked = typed;
    for (const FieldId id : {side.area, side.coefficient, side.intensity}) {
        typed ? disable(screen[id]) : enable(screen[id]);
    }
    typed ? enable(screen[side.discharge]) : disable(screen[side.discharge]);
}

}  // namespace

void show_discharge_frames(InletScreen& screen) {
    const bool two_sides = screen.text(inlet_location) == sump;
    screen[discharge2_frame].visible = two_sides;
    screen[discharge1_frame].caption = two_sides ? "LEFT" : "";
    if (two_sides) {
        screen[discharge2_frame].caption = "RIGHT";
    }
}

void show_overrides(InletScreen& screen) {
    show_override(screen, left_side);
    show_override(screen, right_side);
}

void show_inlet_captions(InletScreen& screen) {
    const auto& captions = captions_for(screen.text(inlet_type), screen.text(inlet_location));
    screen[lbl_GLS].caption = captions.longitudinal_slope;
    screen[lbl_GUW].caption = captions.width;
    screen[lbl_GCS].caption = captions.cross_slope;
    screen[lbl_IL].caption = captions.length;
}

void show_result_captions(InletScreen& screen) {
    const bool ditch_on_grade =
        screen.text(inlet_location) == continuous_grade && screen.text(inlet_type) == ditch_inlet;
    screen[rlbldepth].caption = ditch_on_grade ? "DEPTH OF WATER" : "DEPTH AT CURB";
    screen[rlblflowratio].caption = ditch_on_grade ? "DITCH FLOW RATIO" : "GUTTER FLOW RATIO";
    screen[Results_Frame].enabled = false;
}

}  // namespace gullymark::editor
