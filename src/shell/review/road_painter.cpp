#include "shell/review/road_painter.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

#include <QPainterPath>

#include "shell/binding/qt_text.h"
#include "shell/binding/view_layout.h"
#include "shell/review/road_arrows.h"
#include "shell/review/road_symbols.h"
#include "shell/review/road_texts.h"

namespace gullymark::shell {
namespace {

using review::Across;
using review::PlannedInlet;
using review::PlannedSpread;

class RoadPainter {
  public:
    RoadPainter(QPainter& painter, const RoadLayout& layout, const RoadColors& colors,
                std::optional<std::size_t> current)
        : painter_(painter),
          layout_(layout),
          colors_(colors),
          signs_{.painter = painter, .colors = colors, .unit = layout.unit()},
          texts_(painter, layout.view().area),
          current_(current) {}

    void paint() {
        painter_.fillRect(layout_.view().area, colors_.section.paper);
        paint_axis();
        painter_.setClipRect(layout_.lanes(), Qt::IntersectClip);
        for (std::size_t lane = 0; lane < layout_.plan().lanes.size(); ++lane) {
            paint_lane(lane);
        }
        for (const std::size_t index : layout_.in_view()) {
            paint_spreads(index);
        }
        // The number of the current inlet has its place before all others, and is painted over what is crowded there.
        has_place_ = current_ && texts_.take(number_box(*current_));
        const auto arrows = paint_arrows(signs_, layout_, current_);
        paint_symbols();
        paint_numbers();
        for (const auto& label : arrows) {
            if (texts_.take(label.box)) {
                painter_.fillRect(label.box, ground_at(label.box));
                texts_.draw(label.text, label.box, label.color);
            }
        }
    }

  private:
    [[nodiscard]] const PlannedInlet& inlet(std::size_t index) const { return layout_.plan().inlets[index]; }
    [[nodiscard]] double unit() const { return layout_.unit(); }

    /// What lies below a text.
    [[nodiscard]] const QColor& ground_at(const QRectF& box) const {
        for (std::size_t lane = 0; lane < layout_.plan().lanes.size(); ++lane) {
            if (layout_.plan().lanes[lane].has_stations &&
                std::abs(box.center().y() - layout_.middle(lane)) < layout_.half_road()) {
                return colors_.pavement;
            }
        }
        return colors_.section.paper;
    }

    void paint_axis() {
        const auto& view = layout_.view();
        const QRectF strip(view.area.left(), view.area.top(), view.area.width(),
                           RoadLayout::axis_height(unit()));
        const QFontMetricsF font(painter_.font());
        const double room = font.horizontalAdvance(QStringLiteral("00000+00.00")) + 12 * unit();
        const auto most = static_cast<std::size_t>(std::clamp(view.area.width() / room, 2.0, 200.0));
        painter_.setPen(signs_.pen(colors_.section.faint, 1));
        painter_.drawLine(strip.bottomLeft(), strip.bottomRight());
        const bool has_stations = std::ranges::any_of(layout_.plan().lanes, &review::Lane::has_stations);
        if (!has_stations) {
            return;
        }
        for (const auto& tick : review::station_ticks(layout_.plan(), view.from, view.to, most)) {
            const double x = layout_.x_of(tick.at);
            painter_.setPen(signs_.pen(colors_.section.faint, 1));
            painter_.drawLine(QPointF(x, strip.bottom() - 5 * unit()), QPointF(x, strip.bottom()));
            const QString text = to_qt(tick.text);
            const double width = font.horizontalAdvance(text);
            texts_.place(text, {x - width / 2, strip.top() + unit(), width, font.height()},
                         colors_.section.ink);
        }
    }

    void paint_lane(std::size_t index) {
        const QRectF room = layout_.lane(index);
        if (!room.intersects(layout_.lanes())) {
            return;
        }
        const double middle = layout_.middle(index);
        const double half = layout_.half_road();
        const auto& lane = layout_.plan().lanes[index];
        if (lane.has_stations) {
            painter_.fillRect(QRectF(room.left(), middle - half, room.width(), 2 * half), colors_.pavement);
            painter_.setPen(signs_.pen(colors_.section.ink, 1.2));
            for (const double curb : {middle - half, middle + half}) {
                painter_.drawLine(QPointF(room.left(), curb), QPointF(room.right(), curb));
            }
            painter_.setPen(signs_.pen(colors_.section.faint, 1.2, Qt::DashLine));
            painter_.drawLine(QPointF(room.left(), middle), QPointF(room.right(), middle));
        }
        if (index > 0) {
            painter_.setPen(signs_.pen(colors_.section.faint, 0.8));
            painter_.drawLine(room.topLeft(), room.topRight());
        }
        const auto is_road = [](const review::Lane& each) { return each.has_stations; };
        const bool one_of_many = std::ranges::count_if(layout_.plan().lanes, is_road) > 1;
        const std::string name = lane.name.empty() && one_of_many ? "No roadway named" : lane.name;
        if (!name.empty()) {
            const QFontMetricsF font(painter_.font());
            const QString text =
                font.elidedText(to_qt(name).simplified(), Qt::ElideRight, 0.6 * room.width());
            texts_.place(text,
                         {room.left() + 6 * unit(), room.top() + 3 * unit(), font.horizontalAdvance(text),
                          font.height()},
                         colors_.section.ink);
        }
    }

    /// The water along the curb before an inlet, as wide as it spreads, against a line at the allowable width.
    void paint_spreads(std::size_t index) {
        const auto& planned = inlet(index);
        const double middle = layout_.middle(planned.lane);
        const int inward = -layout_.outward(index);
        const double curb = planned.across == Across::on_line
                                ? middle
                                : middle + layout_.outward(index) * layout_.half_road();
        const double x = layout_.x_of(planned.at);
        for (const auto& spread : planned.spreads) {
            if (!(spread.share > 0)) {
                continue;
            }
            const double end = x + spread.toward * layout_.water_length();
            const auto strip = [&](double from, double to) {
                return QRectF(QPointF(x, curb + inward * from), QPointF(end, curb + inward * to))
                    .normalized();
            };
            const double most = layout_.half_road() - unit();
            const double width = std::min(spread.share * layout_.allowable(), most);
            painter_.fillRect(strip(0, std::min(width, layout_.allowable())), colors_.section.water);
            if (width > layout_.allowable()) {
                signs_.beyond(strip(layout_.allowable(), width));
            }
            painter_.setPen(signs_.pen(colors_.section.ink, 1));
            const double line = curb + inward * layout_.allowable();
            painter_.drawLine(QPointF(x, line), QPointF(end, line));
            texts_.block(strip(0, width));
            paint_spread_text(spread, strip(0, width), spread.share * layout_.allowable() > most);
        }
    }

    /// Spreads are told where there is room beside the water; one that is cut off has an arrow for "more".
    void paint_spread_text(const PlannedSpread& spread, const QRectF& water, bool is_cut) {
        if (layout_.water_length() < 20 * unit()) {
            return;
        }
        const QFontMetricsF font(painter_.font());
        const QString text = to_qt(spread.text) + (is_cut ? QStringLiteral(" \u2026") : QString());
        const double width = font.horizontalAdvance(text);
        const double x = spread.toward < 0 ? water.left() - width - 5 * unit() : water.right() + 5 * unit();
        spread_texts_.push_back({text,
                                 {x, water.center().y() - font.height() / 2, width, font.height()},
                                 spread.beyond ? colors_.section.alarm : colors_.section.ink});
    }

    /// Where inlets stand closer than a pixel, one of them is painted, the worst first.
    void paint_symbols() {
        std::set<std::pair<int, int>> painted;
        const auto paint_those = [&](bool wrong) {
            for (const std::size_t index : layout_.in_view()) {
                const auto& planned = inlet(index);
                const bool is_wrong = planned.worst.has_value();
                const QPointF at = layout_.symbol(index);
                const std::pair spot(static_cast<int>(std::floor(at.x())), static_cast<int>(at.y()));
                if (is_wrong == wrong && layout_.lanes().top() <= at.y() + layout_.symbol_size() &&
                    (index == current_ || painted.insert(spot).second)) {
                    paint_symbol(index, at);
                }
            }
        };
        paint_those(true);
        paint_those(false);
        if (current_) {
            const QPointF at = layout_.symbol(*current_);
            const double size = 1.3 * layout_.symbol_size() + 4 * unit();
            painter_.setBrush(Qt::NoBrush);
            painter_.setPen(signs_.pen(colors_.marked, 3));
            painter_.drawRoundedRect(QRectF(at.x() - size, at.y() - size, 2 * size, 2 * size), 3 * unit(),
                                     3 * unit());
        }
    }

    void paint_symbol(std::size_t index, const QPointF& at) {
        const auto& planned = inlet(index);
        const QColor& color =
            planned.worst == review::Severity::wrong ? colors_.of(*planned.worst) : colors_.section.ink;
        signs_.inlet(at, layout_.symbol_size(), planned.symbol, planned.in_sump, color);
    }

    void paint_numbers() {
        for (const auto wanted : {0, 1, 2, 3}) {
            for (const std::size_t index : layout_.in_view()) {
                const auto& worst = inlet(index).worst;
                if (index != current_ && (worst ? static_cast<int>(*worst) : 3) == wanted) {
                    place_text(index);
                }
            }
        }
        if (has_place_) {
            paint_number(*current_);
        }
        for (const auto& label : spread_texts_) {
            texts_.place(label.text, label.box, label.color);
        }
    }

    [[nodiscard]] double sign_size() const { return 4.5 * unit(); }

    [[nodiscard]] QString shown_number(std::size_t index) const {
        constexpr double longest = 120;
        return QFontMetricsF(painter_.font())
            .elidedText(to_qt(inlet(index).number), Qt::ElideRight, longest * unit());
    }

    /// The length of the signs before the number.
    [[nodiscard]] double before_number(std::size_t index) const {
        const auto& planned = inlet(index);
        const int signs = (planned.worst ? 1 : 0) + (planned.stale ? 1 : 0) + (planned.loses_water ? 1 : 0);
        return signs == 0 ? 0 : signs * 2.6 * sign_size() + 2 * unit();
    }

    /// Where the signs of what was found and the number stand, away from the road.
    [[nodiscard]] QRectF number_box(std::size_t index) const {
        const QFontMetricsF font(painter_.font());
        const double width = before_number(index) + font.horizontalAdvance(shown_number(index));
        const QPointF at = layout_.symbol(index);
        // The heads of arrows have room before it.
        const double away = 1.3 * layout_.symbol_size() + (layout_.is_crowded() ? 3 : 8) * unit();
        const double top = layout_.outward(index) < 0 ? at.y() - away - font.height() : at.y() + away;
        return {at.x() - width / 2, top, width, font.height()};
    }

    void place_text(std::size_t index) {
        if (texts_.take(number_box(index))) {
            paint_number(index);
        }
    }

    void paint_number(std::size_t index) {
        const auto& planned = inlet(index);
        const double sign = sign_size();
        QRectF box = number_box(index);
        painter_.fillRect(box, colors_.section.paper);
        QPointF spot(box.left() + sign, box.center().y());
        const auto next = [&] { spot += QPointF(2.6 * sign, 0); };
        if (planned.worst) {
            signs_.severity(spot, sign, *planned.worst);
            next();
        }
        if (planned.stale) {
            signs_.mark(spot, sign, WaterMark::stale);
            next();
        }
        if (planned.loses_water) {
            signs_.mark(spot, sign, WaterMark::lost);
        }
        box.setLeft(box.left() + before_number(index));
        texts_.draw(shown_number(index), box, index == current_ ? colors_.marked : colors_.section.ink);
    }

    QPainter& painter_;
    const RoadLayout& layout_;
    const RoadColors& colors_;
    SymbolPainter signs_;
    RoadTexts texts_;
    std::optional<std::size_t> current_;
    std::vector<RoadLabel> spread_texts_;
    bool has_place_ = false;  // the number of the current inlet
};

}  // namespace

void paint_road(QPainter& painter, const RoadLayout& layout, const RoadColors& colors,
                std::optional<std::size_t> current) {
    painter.save();
    painter.setClipRect(layout.view().area, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing);
    RoadPainter(painter, layout, colors, current).paint();
    painter.restore();
}

void paint_road(QPainter& painter, const QRectF& rect, const review::RoadPlan& plan, double from, double to,
                const RoadColors& colors) {
    if (!(to > from) || rect.isEmpty()) {
        return;
    }
    const RoadLayout layout(plan, {.area = rect,
                                   .from = from,
                                   .to = to,
                                   .unit = font_unit(QFontMetricsF(painter.font(), painter.device()))});
    paint_road(painter, layout, colors);
}

double road_height(const review::RoadPlan& plan, const QFontMetricsF& font) {
    const double unit = font_unit(font);
    return RoadLayout::axis_height(unit) +
           RoadLayout::least_lane(unit) * static_cast<double>(std::max<std::size_t>(plan.lanes.size(), 1));
}

}  // namespace gullymark::shell
