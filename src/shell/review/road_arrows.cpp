#include "shell/review/road_arrows.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <tuple>

#include <QPainterPath>

#include "shell/binding/contrast.h"
#include "shell/binding/qt_text.h"

namespace gullymark::shell {

using review::Flow;
using review::PlannedArrow;

ArrowLook look_of(Flow flow, const RoadColors& colors) {
    const QColor& alarm = colors.section.alarm;
    switch (flow) {
        case Flow::taken:
            break;
        case Flow::dry:
            return {.color = colors.section.faint, .style = Qt::DotLine, .width = 1.2, .filled = false};
        case Flow::twice:
            return {.color = alarm, .mark = WaterMark::twice};
        case Flow::stale:
            return {.color = alarm, .style = Qt::DashLine, .mark = WaterMark::stale};
        case Flow::loop:
            return {.color = alarm, .mark = WaterMark::loop};
        case Flow::nowhere:
            return {.color = alarm, .mark = WaterMark::lost};
        case Flow::missing:
            return {.color = alarm, .style = Qt::DashLine, .mark = WaterMark::missing};
    }
    return {.color = colors.flow};
}

namespace {

class ArrowPainter {
  public:
    ArrowPainter(const SymbolPainter& signs, const RoadLayout& layout) : signs_(signs), layout_(layout) {}

    std::vector<RoadLabel> paint(std::optional<std::size_t> current) {
        std::vector<const PlannedArrow*> order;
        for (const auto& arrow : layout_.plan().arrows) {
            if (is_in_view(arrow)) {
                order.push_back(&arrow);
            }
        }
        const auto importance = [&](const PlannedArrow* arrow) {
            const bool is_current = current && (arrow->from == current || arrow->to == current);
            return std::pair(is_current, arrow->flow);
        };
        std::ranges::stable_sort(order, {}, importance);
        for (const PlannedArrow* arrow : order) {
            if (arrow->from && arrow->to) {
                paint_way(*arrow);
            } else {
                paint_stub(*arrow);
            }
        }
        std::ranges::reverse(labels_);
        return std::move(labels_);
    }

  private:
    [[nodiscard]] double unit() const { return layout_.unit(); }

    [[nodiscard]] bool is_in_view(const PlannedArrow& arrow) const {
        const auto& area = layout_.view().area;
        const std::size_t one = arrow.from.value_or(arrow.to.value_or(0));
        const auto& inlets = layout_.plan().inlets;
        const auto [left, right] =
            std::minmax({layout_.x_of(inlets[one].at), layout_.x_of(inlets[arrow.to.value_or(one)].at)});
        return left <= area.right() + 60 * unit() && right >= area.left() - 60 * unit();
    }

    /// The edge of a symbol that is away from the road, or toward it.
    [[nodiscard]] QPointF edge(std::size_t inlet, bool outer) const {
        const double away = 1.2 * layout_.symbol_size() * layout_.outward(inlet) * (outer ? 1 : -1);
        return layout_.symbol(inlet) + QPointF(0, away);
    }

    /// On one side of a road in a bow above the numbers, else straight over the road.
    void paint_way(const PlannedArrow& arrow) {
        const auto& from = layout_.plan().inlets[*arrow.from];
        const auto& to = layout_.plan().inlets[*arrow.to];
        const bool same_side = from.lane == to.lane && from.across == to.across;
        const QPointF start = edge(*arrow.from, same_side);
        const QPointF end = edge(*arrow.to, same_side);
        const ArrowLook look = look_in_view(arrow.flow);
        if (is_hidden(start, end, arrow.flow)) {
            return;
        }
        QPointF control = (start + end) / 2;
        if (same_side) {
            const double reach = *arrow.from == *arrow.to ? 40 * unit() : std::abs(end.x() - start.x());
            // A bow reaches half as far as its control point; above it stands its flow.
            const double line = QFontMetricsF(signs_.painter.font()).height();
            const double room = 0.5 * layout_.lane_height() - layout_.half_road() -
                                2.2 * layout_.symbol_size() - line - 6 * unit();
            control += QPointF(0, layout_.outward(*arrow.from) * std::min(0.7 * reach, 2 * room));
        }
        if (*arrow.from == *arrow.to) {
            paint_own_loop(start, look, layout_.outward(*arrow.from));
            return;
        }
        QPainterPath path(start);
        path.quadTo(control, end);
        stroke(path, look);
        const QPointF middle = (start + 2 * control + end) / 4;
        if (!layout_.is_crowded() || arrow.flow > Flow::dry) {
            signs_.head(end, same_side ? control : start, head_size(start, end), look.color, look.filled);
        }
        add_mark(middle, look);
        add_label(arrow, middle, look, same_side ? layout_.outward(*arrow.from) : -1,
                  std::abs(end.x() - start.x()));
    }

    /// In a crowd what is in order steps back behind what is not.
    [[nodiscard]] ArrowLook look_in_view(Flow flow) const {
        ArrowLook look = look_of(flow, signs_.colors);
        if (layout_.is_crowded() && flow <= Flow::dry) {
            look.color = between(signs_.colors.pavement, look.color, 0.4);
            look.width = 0.6;
        }
        return look;
    }

    /// Many arrows of one sort within a pixel are one line.
    bool is_hidden(const QPointF& start, const QPointF& end, Flow flow) {
        return std::abs(start.x() - end.x()) < 2 && std::abs(start.y() - end.y()) < 2 &&
               !seen_.insert({static_cast<int>(start.x()), static_cast<int>(start.y()), flow}).second;
    }

    [[nodiscard]] double head_size(const QPointF& start, const QPointF& end) const {
        const double length = std::hypot(end.x() - start.x(), end.y() - start.y());
        return std::clamp(0.3 * length, 2 * unit(), 7.5 * unit());
    }

    void stroke(const QPainterPath& path, const ArrowLook& look) const {
        signs_.painter.setBrush(Qt::NoBrush);
        signs_.painter.setPen(signs_.pen(look.color, look.width, look.style));
        signs_.painter.drawPath(path);
    }

    void paint_own_loop(const QPointF& at, const ArrowLook& look, int outward) {
        const double size = 9 * unit();
        QPainterPath path;
        path.addEllipse(at + QPointF(0, outward * size), size, size);
        stroke(path, look);
        signs_.head(at, at + QPointF(-size, outward * size), 7 * unit(), look.color, true);
    }

    /// What goes nowhere leaves its inlet and ends at a cross; what is missing comes from an open triangle.
    void paint_stub(const PlannedArrow& arrow) {
        const std::size_t inlet = arrow.from ? *arrow.from : *arrow.to;
        const ArrowLook look = look_of(arrow.flow, signs_.colors);
        const int outward = layout_.outward(inlet);
        const QPointF at = edge(inlet, true);
        const double length = std::clamp(4 * layout_.symbol_size(), 8 * unit(), 30 * unit());
        const QPointF away = at + QPointF(arrow.from ? length : -length, outward * length);
        const QPointF start = arrow.from ? at : away;
        const QPointF end = arrow.from ? away : at;
        if (is_hidden(start, start, arrow.flow)) {
            return;
        }
        QPainterPath path(start);
        path.lineTo(end);
        stroke(path, look);
        signs_.head(arrow.from ? start + (end - start) * 0.75 : end, start, 8 * unit(), look.color, true);
        signs_.mark(away, std::clamp(0.6 * layout_.symbol_size(), 2.5 * unit(), 5 * unit()),
                    look.mark.value_or(WaterMark::lost));
        add_label(arrow, away, look, outward, 60 * unit());
    }

    void add_mark(const QPointF& middle, const ArrowLook& look) {
        if (look.mark) {
            signs_.mark(middle, std::clamp(0.6 * layout_.symbol_size(), 2.5 * unit(), 5 * unit()),
                        *look.mark);
        }
    }

    void add_label(const PlannedArrow& arrow, const QPointF& at, const ArrowLook& look, int outward,
                   double room) {
        const QFontMetricsF font(signs_.painter.font());
        const QString text = to_qt(arrow.text);
        const double width = font.horizontalAdvance(text);
        if (width > std::max(room, 50 * unit()) && arrow.flow <= Flow::dry) {
            return;
        }
        const double away = (look.mark ? 8 : 3) * unit();
        const double top = outward < 0 ? at.y() - away - font.height() : at.y() + away;
        labels_.push_back({text, {at.x() - width / 2, top, width, font.height()}, look.color});
    }

    const SymbolPainter& signs_;
    const RoadLayout& layout_;
    std::set<std::tuple<int, int, Flow>> seen_;
    std::vector<RoadLabel> labels_;
};

}  // namespace

std::vector<RoadLabel> paint_arrows(const SymbolPainter& signs, const RoadLayout& layout,
                                    std::optional<std::size_t> current) {
    return ArrowPainter(signs, layout).paint(current);
}

}  // namespace gullymark::shell
