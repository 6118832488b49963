#include "shell/review/road_symbols.h"

#include <algorithm>
#include <cmath>

#include <QPolygonF>

namespace gullymark::shell {
namespace {

using section::Inlet;

QRectF box_around(const QPointF& at, double half_width, double half_height) {
    return {at.x() - half_width, at.y() - half_height, 2 * half_width, 2 * half_height};
}

void paint_lattice(const SymbolPainter& with, const QRectF& box, const QColor& color) {
    with.painter.setBrush(with.colors.section.paper);
    with.painter.setPen(with.pen(color, 1.4));
    with.painter.drawRect(box);
    for (const double part : {1.0 / 3, 2.0 / 3}) {
        const double x = box.left() + part * box.width();
        with.painter.drawLine(QPointF(x, box.top()), QPointF(x, box.bottom()));
    }
}

void paint_ditch(const SymbolPainter& with, const QPointF& at, double size, const QColor& color) {
    with.painter.setBrush(with.colors.section.paper);
    with.painter.setPen(with.pen(color, 1.6));
    with.painter.drawPolygon(
        QPolygonF({at + QPointF(-size, -0.7 * size), at + QPointF(size, -0.7 * size),
                   at + QPointF(0.4 * size, 0.7 * size), at + QPointF(-0.4 * size, 0.7 * size)}));
}

}  // namespace

void SymbolPainter::inlet(const QPointF& at, double size, Inlet kind, bool in_sump,
                          const QColor& color) const {
    if (in_sump) {
        painter.setBrush(colors.section.paper);
        painter.setPen(pen(color, 1.4));
        painter.drawEllipse(at, 1.3 * size, 1.3 * size);
    }
    if (kind == Inlet::curb || kind == Inlet::combination) {
        painter.fillRect(box_around(at - QPointF(0, kind == Inlet::curb ? 0 : 0.5 * size), size, 0.35 * size),
                         color);
    }
    if (kind == Inlet::grate) {
        paint_lattice(*this, box_around(at, 0.7 * size, 0.7 * size), color);
    } else if (kind == Inlet::combination) {
        paint_lattice(*this, box_around(at + QPointF(0, 0.4 * size), 0.6 * size, 0.45 * size), color);
    } else if (kind == Inlet::slotted) {
        painter.setBrush(colors.section.paper);
        painter.setPen(pen(color, 1.4));
        painter.drawRect(box_around(at, size, 0.25 * size));
    } else if (kind == Inlet::ditch) {
        paint_ditch(*this, at, size, color);
    } else if (kind == Inlet::unknown) {
        painter.setBrush(color);
        painter.setPen(Qt::NoPen);
        painter.drawEllipse(at, 0.5 * size, 0.5 * size);
    }
}

void SymbolPainter::mark(const QPointF& at, double size, WaterMark mark) const {
    const QColor& alarm = colors.section.alarm;
    painter.setPen(pen(alarm, 1.8));
    painter.setBrush(colors.section.paper);
    switch (mark) {
        case WaterMark::stale:
            painter.drawPolygon(QPolygonF({at - QPointF(0, size), at + QPointF(size, 0),
                                           at + QPointF(0, size), at - QPointF(size, 0)}));
            break;
        case WaterMark::lost:
            painter.setPen(pen(alarm, 2.4));
            painter.drawLine(at - QPointF(size, size) * 0.8, at + QPointF(size, size) * 0.8);
            painter.drawLine(at - QPointF(size, -size) * 0.8, at + QPointF(size, -size) * 0.8);
            break;
        case WaterMark::loop:
            painter.drawEllipse(at, 0.85 * size, 0.85 * size);
            break;
        case WaterMark::twice:
            for (const double x : {-0.4 * size, 0.4 * size}) {
                painter.drawLine(at + QPointF(x, -size), at + QPointF(x, size));
            }
            break;
        case WaterMark::missing:
            painter.drawPolygon(QPolygonF(
                {at + QPointF(-size, -0.8 * size), at + QPointF(size, -0.8 * size), at + QPointF(0, size)}));
            break;
    }
}

void SymbolPainter::beyond(const QRectF& box) const {
    painter.fillRect(box, colors.section.beyond);
    painter.setPen(pen(colors.section.alarm, 1));
    const double gap = 5 * unit;
    const int lines = static_cast<int>(box.width() / gap) + 1;
    for (int i = 0; i < lines; ++i) {
        const double x = box.left() + i * gap;
        const double reach = std::min(box.right() - x, box.height());
        painter.drawLine(QPointF(x, box.bottom()), QPointF(x + reach, box.bottom() - reach));
    }
}

void SymbolPainter::severity(const QPointF& at, double size, review::Severity severity) const {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.of(severity));
    if (severity == review::Severity::wrong) {
        QPolygonF octagon;
        const double corner = 0.41 * size;
        for (const QPointF& point : {QPointF(corner, size), QPointF(size, corner), QPointF(size, -corner),
                                     QPointF(corner, -size), QPointF(-corner, -size), QPointF(-size, -corner),
                                     QPointF(-size, corner), QPointF(-corner, size)}) {
            octagon << at + point * 0.9;
        }
        painter.drawPolygon(octagon);
    } else if (severity == review::Severity::beyond) {
        painter.drawPolygon(QPolygonF(
            {at - QPointF(0, size), at + QPointF(size, 0.8 * size), at + QPointF(-size, 0.8 * size)}));
    } else {
        painter.drawEllipse(at, 0.85 * size, 0.85 * size);
    }
}

void SymbolPainter::head(const QPointF& tip, const QPointF& from, double size, const QColor& color,
                         bool filled) const {
    const QPointF way = tip - from;
    const double length = std::hypot(way.x(), way.y());
    if (!(length > 0)) {
        return;
    }
    const QPointF back = way / length * -size;
    const QPointF wide(-back.y() * 0.4, back.x() * 0.4);
    painter.setPen(filled ? QPen(Qt::NoPen) : pen(color, 1));
    painter.setBrush(filled ? QBrush(color) : QBrush(Qt::NoBrush));
    if (filled) {
        painter.drawPolygon(QPolygonF({tip, tip + back + wide, tip + back - wide}));
    } else {
        painter.drawPolyline(QPolygonF({tip + back + wide, tip, tip + back - wide}));
    }
}

}  // namespace gullymark::shell
