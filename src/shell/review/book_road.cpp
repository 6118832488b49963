#include "shell/review/book_road.h"

#include <algorithm>

#include <QPainter>

#include "shell/binding/view_layout.h"
#include "shell/review/road_colors.h"
#include "shell/review/road_layout.h"
#include "shell/review/road_legend.h"
#include "shell/review/road_painter.h"

namespace gullymark::shell {
namespace {

constexpr std::size_t inlets_of_a_side = 6;
constexpr std::size_t lanes_of_a_page = 3;

/// Paints a strip of the lanes from the first one on that has room.
void add_strip(PaperPages& pages, const review::RoadPlan& plan, const review::Stretch& strip,
               std::size_t first_lane) {
    const double unit = font_unit(pages.picture_font());
    const std::size_t lanes = std::min(lanes_of_a_page, plan.lanes.size() - first_lane);
    const double lane = RoadLayout::least_lane(unit);
    const double scrolled = lane * static_cast<double>(first_lane);
    const double height = RoadLayout::axis_height(unit) + lane * static_cast<double>(lanes);
    pages.add_picture(height, [&plan, strip, scrolled, unit](QPainter& painter, const QRectF& area) {
        const RoadLayout layout(
            plan, {.area = area, .from = strip.from, .to = strip.to, .scrolled = scrolled, .unit = unit});
        paint_road(painter, layout, road_colors_on_paper());
    });
}

/// Moves the end of the road so far that the inlet which stands there has room.
void widen(double& end, double other) {
    constexpr double share = 0.06;
    end += share * (end - other);
}

}  // namespace

void add_road(PaperPages& pages, const review::RoadPlan& plan) {
    auto strips = review::road_stretches(plan, inlets_of_a_side);
    widen(strips.front().from, strips.front().to);
    widen(strips.back().to, strips.back().from);
    pages.add_picture(road_legend_height(pages.picture_font(), pages.width()),
                      [](QPainter& painter, const QRectF& area) {
                          paint_road_legend(painter, area, road_colors_on_paper());
                      });
    for (const auto& strip : strips) {
        for (std::size_t lane = 0; lane < plan.lanes.size(); lane += lanes_of_a_page) {
            add_strip(pages, plan, strip, lane);
        }
    }
}

}  // namespace gullymark::shell
