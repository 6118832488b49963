#include "shell/review/road_legend.h"

#include <array>
#include <cmath>
#include <functional>
#include <vector>

#include "shell/binding/view_layout.h"
#include "shell/review/road_arrows.h"
#include "shell/review/road_symbols.h"

namespace gullymark::shell {
namespace {

using review::Flow;
using review::Severity;
using section::Inlet;

struct Entry {
    const char* text;
    std::function<void(const SymbolPainter&, const QRectF&)> paint;
};

Entry kind(const char* text, Inlet inlet, bool in_sump = false) {
    return {text, [inlet, in_sump](const SymbolPainter& with, const QRectF& box) {
                with.inlet(box.center(), (in_sump ? 5.5 : 7) * with.unit, inlet, in_sump,
                           with.colors.section.ink);
            }};
}

Entry severity(const char* text, Severity worst) {
    return {text, [worst](const SymbolPainter& with, const QRectF& box) {
                with.severity(box.center(), 5 * with.unit, worst);
            }};
}

Entry arrow(const char* text, Flow flow) {
    return {text, [flow](const SymbolPainter& with, const QRectF& box) {
                const ArrowLook look = look_of(flow, with.colors);
                const QPointF start(box.left(), box.center().y());
                const QPointF end(box.right(), box.center().y());
                with.painter.setPen(with.pen(look.color, look.width, look.style));
                with.painter.drawLine(start, end);
                with.head(end, start, 7 * with.unit, look.color, look.filled);
                if (look.mark) {
                    with.mark(box.center(), 4 * with.unit, *look.mark);
                }
            }};
}

void paint_water(const SymbolPainter& with, const QRectF& box) {
    const double allowable = box.height() * 0.55;
    with.painter.fillRect(QRectF(box.left(), box.top(), box.width(), allowable), with.colors.section.water);
    const QRectF beyond(box.left(), box.top() + allowable, box.width(), box.height() - allowable);
    with.beyond(beyond);
    with.painter.setPen(with.pen(with.colors.section.ink, 1));
    with.painter.drawLine(beyond.topLeft(), beyond.topRight());
}

const std::vector<Entry>& entries() {
    static const std::vector<Entry> all{
        kind("curb", Inlet::curb),
        kind("grate", Inlet::grate),
        kind("combination", Inlet::combination),
        kind("slotted", Inlet::slotted),
        kind("ditch", Inlet::ditch),
        kind("in a sump", Inlet::curb, true),
        {"spread: within and beyond the allowable", paint_water},
        arrow("bypass", Flow::taken),
        arrow("bypass of 0", Flow::dry),
        arrow("stale: another carryover is stored", Flow::stale),
        arrow("taken by no inlet", Flow::nowhere),
        arrow("from an inlet that is missing", Flow::missing),
        arrow("in a loop", Flow::loop),
        arrow("counted twice", Flow::twice),
        severity("finding: wrong", Severity::wrong),
        severity("beyond what is allowed", Severity::beyond),
        severity("doubtful", Severity::doubtful),
        {"an inlet with stale results",
         [](const SymbolPainter& with, const QRectF& box) {
             with.mark(box.center(), 5 * with.unit, WaterMark::stale);
         }},
        {"loses water", [](const SymbolPainter& with,
                           const QRectF& box) { with.mark(box.center(), 5 * with.unit, WaterMark::lost); }},
    };
    return all;
}

/// Tells each entry its box, line by line; the height of all.
double place_entries(const QFontMetricsF& font, double width,
                     const std::function<void(const Entry&, const QRectF&)>& placed) {
    const double unit = font_unit(font);
    const double line = font.height() + 4 * unit;
    double x = 0;
    double y = 0;
    for (const Entry& entry : entries()) {
        const double room = 34 * unit + font.horizontalAdvance(QString::fromLatin1(entry.text)) + 14 * unit;
        if (x > 0 && x + room > width) {
            x = 0;
            y += line;
        }
        placed(entry, QRectF(x, y, room, line));
        x += room;
    }
    return y + line;
}

}  // namespace

void paint_road_legend(QPainter& painter, const QRectF& rect, const RoadColors& colors) {
    const QFontMetricsF font(painter.font(), painter.device());
    const double unit = font_unit(font);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const SymbolPainter signs{.painter = painter, .colors = colors, .unit = unit};
    place_entries(font, rect.width(), [&](const Entry& entry, const QRectF& box) {
        const QRectF at = box.translated(rect.topLeft());
        entry.paint(signs, QRectF(at.left() + 2 * unit, at.center().y() - 6 * unit, 26 * unit, 12 * unit));
        painter.setPen(colors.section.ink);
        painter.drawText(at.adjusted(34 * unit, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         QString::fromLatin1(entry.text));
    });
    painter.restore();
}

double road_legend_height(const QFontMetricsF& font, double width) {
    return place_entries(font, width, [](const Entry&, const QRectF&) {});
}

RoadLegend::RoadLegend(QWidget* parent) : QWidget(parent) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setAccessibleName(QStringLiteral("What the signs mean"));
}

int RoadLegend::heightForWidth(int width) const {
    return static_cast<int>(std::ceil(road_legend_height(QFontMetricsF(font()), width - 8.0))) + 6;
}

QSize RoadLegend::sizeHint() const {
    constexpr int usual_width = 600;
    return {usual_width, heightForWidth(usual_width)};
}

void RoadLegend::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    setFixedHeight(heightForWidth(width()));
}

void RoadLegend::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const RoadColors colors = road_colors(palette());
    painter.fillRect(rect(), colors.section.paper);
    paint_road_legend(painter, QRectF(rect()).adjusted(4, 3, -4, -3), colors);
}

}  // namespace gullymark::shell
