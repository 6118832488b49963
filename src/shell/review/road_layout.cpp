#include "shell/review/road_layout.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace gullymark::shell {

using review::Across;

RoadLayout::RoadLayout(const review::RoadPlan& plan, const RoadView& view)
    : plan_(plan),
      view_(view),
      pixels_for_length_(view.area.width() / (view.to - view.from)),
      lane_height_(
          std::max(least_lane(view.unit),
                   lanes().height() / static_cast<double>(std::max<std::size_t>(plan.lanes.size(), 1)))) {
    // At most two lanes share the height: a road of its own does not become a river.
    lane_height_ = std::min(lane_height_, std::max(least_lane(view.unit), 320 * view.unit));
    const double beside = 20 * view.unit;
    std::array<std::size_t, 3> most{};
    std::vector<std::array<std::size_t, 3>> counts(plan.lanes.size());
    for (const std::size_t index : plan.along) {
        const auto& inlet = plan.inlets[index];
        const double x = x_of(inlet.at);
        if (x >= view.area.left() - beside && x <= view.area.right() + beside) {
            in_view_.push_back(index);
            auto& count = counts[inlet.lane].at(static_cast<std::size_t>(inlet.across));
            ++count;
            auto& highest = most.at(static_cast<std::size_t>(inlet.across));
            highest = std::max(highest, count);
        }
    }
    const double room =
        view.area.width() / static_cast<double>(std::max<std::size_t>(*std::ranges::max_element(most), 1));
    symbol_size_ = std::clamp(0.4 * room, 2.2 * view.unit, 7.5 * view.unit);
    water_length_ = std::clamp(0.4 * room, 1.0 * view.unit, 30 * view.unit);
}

QRectF RoadLayout::lanes() const {
    return view_.area.adjusted(0, axis_height(view_.unit), 0, 0);
}

QRectF RoadLayout::lane(std::size_t index) const {
    const QRectF all = lanes();
    const double used = lane_height_ * static_cast<double>(plan_.lanes.size());
    const double spare = std::max(0.0, all.height() - used) / 2;
    return {all.left(), all.top() + spare + lane_height_ * static_cast<double>(index) - view_.scrolled,
            all.width(), lane_height_};
}

int RoadLayout::outward(std::size_t inlet) const {
    return plan_.inlets[inlet].across == Across::left ? -1 : 1;
}

QPointF RoadLayout::symbol(std::size_t inlet) const {
    const auto& planned = plan_.inlets[inlet];
    const double curb = planned.across == Across::on_line ? 0 : half_road() + symbol_size_;
    // Inlets on one spot stand beside each other, away from the road, as far as the lane has room.
    const double farthest = 0.46 * lane_height_;
    const double away = std::min(
        curb + 2.4 * symbol_size_ * static_cast<double>(std::min<std::size_t>(planned.rank, 100)), farthest);
    return {x_of(planned.at), middle(planned.lane) + outward(inlet) * away};
}

std::optional<std::size_t> RoadLayout::inlet_at(const QPointF& point) const {
    std::optional<std::size_t> nearest;
    double best = std::max(10 * view_.unit, 1.6 * symbol_size_);
    for (const std::size_t index : in_view_) {
        const QPointF away = symbol(index) - point;
        const double distance = std::hypot(away.x(), away.y());
        if (distance < best) {
            best = distance;
            nearest = index;
        }
    }
    return nearest;
}

}  // namespace gullymark::shell
