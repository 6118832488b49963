#include "section/inlet_works.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "engine/words.h"
#include "platform/number_text.h"
#include "section/inputs.h"

namespace gullymark::section {
namespace {

using engine::Column;
namespace words = engine::words;

constexpr double usual_curb = 0.5;
constexpr double curb_width = 0.5;
constexpr double footing = 0.3;
constexpr double below_bed = 0.45;
constexpr double hood = 0.17;
constexpr double box = 1.5;
constexpr double bar_depth = 0.25;
constexpr double usual_slot = 0.15;
constexpr double lip = 0.03;
constexpr int most_bars = 80;

std::vector<Point> box_of(double left, double low, double right, double high) {
    return {{left, low}, {left, high}, {right, high}, {right, low}};
}

double throat_angle(const engine::InletRecord& record) {
    const auto read = platform::read_number(record.text(Column::THROATANGLE));
    const bool known = read.fault == platform::NumberFault::none && read.number >= 0 && read.number <= 90;
    return (known ? read.number : 90) * std::numbers::pi / 180;
}

/// An opening in section: from the edge of the ground to the lip of the hood. Its length is the height that the record has.
struct Throat {
    Point edge;
    Point lip;
};

/// A size above 0 that the kind of inlet has.
std::optional<Measure> own_measure(const engine::InletRecord& record, Column column) {
    const auto measure = measure_in(record, column);
    return is_input(column, record) && measure && measure->size > 0 ? measure : std::nullopt;
}

Throat throat_of(const engine::InletRecord& record, const Bed& bed) {
    const double bottom = bed.height(0);
    const auto opening = own_measure(record, Column::HEIGHTOFCURB);
    const double clear = std::max(curb_height(record) - usual(hood), usual(hood)) - bottom;
    const double h = opening ? opening->size : clear;
    const std::string& kind = record.text(Column::THROATYPE);
    if (opening && kind == words::inclined_throat) {
        const double angle = throat_angle(record);
        return {{-h * std::cos(angle), bottom}, {0, bottom + h * std::sin(angle)}};
    }
    if (opening && kind == words::vertical_throat) {
        return {{0, bottom}, {-h, bottom}};
    }
    return {{0, bottom}, {0, bottom + h}};
}

double pitch_of(const engine::InletRecord& record) {
    const std::string& type = record.text(Column::GRATETYPE);
    constexpr double narrow = 1.125 / 12;
    constexpr double wide = 1.875 / 12;
    return usual(type == "P-1-1/8" || type == "P-30" ? narrow : wide);
}

}  // namespace

double Bed::height(double x) const {
    const double normal = gutter.height(x);
    if (depression <= 0 || x >= depressed_width) {
        return normal;
    }
    const double edge = gutter.height(depressed_width);
    return -depression + (edge + depression) * x / depressed_width;
}

std::vector<Point> Bed::line(double end) const {
    std::vector<double> bends{0, end};
    for (const double bend : {gutter.W, depression > 0 ? depressed_width : 0}) {
        const bool within_the_depression = depression > 0 && bend < depressed_width;
        if (bend > 0 && bend < end && !within_the_depression) {
            bends.push_back(bend);
        }
    }
    std::ranges::sort(bends);
    bends.erase(std::unique(bends.begin(), bends.end()), bends.end());
    std::vector<Point> points;
    points.reserve(bends.size());
    for (const double x : bends) {
        points.push_back({x, height(x)});
    }
    return points;
}

double floor_below(const Bed& bed) {
    return bed.height(0) - usual(below_bed);
}

double curb_height(const engine::InletRecord& record) {
    const auto height = measure_in(record, Column::CURB_HEIGHT);
    return height ? height->size : usual(usual_curb);
}

double box_width(const engine::InletRecord& record) {
    const auto opening = own_measure(record, Column::HEIGHTOFCURB);
    return std::max(usual(box), opening ? 1.5 * opening->size : 0);
}

void add_curb(View& view, const engine::InletRecord& record, const Bed& bed) {
    add_shape(view, Part::concrete,
              box_of(-usual(curb_width), bed.height(0) - usual(footing), 0, curb_height(record)));
}

void add_opening(View& view, const engine::InletRecord& record, const Bed& bed) {
    const Throat throat = throat_of(record, bed);
    const double bottom = bed.height(0);
    const double back = -box_width(record);
    const bool upright = throat.lip.y > throat.edge.y;
    const double roof =
        upright ? throat.lip.y : std::max(curb_height(record) - usual(hood), bottom + usual(hood));
    const double top = std::max(curb_height(record), roof + usual(hood));
    add_shape(
        view, Part::hollow,
        {{back, floor_below(bed)}, {back, roof}, {0, roof}, throat.edge, {throat.edge.x, floor_below(bed)}});
    add_shape(view, Part::concrete, box_of(back, roof, 0, top));
    add_shape(view, Part::concrete, box_of(back - usual(hood), floor_below(bed), back, top));
    if (!upright) {
        add_shape(view, Part::concrete, box_of(back, bottom - usual(hood), throat.lip.x, roof));
    }
    if (const auto opening = own_measure(record, Column::HEIGHTOFCURB)) {
        if (upright) {
            view.dimensions.push_back({.run = Dimension::Run::upright,
                                       .from = {throat.lip.x, throat.edge.y},
                                       .to = throat.lip,
                                       .text = "h " + opening->text});
        } else {
            add_below(view, throat.lip, throat.edge, "h", opening->text);
        }
    }
}

void add_bars(View& view, const engine::InletRecord& record, double left, double right, const Bed& bed) {
    const double width = right - left;
    if (width <= 0) {
        return;
    }
    const int bars = std::clamp(static_cast<int>(std::lround(width / pitch_of(record))), 1, most_bars);
    const double pitch = width / bars;
    const double thickness = 0.3 * pitch;
    for (int i = 0; i <= bars; ++i) {
        const double x = std::min(left + i * pitch, right - thickness);
        add_shape(view, Part::metal,
                  {{x, bed.height(x) - usual(bar_depth)},
                   {x, bed.height(x)},
                   {x + thickness, bed.height(x + thickness)},
                   {x + thickness, bed.height(x + thickness) - usual(bar_depth)}});
    }
}

void add_grate(View& view, const engine::InletRecord& record, double left, const Bed& bed) {
    const auto width = measure_in(record, Column::GRATEWIDTH);
    if (!width || width->size <= 0) {
        return;
    }
    const double right = left + width->size;
    add_shape(view, Part::hollow,
              {{left, floor_below(bed)},
               {left, bed.height(left)},
               {right, bed.height(right)},
               {right, floor_below(bed)}});
    add_bars(view, record, left, right, bed);
    add_below(view, {left, bed.height(left)}, {right, bed.height(right)}, "Wg", width->text);
}

void add_slot(View& view, const engine::InletRecord& record, const Bed& bed) {
    const auto given = own_measure(record, Column::SLOTWIDTH);
    const double width = given ? given->size : usual(usual_slot);
    add_shape(
        view, Part::hollow,
        {{0, floor_below(bed)}, {0, bed.height(0)}, {width, bed.height(width)}, {width, floor_below(bed)}});
    for (const double x : {0.0, width}) {
        add_shape(view, Part::metal,
                  {{x, floor_below(bed)},
                   {x, bed.height(x)},
                   {x + usual(lip), bed.height(x + usual(lip))},
                   {x + usual(lip), floor_below(bed)}});
    }
    if (given) {
        add_below(view, {0, bed.height(0)}, {width, bed.height(width)}, "slot", given->text);
    }
}

}  // namespace gullymark::section
