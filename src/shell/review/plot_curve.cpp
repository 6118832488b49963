#include "shell/review/plot_curve.h"

#include <algorithm>
#include <optional>
#include <utility>

#include <QPolygonF>

#include "shell/binding/contrast.h"
#include "shell/binding/view_layout.h"
#include "shell/review/plot_scale.h"

namespace gullymark::shell {
namespace {

using review::FlowCurve;
using review::FlowPoint;

class CurvePainter {
  public:
    CurvePainter(QPainter& painter, const QRectF& area, const FlowCurve& curve, const PlotUnits& units,
                 const RoadColors& colors)
        : painter_(painter),
          area_(area),
          curve_(curve),
          units_(units),
          colors_(colors),
          font_(painter.font(), painter.device()),
          unit_(font_unit(font_)) {
        double flow = curve.inlet ? curve.inlet->flow : 0;
        double height = curve.has_spread ? curve.allowable.value_or(0) * 1.1 : 0;
        double share = 1;
        for (const auto& point : curve.points) {
            flow = std::max(flow, point.flow);
            height = std::max(height, height_of(point).value_or(0));
            share = std::max(share, point.share.value_or(0));
        }
        const auto ticks_in = [&](double room, double each) {
            return std::clamp(static_cast<int>(room / each), 2, 10);
        };
        flow_ = plot_scale(flow, ticks_in(area.width(), 70 * unit_));
        height_ = plot_scale(height, ticks_in(area.height(), 40 * unit_));
        percent_ = plot_scale(100 * std::min(share, 10.0), ticks_in(area.height(), 40 * unit_));
        place_frame();
    }

    void paint() {
        painter_.fillRect(area_, colors_.section.paper);
        paint_grid();
        paint_titles();
        paint_allowable();
        const QColor& left = colors_.flow;
        const QColor right = share_color();
        paint_line([this](const FlowPoint& point) { return left_of(point); }, left, Qt::SolidLine);
        paint_line([this](const FlowPoint& point) { return right_of(point); }, right, Qt::DashLine);
        tell_allowable();
        if (curve_.inlet) {
            paint_inlet(left_of(*curve_.inlet), left, true);
            paint_inlet(right_of(*curve_.inlet), right, false);
        }
    }

  private:
    [[nodiscard]] std::optional<double> height_of(const FlowPoint& point) const {
        return curve_.has_spread ? point.spread : point.depth;
    }
    [[nodiscard]] QColor share_color() const {
        const std::array grounds{colors_.section.paper};
        return readable(QColor(176, 92, 0), grounds, text_contrast);
    }

    void place_frame() {
        double left = 0;
        double right = 0;
        for (const double tick : height_.ticks()) {
            left = std::max(left, font_.horizontalAdvance(height_.text(tick)));
        }
        for (const double tick : percent_.ticks()) {
            right = std::max(right, font_.horizontalAdvance(percent_.text(tick)));
        }
        const double line = font_.height();
        frame_ =
            area_.adjusted(left + 12 * unit_, line + 8 * unit_, -right - 12 * unit_, -2 * line - 10 * unit_);
    }

    [[nodiscard]] double x_of(double flow) const {
        return frame_.left() + std::clamp(flow / flow_.most, 0.0, 1.0) * frame_.width();
    }
    [[nodiscard]] double y_of(double value, const PlotScale& scale) const {
        return frame_.bottom() - std::clamp(value / scale.most, 0.0, 1.0) * frame_.height();
    }
    [[nodiscard]] std::optional<QPointF> left_of(const FlowPoint& point) const {
        const auto value = height_of(point);
        return value ? std::optional(QPointF(x_of(point.flow), y_of(*value, height_))) : std::nullopt;
    }
    [[nodiscard]] std::optional<QPointF> right_of(const FlowPoint& point) const {
        return point.share ? std::optional(QPointF(x_of(point.flow), y_of(100 * *point.share, percent_)))
                           : std::nullopt;
    }

    [[nodiscard]] QPen pen(const QColor& color, double width, Qt::PenStyle style = Qt::SolidLine) const {
        return {QBrush(color), width * unit_, style, Qt::FlatCap, Qt::RoundJoin};
    }

    void write(const QRectF& box, Qt::Alignment side, const QString& text, const QColor& color) const {
        painter_.setPen(color);
        painter_.drawText(box, static_cast<int>(side) | Qt::TextSingleLine | Qt::TextDontClip, text);
    }

    void paint_grid() {
        const double line = font_.height();
        const double gap = 5 * unit_;
        for (const double tick : flow_.ticks()) {
            const double x = x_of(tick);
            painter_.setPen(pen(between(colors_.section.paper, colors_.section.ink, 0.15), 1));
            painter_.drawLine(QPointF(x, frame_.top()), QPointF(x, frame_.bottom()));
            write({x - 50, frame_.bottom() + gap, 100, line}, Qt::AlignHCenter | Qt::AlignTop,
                  flow_.text(tick), colors_.section.ink);
        }
        for (const double tick : height_.ticks()) {
            const double y = y_of(tick, height_);
            painter_.setPen(pen(between(colors_.section.paper, colors_.section.ink, 0.15), 1));
            painter_.drawLine(QPointF(frame_.left(), y), QPointF(frame_.right(), y));
            write({area_.left(), y - line / 2, frame_.left() - area_.left() - gap, line},
                  Qt::AlignRight | Qt::AlignVCenter, height_.text(tick), colors_.flow);
        }
        for (const double tick : percent_.ticks()) {
            const double y = y_of(tick, percent_);
            painter_.setPen(pen(share_color(), 1));
            painter_.drawLine(QPointF(frame_.right() - gap, y), QPointF(frame_.right(), y));
            write({frame_.right() + gap, y - line / 2, area_.right() - frame_.right() - gap, line},
                  Qt::AlignLeft | Qt::AlignVCenter, percent_.text(tick), share_color());
        }
        painter_.setPen(pen(colors_.section.ink, 1.2));
        painter_.setBrush(Qt::NoBrush);
        painter_.drawRect(frame_);
    }

    void paint_titles() {
        const QRectF top(area_.left() + 2 * unit_, area_.top() + 2 * unit_, area_.width() - 4 * unit_,
                         font_.height());
        const QString height = curve_.has_spread ? "Spread [" + units_.length + "] \u2014"
                                                 : "Depth [" + units_.depth + "] \u2014";
        write(top, Qt::AlignLeft | Qt::AlignVCenter, height, colors_.flow);
        write(top, Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("- - Efficiency [%]"), share_color());
        write({frame_.left(), area_.bottom() - font_.height() - 2 * unit_, frame_.width(), font_.height()},
              Qt::AlignCenter, "Flow [" + units_.flow + ']', colors_.section.ink);
    }

    void paint_allowable() {
        if (!curve_.has_spread || !curve_.allowable) {
            return;
        }
        const double y = y_of(*curve_.allowable, height_);
        painter_.setPen(pen(colors_.section.alarm, 1.4, Qt::DashDotLine));
        painter_.drawLine(QPointF(frame_.left(), y), QPointF(frame_.right(), y));
    }

    /// After the curves, which run lower where the flow is small.
    void tell_allowable() {
        if (!curve_.has_spread || !curve_.allowable) {
            return;
        }
        const QString text = QStringLiteral("allowable spread");
        const double y = y_of(*curve_.allowable, height_);
        const QRectF box(frame_.left() + 8 * unit_, y - font_.height() - unit_, font_.horizontalAdvance(text),
                         font_.height());
        painter_.fillRect(box, colors_.section.paper);
        write(box, Qt::AlignCenter, text, colors_.section.alarm);
    }

    template <typename Place>
    void paint_line(const Place& place, const QColor& color, Qt::PenStyle style) {
        painter_.setPen(pen(color, 2, style));
        painter_.setBrush(Qt::NoBrush);
        QPolygonF part;
        for (const auto& point : curve_.points) {
            if (const auto at = place(point)) {
                part << *at;
            } else {
                painter_.drawPolyline(part);
                part.clear();
            }
        }
        painter_.drawPolyline(part);
    }

    void paint_inlet(const std::optional<QPointF>& at, const QColor& color, bool round) {
        if (!at) {
            return;
        }
        const double size = 4.5 * unit_;
        painter_.setPen(pen(colors_.section.paper, 1.4));
        painter_.setBrush(color);
        if (round) {
            painter_.drawEllipse(*at, size, size);
        } else {
            painter_.drawRect(QRectF(at->x() - size * 0.9, at->y() - size * 0.9, 1.8 * size, 1.8 * size));
        }
    }

    QPainter& painter_;
    QRectF area_;
    const FlowCurve& curve_;
    const PlotUnits& units_;
    const RoadColors& colors_;
    QFontMetricsF font_;
    double unit_;
    PlotScale flow_;
    PlotScale height_;
    PlotScale percent_;
    QRectF frame_;
};

}  // namespace

void paint_curve(QPainter& painter, const QRectF& area, const FlowCurve& curve, const PlotUnits& units,
                 const RoadColors& colors) {
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing);
    CurvePainter(painter, area, curve, units, colors).paint();
    painter.restore();
}

CurvePlot::CurvePlot(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("sizing_plot"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(QStringLiteral("Spread and efficiency against flow"));
}

void CurvePlot::show_curve(FlowCurve curve, PlotUnits units, const QString& title) {
    curve_ = std::move(curve);
    units_ = std::move(units);
    title_ = title;
    setAccessibleDescription(title);
    update();
}

void CurvePlot::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const RoadColors colors = road_colors(palette());
    painter.fillRect(rect(), colors.section.paper);
    const QFontMetricsF metrics(font());
    const double line = metrics.height() + 4;
    painter.setPen(colors.section.ink);
    painter.drawText(QRectF(6, 2, width() - 12.0, line), Qt::AlignCenter,
                     metrics.elidedText(title_, Qt::ElideRight, width() - 12.0));
    if (curve_.points.empty()) {
        painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("Solve gives no results at any flow."));
        return;
    }
    paint_curve(painter, QRectF(rect()).adjusted(6, line, -6, -4), curve_, units_, colors);
}

}  // namespace gullymark::shell
