#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include <QPointF>
#include <QRectF>

#include "review/road_plan.h"

/// Where the shapes of a road stand on a widget or a sheet: stations run from left to right, the left side of the road is
/// above its line, lanes stand below each other.
namespace gullymark::shell {

/// The part of a road that is in view.
struct RoadView {
    QRectF area;      // on the painter
    double from = 0;  // the stations at its left and right edges; from < to
    double to = 1;
    double scrolled = 0;  // so much of the lanes is above the area
    double unit = 1;      // a length that follows the font
};

class RoadLayout {
  public:
    RoadLayout(const review::RoadPlan& plan, const RoadView& view);

    [[nodiscard]] const review::RoadPlan& plan() const { return plan_; }
    [[nodiscard]] const RoadView& view() const { return view_; }
    [[nodiscard]] double unit() const { return view_.unit; }

    [[nodiscard]] double x_of(double station) const {
        return view_.area.left() + (station - view_.from) * pixels_for_length_;
    }
    /// The height of a lane that shows all there is to see, and of the stations above all lanes.
    static double least_lane(double unit) { return 250 * unit; }
    static double axis_height(double unit) { return 26 * unit; }

    [[nodiscard]] QRectF lanes() const;  // the area below the stations
    [[nodiscard]] double lane_height() const { return lane_height_; }
    [[nodiscard]] QRectF lane(std::size_t index) const;
    [[nodiscard]] double middle(std::size_t lane_index) const { return lane(lane_index).center().y(); }
    /// From the line of the road to its curb.
    [[nodiscard]] double half_road() const { return 0.17 * lane_height_; }
    /// The length on the road that the allowable spread has.
    [[nodiscard]] double allowable() const { return 0.5 * half_road(); }

    /// The symbol of an inlet: its middle, and how large it is. Where many stand in view they are smaller.
    [[nodiscard]] QPointF symbol(std::size_t inlet) const;
    [[nodiscard]] double symbol_size() const { return symbol_size_; }
    /// True where inlets stand too close for their arrows to be told apart.
    [[nodiscard]] bool is_crowded() const { return symbol_size_ < 3 * view_.unit; }
    /// -1 where the outer side of an inlet is above it, 1 below.
    [[nodiscard]] int outward(std::size_t inlet) const;
    /// How wide the water before an inlet may be painted, so that it does not reach the next one.
    [[nodiscard]] double water_length() const { return water_length_; }

    /// The inlets in view, by lanes and stations, with those that stand a symbol's width beside it.
    [[nodiscard]] const std::vector<std::size_t>& in_view() const { return in_view_; }

    /// The inlet whose symbol is nearest to a point, if one is within reach.
    [[nodiscard]] std::optional<std::size_t> inlet_at(const QPointF& point) const;

  private:
    const review::RoadPlan& plan_;
    RoadView view_;
    double pixels_for_length_;
    double lane_height_;
    double symbol_size_ = 0;
    double water_length_ = 0;
    std::vector<std::size_t> in_view_;
};

}  // namespace gullymark::shell
