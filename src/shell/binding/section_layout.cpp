#include "shell/binding/section_layout.h"

#include <utility>

#include "shell/binding/qt_text.h"

namespace gullymark::shell {
namespace {

using section::Section;

using Rooms = std::vector<QRectF>;

/// Where three views can stand: in a row with the inlet in the middle, both approaches to the right of it one below the
/// other, or both below it.
std::vector<Rooms> arrangements(const QRectF& area, double gap) {
    const double side = (area.width() - 2 * gap) * 0.28;
    const double middle = area.width() - 2 * (side + gap);
    const double wide = (area.width() - gap) * 0.6;
    const double narrow = area.width() - gap - wide;
    const double half = (area.width() - gap) / 2;
    const double high = (area.height() - gap) * 0.58;
    const double low = area.height() - gap - high;
    const double level = (area.height() - gap) / 2;
    return {{{area.left() + side + gap, area.top(), middle, area.height()},
             {area.left(), area.top(), side, area.height()},
             {area.right() - side, area.top(), side, area.height()}},
            {{area.left(), area.top(), wide, area.height()},
             {area.right() - narrow, area.top(), narrow, level},
             {area.right() - narrow, area.bottom() - level, narrow, level}},
            {{area.left(), area.top(), area.width(), high},
             {area.left(), area.bottom() - low, half, low},
             {area.right() - half, area.bottom() - low, half, low}}};
}

std::vector<PlacedView> place_in(const Rooms& rooms, const Section& section, const QFontMetricsF& font) {
    std::vector<PlacedView> placed;
    for (std::size_t i = 0; i < rooms.size(); ++i) {
        placed.push_back(place_view(rooms.at(i), section.views.at(i), section.exaggeration, font));
    }
    return placed;
}

/// The arrangement in which the views become largest, the inlet counting most.
std::vector<PlacedView> place_views(const QRectF& area, const Section& section, const QFontMetricsF& font) {
    if (section.views.size() < 3) {
        return place_in({area}, section, font);
    }
    std::vector<PlacedView> best;
    double most = -1;
    for (const Rooms& rooms : arrangements(area, 10 * font_unit(font))) {
        auto placed = place_in(rooms, section, font);
        const auto worth = [](const PlacedView& view) {
            constexpr double loss = 0.1;
            return view.drawing.width() * (1 - loss * view.losses);
        };
        const double size = 1.5 * worth(placed[0]) + worth(placed[1]) + worth(placed[2]);
        if (size > most) {
            most = size;
            best = std::move(placed);
        }
    }
    return best;
}

/// The notes in lines at the bottom of the area, which loses them.
std::vector<PlacedText> place_notes(QRectF& area, const Section& section, const QFontMetricsF& font) {
    const QString between = QStringLiteral("; ");
    std::vector<PlacedText> lines;
    QString line;
    const auto end_line = [&] {
        if (!line.isEmpty()) {
            lines.push_back({font.elidedText(line, Qt::ElideRight, area.width()), {}});
        }
    };
    for (const std::string& note : section.notes) {
        const QString text = to_qt(note);
        if (!line.isEmpty() && font.horizontalAdvance(line + between + text) > area.width()) {
            end_line();
            line = text;
        } else {
            line += (line.isEmpty() ? QString() : between) + text;
        }
    }
    end_line();
    double y = area.bottom() - font.height() * static_cast<double>(lines.size());
    area.setBottom(y - 2 * font_unit(font));
    for (PlacedText& placed : lines) {
        placed.box = QRectF(area.left(), y, font.horizontalAdvance(placed.text), font.height());
        y += font.height();
    }
    return lines;
}

}  // namespace

PlacedSection place_section(const QRectF& area, const Section& section, const QFontMetricsF& font) {
    PlacedSection placed;
    QRectF room = area;
    if (area.height() > 5 * font.height()) {
        placed.notes = place_notes(room, section, font);
    }
    placed.views = place_views(room, section, font);
    return placed;
}

}  // namespace gullymark::shell
