#pragma once

#include <vector>

#include <QFontMetricsF>
#include <QLineF>
#include <QRectF>
#include <QString>

#include "section/view.h"

/// Where one view of a section and its texts stand. No text covers another or is cut.
namespace gullymark::shell {

struct PlacedText {
    QString text;
    QRectF box;
};

/// A dimension line between two extension lines.
struct PlacedDimension {
    QLineF line;
    QLineF from;  // from the measured point to the dimension line
    QLineF to;
    PlacedText label;
    bool beyond = false;
};

/// A text below the section with a leader to its point of the ground.
struct PlacedMark {
    PlacedText label;
    QLineF leader;
};

/// One view in its place. x and y have one scale, but for the exaggeration of y.
struct PlacedView {
    const section::View* view = nullptr;
    QRectF room;     // with title and dimensions
    QRectF drawing;  // the frame of the view
    double scale = 1;
    double exaggeration = 1;
    std::vector<PlacedText> title;  // in lines
    std::vector<PlacedDimension> dimensions;
    std::vector<PlacedMark> marks;
    int losses =
        0;  // what found no room: steps of detail left away, and texts that cover their dimension line

    [[nodiscard]] QPointF at(const section::Point& point) const;
};

/// Places a view in its room, with texts in such a font, with as much detail as leaves the drawing most of the width:
/// first the slopes are left away, then widths, heights and the spread. `view` must outlive what comes back.
[[nodiscard]] PlacedView place_view(const QRectF& room, const section::View& view, double exaggeration,
                                    const QFontMetricsF& font);

/// A length that follows the font: 1 for the usual font of a screen.
[[nodiscard]] double font_unit(const QFontMetricsF& font);

}  // namespace gullymark::shell
