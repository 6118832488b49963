#pragma once

#include "engine/inlet_record.h"
#include "section/measures.h"
#include "section/view.h"

/// What is built at an inlet, cut across: curb, opening, grate and slot at their sizes. Walls, hoods and the depth of bars
/// are as usual, since no field tells them.
namespace gullymark::section {

/// The ground at an inlet: the gutter with its local depression.
struct Bed {
    Gutter gutter;
    double depression = 0;  // a: how far the gutter line lies below the approach's at the curb; 0 without one
    double depressed_width = 0;

    [[nodiscard]] double height(double x) const;
    /// The bends of the ground from x = 0 up to `end`, both included.
    [[nodiscard]] std::vector<Point> line(double end) const;
};

/// The floor of what is drawn.
[[nodiscard]] double floor_below(const Bed& bed);

/// The height of the curb; as usual for a text that is no number.
[[nodiscard]] double curb_height(const engine::InletRecord& record);

/// The curb, closed.
void add_curb(View& view, const engine::InletRecord& record, const Bed& bed);

/// The curb with an opening of the height and the throat that the record has, and the box behind it.
void add_opening(View& view, const engine::InletRecord& record, const Bed& bed);

/// The grate from `left` on, as wide as the record says.
void add_grate(View& view, const engine::InletRecord& record, double left, const Bed& bed);

/// Bars from one x to the other at their pitch, in ground that is `bed`.
void add_bars(View& view, const engine::InletRecord& record, double left, double right, const Bed& bed);

/// The slot along the curb.
void add_slot(View& view, const engine::InletRecord& record, const Bed& bed);

/// How far the box behind an opening reaches.
[[nodiscard]] double box_width(const engine::InletRecord& record);

}  // namespace gullymark::section
