#pragma once

#include <array>

#include <QColor>
#include <QPalette>

#include "review/finding.h"
#include "shell/binding/section_colors.h"

namespace gullymark::shell {

/// The colors of a road. What an inlet or an arrow tells by its color, it tells by its shape too.
struct RoadColors {
    SectionColors section;             // paper, ink, water and what is beyond the allowable spread
    QColor pavement;                   // the road itself
    QColor flow;                       // bypass that is taken
    QColor marked;                     // the current inlet
    std::array<QColor, 3> severities;  // by review::Severity

    [[nodiscard]] const QColor& of(review::Severity severity) const {
        return severities.at(static_cast<std::size_t>(severity));
    }
};

/// The colors on the ground of the text fields of a palette.
[[nodiscard]] RoadColors road_colors(const QPalette& palette);

/// The colors on white paper.
[[nodiscard]] RoadColors road_colors_on_paper();

}  // namespace gullymark::shell
