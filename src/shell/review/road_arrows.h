#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "shell/review/road_layout.h"
#include "shell/review/road_symbols.h"
#include "shell/review/road_texts.h"

namespace gullymark::shell {

/// Paints the arrows of bypass that are in view, and gives back where their flows may be told, the worst first.
[[nodiscard]] std::vector<RoadLabel> paint_arrows(const SymbolPainter& signs, const RoadLayout& layout,
                                                  std::optional<std::size_t> current);

/// The pen of an arrow, the mark in its middle, and whether its head is filled.
struct ArrowLook {
    QColor color;
    Qt::PenStyle style = Qt::SolidLine;
    double width = 1.4;
    std::optional<WaterMark> mark;
    bool filled = true;
};

[[nodiscard]] ArrowLook look_of(review::Flow flow, const RoadColors& colors);

}  // namespace gullymark::shell
