#pragma once

#include <QPainter>
#include <QPointF>

#include "review/road_shapes.h"
#include "shell/review/road_colors.h"

/// The signs of a road, each in a circle of `size` around `at`; a pen is `unit` wide times its own width.
namespace gullymark::shell {

/// What is wrong with water, by a shape of its own.
enum class WaterMark : unsigned char {
    stale,    // a diamond
    lost,     // a cross
    loop,     // a ring
    twice,    // two bars
    missing,  // an open triangle
};

struct SymbolPainter {
    QPainter& painter;
    const RoadColors& colors;
    double unit = 1;

    /// An inlet by its kind: a bar for a curb opening, a lattice for a grate, both for a combination, a slit for a slot, a
    /// trapezoid for a ditch, a disk for what is no kind; in a sump with a ring around it.
    void inlet(const QPointF& at, double size, section::Inlet kind, bool in_sump, const QColor& color) const;

    void mark(const QPointF& at, double size, WaterMark mark) const;

    /// Water beyond the allowable spread: another color, and hatched.
    void beyond(const QRectF& box) const;

    /// The sign of a severity: an octagon, a triangle, a disk.
    void severity(const QPointF& at, double size, review::Severity severity) const;

    /// The head of an arrow that comes from `from`; an open one for a way that is dry.
    void head(const QPointF& tip, const QPointF& from, double size, const QColor& color, bool filled) const;

    [[nodiscard]] QPen pen(const QColor& color, double width, Qt::PenStyle style = Qt::SolidLine) const {
        return {QBrush(color), width * unit, style, Qt::FlatCap, Qt::MiterJoin};
    }
};

}  // namespace gullymark::shell
