#include "section/view.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace gullymark::section {
namespace {

/// `change` on every point of a view but those of its frame.
template <class Change>
void change_points(View& view, const Change& change) {
    for (Shape& shape : view.shapes) {
        std::ranges::for_each(shape.points, change);
    }
    for (Dimension& dimension : view.dimensions) {
        change(dimension.from);
        change(dimension.to);
    }
    for (Mark& mark : view.marks) {
        change(mark.at);
    }
    if (view.allowable) {
        change(*view.allowable);
    }
}

bool same_ends(const Dimension& one, const Point& from, const Point& to) {
    return one.run == Dimension::Run::below && one.from.x == from.x && one.to.x == to.x;
}

}  // namespace

bool is_line(Part part) {
    return part == Part::ground || part == Part::former_ground || part == Part::surface;
}

void add_below(View& view, Point from, Point to, std::string_view symbol, std::string_view value) {
    for (Dimension& other : view.dimensions) {
        if (same_ends(other, from, to)) {
            const auto last = other.text.rfind(", ");
            const auto symbols_end = other.text.find(' ', last == std::string::npos ? 0 : last + 2);
            other.text.insert(symbols_end, ", " + std::string(symbol));
            return;
        }
    }
    view.dimensions.push_back({.run = Dimension::Run::below,
                               .from = from,
                               .to = to,
                               .text = std::string(symbol) + ' ' + std::string(value)});
}

void add_shape(View& view, Part part, std::vector<Point> points) {
    if (points.size() > 1) {
        view.shapes.push_back({.part = part, .points = std::move(points)});
    }
}

void finish(View& view) {
    std::ranges::stable_sort(view.shapes, {}, &Shape::part);
    constexpr double most = std::numeric_limits<double>::max();
    view.low = {most, most};
    view.high = {-most, -most};
    change_points(view, [&view](const Point& point) {
        view.low = {std::min(view.low.x, point.x), std::min(view.low.y, point.y)};
        view.high = {std::max(view.high.x, point.x), std::max(view.high.y, point.y)};
    });
}

View mirrored(View view) {
    change_points(view, [](Point& point) { point.x = -point.x; });
    view.low.x = -std::exchange(view.high.x, -view.low.x);
    return view;
}

}  // namespace gullymark::section
