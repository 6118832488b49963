#include "section/gutter.h"

#include <algorithm>
#include <array>

#include "engine/unit_constants.h"
#include "platform/number_text.h"
#include "section/inlet_works.h"
#include "section/inputs.h"

namespace gullymark::section {
namespace {

using Run = Dimension::Run;
using engine::Column;
using engine::Unit;
using Run = Dimension::Run;

std::optional<Measure> length_of(std::string_view text) {
    engine::InletRecord one;
    one.load(Column::OPENSPREAD, std::string(text));
    return measure_in(one, Column::OPENSPREAD);
}

/// How many digits a text has behind its point.
std::size_t decimals_of(std::string_view text) {
    constexpr std::size_t most = 12;
    const auto point = text.find('.');
    if (point == std::string_view::npos) {
        return 0;
    }
    const auto digits = text.substr(point + 1);
    return std::min({digits.size(), digits.find_first_not_of("0123456789"), most});
}

Bed bed_at_inlet(const engine::InletRecord& record) {
    Bed bed{.gutter = gutter_in(record)};
    const auto inlet_slope = measure_in(record, Column::INLETXSLOPE);
    const double Wa = size_in(record, Column::LOCDEPWIDTH);
    const double width = Wa > 0 || !in_sump(record) ? Wa : bed.gutter.W;
    if (inlet_slope && inlet_slope->size > bed.gutter.Sw && width > 0) {
        bed.depression = (inlet_slope->size - bed.gutter.Sw) * bed.gutter.W;
        bed.depressed_width = width;
    }
    return bed;
}

double left_end(const engine::InletRecord& record, bool at_inlet) {
    const auto inlet = inlet_of(record);
    const bool has_box = at_inlet && (inlet == Inlet::curb || inlet == Inlet::combination);
    return has_box ? -box_width(record) - usual(0.5) : -usual(1.0);
}

/// The size of a column that the kind of inlet has, else 0.
double own_size(const engine::InletRecord& record, Column column) {
    return is_input(column, record) ? size_in(record, column) : 0;
}

double right_end(const engine::InletRecord& record, const Bed& bed, const Spread& water) {
    const auto size = [](const std::optional<Measure>& measure) { return measure ? measure->size : 0; };
    const double farthest =
        std::max({usual(2), size(water.spread), size(water.allowable), bed.gutter.W, bed.depressed_width,
                  own_size(record, Column::GRATEWIDTH), own_size(record, Column::SLOTWIDTH)});
    return farthest * 1.1 + usual(0.3);
}

void add_ground(View& view, const engine::InletRecord& record, const Bed& bed, double left, double right) {
    const auto line = bed.line(right);
    const double low = floor_below(bed);
    std::vector<Point> earth{{left, low}, {left, curb_height(record)}, {0, curb_height(record)}};
    earth.insert(earth.end(), line.begin(), line.end());
    earth.push_back({right, low});
    add_shape(view, Part::earth, earth);
    if (bed.gutter.W > 0) {
        auto slab = bed.line(bed.gutter.W);
        const double thickness = usual(0.2);
        for (auto point = slab.size(); point-- > 0;) {
            slab.push_back({slab[point].x, slab[point].y - thickness});
        }
        add_shape(view, Part::slab, slab);
    }
    add_shape(view, Part::ground, line);
    if (bed.depression > 0) {
        const Bed normal{.gutter = bed.gutter};
        add_shape(view, Part::former_ground, normal.line(bed.depressed_width));
    }
}

/// The water over the bed from one x to another; `spread` is where it ends.
std::vector<Point> water_between(const Bed& bed, double from, double to, double spread) {
    const double level = bed.gutter.height(spread);
    std::vector<Point> points{{to, level}, {from, level}};
    if (spread < bed.depressed_width) {  // it runs down into the depression
        const auto bottom = [&](double x) { return bed.height(0) + (level - bed.height(0)) * x / spread; };
        points.push_back({from, bottom(from)});
        points.push_back({to, bottom(to)});
        return points;
    }
    points.push_back({from, bed.height(from)});
    for (const Point& point : bed.line(to)) {
        if (point.x > from) {
            points.push_back(point);
        }
    }
    return points;
}

void add_spread(View& view, const Spread& water, const Bed& bed) {
    const Gutter& gutter = bed.gutter;
    if (water.allowable) {
        const double end = water.allowable->size;
        view.allowable = Point{end, gutter.height(end)};
        view.dimensions.push_back({.run = Run::above,
                                   .from = {0, gutter.height(0)},
                                   .to = *view.allowable,
                                   .text = "allowable " + water.allowable->text});
    }
    if (!water.spread || water.spread->size <= 0) {
        return;
    }
    const double T = water.spread->size;
    const Point edge{T, gutter.height(T)};
    const double within = water.beyond ? water.allowable->size : T;
    add_shape(view, Part::water, water_between(bed, 0, within, T));
    if (water.beyond) {
        add_shape(view, Part::beyond, water_between(bed, within, T, T));
        view.dimensions.push_back({.run = Run::above,
                                   .from = {within, edge.y},
                                   .to = edge,
                                   .text = water.excess + " beyond",
                                   .beyond = true});
    }
    add_shape(view, Part::surface, {{0, edge.y}, edge});
    view.dimensions.push_back(
        {.run = Run::above, .from = {0, edge.y}, .to = edge, .text = "spread " + water.spread->text});
}

void add_slopes(View& view, const engine::InletRecord& record, const Bed& bed, double right) {
    const auto mark = [&](Column column, const char* symbol, double x) {
        if (measure_in(record, column)) {
            view.marks.push_back({.at = {x, bed.height(x)},
                                  .text = symbol + (' ' + shown_number(record.text(column), Unit::ratio))});
        }
    };
    const double W = bed.gutter.W;
    if (bed.depression > 0) {
        mark(Column::INLETXSLOPE, "S'w", bed.depressed_width * 0.4);
    }
    if (W > 0) {
        const Bed normal{.gutter = bed.gutter};
        if (measure_in(record, Column::GUTXSLOPE)) {
            view.marks.push_back({.at = {W * 0.7, normal.height(W * 0.7)},
                                  .text = "Sw " + shown_number(record.text(Column::GUTXSLOPE), Unit::ratio)});
        }
    }
    mark(Column::PAVXSLOPE, "Sx", (std::max(W, bed.depressed_width) + right) / 2);
}

void add_gutter_widths(View& view, const engine::InletRecord& record, const Bed& bed) {
    const Point curb{0, bed.height(0)};
    if (const auto W = measure_in(record, Column::GUTWIDTH); W && W->size > 0) {
        add_below(view, curb, {W->size, bed.height(W->size)}, "W", W->text);
    }
    if (const auto Wa = measure_in(record, Column::LOCDEPWIDTH); Wa && bed.depression > 0 && Wa->size > 0) {
        add_below(view, curb, {Wa->size, bed.height(Wa->size)}, "Wa", Wa->text);
    }
}

void add_heights(View& view, const engine::InletRecord& record, const Bed& bed, const Spread& water) {
    if (const auto curb = measure_in(record, Column::CURB_HEIGHT); curb && curb->size > 0) {
        view.dimensions.push_back(
            {.run = Run::upright, .from = {0, 0}, .to = {0, curb->size}, .text = "curb " + curb->text});
    }
    if (bed.depression > 0) {
        const double shown = bed.depression * static_cast<double>(engine::unit_constants.depthFactor);
        view.dimensions.push_back(
            {.run = Run::upright,
             .from = {0, -bed.depression},
             .to = {0, 0},
             .text = "a " + shown_number(platform::format_number(shown, "0.00"), Unit::depth)});
    }
    const Column column = in_sump(record) ? Column::DEPTHATINLET : Column::CURBDEPTH;
    const auto depth = measure_in(record, column);
    if (depth && water.spread && water.spread->size > 0) {
        view.dimensions.push_back({.run = Run::upright,
                                   .from = {0, in_sump(record) ? bed.height(0) : 0},
                                   .to = {0, bed.gutter.height(water.spread->size)},
                                   .text = "depth " + depth->text});
    }
}

void add_inlet(View& view, const engine::InletRecord& record, const Bed& bed) {
    const Inlet inlet = inlet_of(record);
    if (inlet == Inlet::curb || inlet == Inlet::combination) {
        add_opening(view, record, bed);
    } else {
        add_curb(view, record, bed);
    }
    if (inlet == Inlet::grate || inlet == Inlet::combination) {
        add_grate(view, record, 0, bed);
    }
    if (inlet == Inlet::slotted) {
        add_slot(view, record, bed);
    }
}

}  // namespace

Spread judge_spread(const engine::InletRecord& record, std::string_view spread) {
    Spread water{.spread = length_of(spread), .allowable = measure_in(record, Column::ALLOWABLE_SPREAD)};
    if (water.allowable && water.allowable->size <= 0) {
        water.allowable.reset();
    }
    if (!water.spread || !water.allowable) {
        return water;
    }
    water.beyond = water.spread->size > water.allowable->size;
    const std::string zeros(std::max(decimals_of(spread), decimals_of(record.text(Column::ALLOWABLE_SPREAD))),
                            '0');
    water.excess = shown_number(
        platform::format_number(water.spread->size - water.allowable->size, "0." + zeros), Unit::length);
    return water;
}

View view_at_inlet(const engine::InletRecord& record, std::string_view spread) {
    const Bed bed = bed_at_inlet(record);
    const Spread water = judge_spread(record, spread);
    const double right = right_end(record, bed, water);
    View view;
    add_ground(view, record, bed, left_end(record, true), right);
    add_inlet(view, record, bed);
    add_gutter_widths(view, record, bed);
    add_heights(view, record, bed, water);
    add_spread(view, water, bed);
    add_slopes(view, record, bed, right);
    finish(view);
    return view;
}

View view_of_approach(const engine::InletRecord& record, std::string_view spread) {
    const Bed bed{.gutter = gutter_in(record)};
    const Spread water = judge_spread(record, spread);
    View view;
    add_ground(view, record, bed, left_end(record, false), right_end(record, bed, water));
    add_curb(view, record, bed);
    add_spread(view, water, bed);
    finish(view);
    return view;
}

}  // namespace gullymark::section
