#include "section/ditch.h"

#include <algorithm>

#include "section/inlet_works.h"
#include "section/measures.h"

namespace gullymark::section {
namespace {

using engine::Column;
using engine::Unit;
using Run = Dimension::Run;

constexpr double steepest_bank = 100;

std::optional<Measure> depth_in(const engine::InletRecord& record) {
    const auto depth = measure_in(record, in_sump(record) ? Column::DEPTHATINLET : Column::CURBDEPTH);
    return depth && depth->size > 0 ? depth : std::nullopt;
}

/// The flat ground in which the bars of the grate lie.
constexpr Bed flat_bottom{};

void add_grate_box(View& view, const engine::InletRecord& record, double half) {
    const double low = floor_below(flat_bottom);
    add_shape(view, Part::hollow, {{-half, low}, {-half, 0}, {half, 0}, {half, low}});
    add_bars(view, record, -half, half, flat_bottom);
    for (const double wall : {-half - usual(0.25), half}) {
        add_shape(view, Part::concrete,
                  {{wall, low},
                   {wall, -usual(0.02)},
                   {wall + usual(0.25), -usual(0.02)},
                   {wall + usual(0.25), low}});
    }
}

void add_depth(View& view, const Measure& depth, double x) {
    view.dimensions.push_back(
        {.run = Run::upright, .from = {x, 0}, .to = {x, depth.size}, .text = "depth " + depth.text});
}

/// The ditch as it is cut across, its bottom around x = 0.
struct Ditch {
    double half = 0;  // of the bottom
    double zl = 0;
    double zr = 0;

    [[nodiscard]] Point left(double y) const { return {-half - zl * y, y}; }
    [[nodiscard]] Point right(double y) const { return {half + zr * y, y}; }
};

Ditch ditch_in(const engine::InletRecord& record) {
    const auto ratio = [&record](Column column) { return std::min(size_in(record, column), steepest_bank); };
    return {.half = size_in(record, Column::GUTWIDTH) / 2,
            .zl = ratio(Column::LSCOPERATIO),
            .zr = ratio(Column::RSCOPERATIO)};
}

void add_bank(View& view, const engine::InletRecord& record, Column column, const char* symbol, Point at) {
    if (measure_in(record, column)) {
        view.marks.push_back(
            {.at = at, .text = symbol + (' ' + shown_number(record.text(column), Unit::ratio)) + " : 1"});
    }
}

void add_ditch_ground(View& view, const Ditch& ditch, double bank) {
    const double low = floor_below(flat_bottom);
    const double shoulder = usual(1.0);
    const Point left = ditch.left(bank);
    const Point right = ditch.right(bank);
    const std::vector<Point> line{{left.x - shoulder, bank}, left, ditch.left(0), ditch.right(0), right,
                                  {right.x + shoulder, bank}};
    std::vector<Point> earth = line;
    earth.push_back({right.x + shoulder, low});
    earth.push_back({left.x - shoulder, low});
    add_shape(view, Part::earth, earth);
    add_shape(view, Part::ground, line);
}

void add_ditch_water(View& view, const Ditch& ditch, const Measure& depth) {
    const Point left = ditch.left(depth.size);
    const Point right = ditch.right(depth.size);
    add_shape(view, Part::water, {left, ditch.left(0), ditch.right(0), right});
    add_shape(view, Part::surface, {left, right});
    view.dimensions.push_back({.run = Run::above,
                               .from = left,
                               .to = right,
                               .text = "top width " + shown_result(right.x - left.x, Unit::length)});
    add_depth(view, depth, left.x);
}

/// "left 3.000 cfs" over the approach that falls from `from` towards the grate.
void add_approach(View& view, const engine::InletRecord& record, const Approach& approach, const char* side,
                  Point at) {
    std::string text = side + (" approach " + approach.flow);
    if (measure_in(record, Column::LONGSLOPE)) {
        text += ", S " + shown_number(record.text(Column::LONGSLOPE), Unit::ratio);
    }
    view.marks.push_back({.at = at, .text = text});
}

}  // namespace

bool has_ditch_water(const engine::InletRecord& record) {
    return depth_in(record).has_value();
}

View view_across_ditch(const engine::InletRecord& record) {
    const Ditch ditch = ditch_in(record);
    const auto depth = depth_in(record);
    const double bank = std::max(usual(1.0), depth ? depth->size * 1.25 : 0);
    View view;
    add_ditch_ground(view, ditch, bank);
    if (const auto grate = measure_in(record, Column::GRATEWIDTH); grate && grate->size > 0) {
        add_grate_box(view, record, grate->size / 2);
        add_below(view, {-grate->size / 2, 0}, {grate->size / 2, 0}, "Wg", grate->text);
    }
    if (const auto bottom = measure_in(record, Column::GUTWIDTH); bottom && bottom->size > 0) {
        add_below(view, ditch.left(0), ditch.right(0), "B", bottom->text);
    }
    if (depth) {
        add_ditch_water(view, ditch, *depth);
    }
    add_bank(view, record, Column::LSCOPERATIO, "zl", ditch.left(bank * 0.8));
    add_bank(view, record, Column::RSCOPERATIO, "zr", ditch.right(bank * 0.8));
    finish(view);
    return view;
}

View view_along_ditch(const engine::InletRecord& record, const Approaches& approaches) {
    const auto length = measure_in(record, Column::INLETLENGTH);
    const auto depth = depth_in(record);
    const double half = length ? length->size / 2 : 0;
    const double slope = size_in(record, Column::LONGSLOPE);
    const double end = half * 3 + usual(3.0);
    const auto height = [&](double x) { return slope * (x - half); };
    const double low = floor_below(flat_bottom);
    const std::vector<Point> line{{-end, height(end)}, {-half, 0}, {half, 0}, {end, height(end)}};
    View view;
    std::vector<Point> earth = line;
    earth.push_back({end, low});
    earth.push_back({-end, low});
    add_shape(view, Part::earth, earth);
    add_shape(view, Part::ground, line);
    if (half > 0) {
        add_grate_box(view, record, half);
        add_below(view, {-half, 0}, {half, 0}, "L", length->text);
    }
    if (depth) {
        const double reach = slope > 0 ? std::min(half + depth->size / slope, end) : end;
        add_shape(view, Part::water,
                  {{-reach, depth->size},
                   {-reach, height(reach)},
                   {-half, 0},
                   {half, 0},
                   {reach, height(reach)},
                   {reach, depth->size}});
        add_shape(view, Part::surface, {{-reach, depth->size}, {reach, depth->size}});
        add_depth(view, *depth, -half);
    }
    const double middle = (half + end) / 2;
    add_approach(view, record, approaches.left, "left", {-middle, height(middle)});
    add_approach(view, record, approaches.right, "right", {middle, height(middle)});
    finish(view);
    return view;
}

}  // namespace gullymark::section
