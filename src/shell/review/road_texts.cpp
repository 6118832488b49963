#include "shell/review/road_texts.h"

#include <algorithm>

namespace gullymark::shell {
namespace {

constexpr std::size_t strips = 32;

}  // namespace

RoadTexts::RoadTexts(QPainter& painter, const QRectF& area)
    : painter_(painter), area_(area), taken_(strips) {}

std::size_t RoadTexts::strip_of(double x) const {
    const double part = (x - area_.left()) / area_.width() * static_cast<double>(strips);
    return static_cast<std::size_t>(std::clamp(part, 0.0, static_cast<double>(strips - 1)));
}

bool RoadTexts::take(const QRectF& box) {
    if (!area_.contains(box)) {
        return false;
    }
    const double gap = box.height() / 5;
    const QRectF wide = box.adjusted(-gap, 0, gap, 0);
    const std::size_t first = strip_of(wide.left());
    const std::size_t last = strip_of(wide.right());
    for (std::size_t strip = first; strip <= last; ++strip) {
        if (std::ranges::any_of(taken_[strip], [&](const QRectF& other) { return other.intersects(wide); })) {
            return false;
        }
    }
    keep(box, gap);
    return true;
}

void RoadTexts::block(const QRectF& box) {
    if (area_.intersects(box)) {
        keep(box, 0);
    }
}

void RoadTexts::keep(const QRectF& box, double gap) {
    const std::size_t last = strip_of(box.right() + gap);
    for (std::size_t strip = strip_of(box.left() - gap); strip <= last; ++strip) {
        taken_[strip].push_back(box);
    }
}

void RoadTexts::draw(const QString& text, const QRectF& box, const QColor& color) {
    painter_.setPen(color);
    painter_.drawText(box, Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip, text);
}

}  // namespace gullymark::shell
