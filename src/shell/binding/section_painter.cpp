#include "shell/binding/section_painter.h"

#include <cmath>

#include <QPainterPath>

#include "shell/binding/section_layout.h"

namespace gullymark::shell {
namespace {

using section::Part;
using section::Shape;
using section::Water;

/// Paints placed views with the pens of one painter.
class ViewPainter {
  public:
    ViewPainter(QPainter& painter, const SectionColors& colors, Water water, double unit)
        : painter_(painter), colors_(colors), water_(water), unit_(unit) {}

    void paint(const PlacedView& placed) {
        placed_ = &placed;
        for (const Shape& shape : placed.view->shapes) {
            paint_shape(shape);
        }
        paint_allowable();
        for (const PlacedMark& mark : placed.marks) {
            painter_.setPen(pen(colors_.faint, 1));
            painter_.drawLine(mark.leader);
            painter_.setBrush(colors_.ink);
            painter_.setPen(Qt::NoPen);
            painter_.drawEllipse(mark.leader.p2(), 1.6 * unit_, 1.6 * unit_);
        }
        for (const PlacedDimension& dimension : placed.dimensions) {
            paint_lines(dimension);
        }
        paint_texts();
    }

    void paint_text(const PlacedText& text, const QColor& color) {
        if (!text.text.isEmpty()) {
            painter_.setPen(color);
            painter_.drawText(text.box, Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip, text.text);
        }
    }

  private:
    [[nodiscard]] QPen pen(const QColor& color, double width, Qt::PenStyle style = Qt::SolidLine) const {
        return {QBrush(color), width * unit_, style, Qt::FlatCap, Qt::BevelJoin};
    }

    [[nodiscard]] QPolygonF points_of(const Shape& shape) const {
        QPolygonF points;
        for (const section::Point& point : shape.points) {
            points << placed_->at(point);
        }
        return points;
    }

    void fill(const QPolygonF& points, const QColor& color, const QPen& outline) {
        painter_.setBrush(color);
        painter_.setPen(outline);
        painter_.drawPolygon(points);
    }

    void paint_shape(const Shape& shape) {
        const QPolygonF points = points_of(shape);
        const QPen thin = pen(colors_.ink, 0.8);
        switch (shape.part) {
            case Part::earth:
                return fill(points, colors_.earth, Qt::NoPen);
            case Part::slab:
                return fill(points, colors_.slab, thin);
            case Part::hollow:
                return fill(points, colors_.paper, thin);
            case Part::concrete:
                return fill(points, colors_.concrete, thin);
            case Part::metal:
                return fill(points, colors_.metal, Qt::NoPen);
            case Part::water:
                fill(points, colors_.water, Qt::NoPen);
                return water_ == Water::unsolved ? hatch(points, colors_.surface, -1) : void();
            case Part::beyond:
                fill(points, colors_.beyond, pen(colors_.alarm, 1.2));
                hatch(points, colors_.alarm, 1);
                return water_ == Water::unsolved ? hatch(points, colors_.alarm, -1) : void();
            case Part::ground:
                return line(points, pen(colors_.ink, 1.6));
            case Part::former_ground:
                return line(points, pen(colors_.ink, 1, Qt::DashLine));
            case Part::surface:
                line(points, pen(colors_.surface, 1.6));
                return paint_level(points);
        }
    }

    void line(const QPolygonF& points, const QPen& with) {
        painter_.setPen(with);
        painter_.drawPolyline(points);
    }

    /// The triangle that stands on a water level.
    void paint_level(const QPolygonF& surface) {
        const QPointF tip = surface.first() + (surface.last() - surface.first()) * 0.3;
        const double size = 4.5 * unit_;
        fill({{tip, tip + QPointF(-size, -1.5 * size), tip + QPointF(size, -1.5 * size)}}, colors_.paper,
             pen(colors_.surface, 1.2));
    }

    /// Slanted lines of the painter's own: the toolkit's patterns do not follow the resolution of paper.
    void hatch(const QPolygonF& points, const QColor& color, int direction) {
        const QRectF box = points.boundingRect();
        const double gap = 6 * unit_;
        QPainterPath inside;
        inside.addPolygon(points);
        inside.closeSubpath();
        painter_.save();
        painter_.setClipPath(inside, Qt::IntersectClip);
        painter_.setPen(pen(color, 1));
        const double height = box.height();
        // Lines that stand at multiples of the gap on the device: parts of one water share them.
        const double start = std::floor((box.left() - height) / gap) * gap;
        const int lines = static_cast<int>((box.right() + height - start) / gap) + 1;
        for (int i = 0; i < lines; ++i) {
            const double x = start + i * gap;
            const double lean = direction * height;
            painter_.drawLine(QLineF(x, box.bottom(), x + lean, box.top()));
        }
        painter_.restore();
    }

    void paint_allowable() {
        if (!placed_->view->allowable) {
            return;
        }
        const QPointF at = placed_->at(*placed_->view->allowable);
        painter_.setPen(pen(colors_.ink, 2));
        painter_.drawLine(QLineF(at.x(), at.y() - 7 * unit_, at.x(), at.y() + 7 * unit_));
    }

    void paint_lines(const PlacedDimension& dimension) {
        const QColor& color = dimension.beyond ? colors_.alarm : colors_.ink;
        painter_.setPen(pen(colors_.faint, 0.8));
        painter_.drawLine(dimension.from);
        painter_.drawLine(dimension.to);
        painter_.setPen(pen(color, 1));
        painter_.drawLine(dimension.line);
        const bool upright = dimension.line.dx() == 0;
        const bool outside = dimension.line.length() < 16 * unit_;
        arrow(dimension.line.p1(), dimension.line.p2(), outside, color, upright);
        arrow(dimension.line.p2(), dimension.line.p1(), outside, color, upright);
        if (upright) {
            painter_.setPen(pen(colors_.faint, 0.8));
            painter_.drawLine(QLineF(dimension.label.box.right(), dimension.label.box.center().y(),
                                     dimension.line.x1(), dimension.line.center().y()));
        } else if (dimension.label.box.left() >= dimension.line.x2()) {
            painter_.drawLine(
                QLineF(dimension.line.p2(), QPointF(dimension.label.box.left(), dimension.line.y1())));
        } else if (dimension.label.box.right() <= dimension.line.x1()) {
            painter_.drawLine(
                QLineF(QPointF(dimension.label.box.right(), dimension.line.y1()), dimension.line.p1()));
        }
    }

    /// An arrowhead at `tip`, that comes from the other end or, outside, from beyond the tip.
    void arrow(const QPointF& tip, const QPointF& other, bool outside, const QColor& color, bool upright) {
        const QPointF way = other - tip;
        const double along = upright ? way.y() : way.x();
        const double back = (along < 0 ? -7 : 7) * unit_ * (outside ? -1 : 1);
        const double wide = 2.4 * unit_;
        painter_.setBrush(color);
        painter_.setPen(Qt::NoPen);
        if (upright) {
            painter_.drawPolygon(QPolygonF({tip, tip + QPointF(-wide, back), tip + QPointF(wide, back)}));
        } else {
            painter_.drawPolygon(QPolygonF({tip, tip + QPointF(back, -wide), tip + QPointF(back, wide)}));
        }
    }

    /// After all lines: what lies below a text gives way.
    void paint_texts() {
        const auto clear = [this](const PlacedText& text) { painter_.fillRect(text.box, colors_.paper); };
        for (const PlacedDimension& dimension : placed_->dimensions) {
            clear(dimension.label);
            paint_text(dimension.label, dimension.beyond ? colors_.alarm : colors_.ink);
        }
        for (const PlacedMark& mark : placed_->marks) {
            clear(mark.label);
            paint_text(mark.label, colors_.ink);
        }
        for (const PlacedText& line : placed_->title) {
            paint_text(line, colors_.ink);
        }
    }

    QPainter& painter_;
    const SectionColors& colors_;
    Water water_;
    double unit_;
    const PlacedView* placed_ = nullptr;
};

}  // namespace

void paint_section(QPainter& painter, const QRectF& area, const section::Section& section,
                   const SectionColors& colors) {
    const QFontMetricsF font = painter.fontMetrics();
    const PlacedSection placed = place_section(area, section, font);
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(area, colors.paper);
    ViewPainter pen(painter, colors, section.water, font_unit(font));
    for (const PlacedView& view : placed.views) {
        pen.paint(view);
    }
    for (const PlacedText& note : placed.notes) {
        pen.paint_text(note, colors.ink);
    }
    painter.restore();
}

}  // namespace gullymark::shell
