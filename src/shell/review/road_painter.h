#pragma once

#include <cstddef>
#include <optional>

#include <QPainter>
#include <QRectF>

#include "review/road_plan.h"
#include "shell/review/road_colors.h"
#include "shell/review/road_layout.h"

namespace gullymark::shell {

/// Paints a placed road with the painter's font. A text that would cover another one is left away: that of the current
/// inlet comes first, then those of what was found wrong. Nothing is painted outside of the area, and the painter's state
/// stays as it was.
void paint_road(QPainter& painter, const RoadLayout& layout, const RoadColors& colors,
                std::optional<std::size_t> current = std::nullopt);

/// Paints the stretch of a road between two stations into `rect`: on a sheet, one strip after the other.
void paint_road(QPainter& painter, const QRectF& rect, const review::RoadPlan& plan, double from, double to,
                const RoadColors& colors);

/// The height that `paint_road` needs for all lanes of a plan.
double road_height(const review::RoadPlan& plan, const QFontMetricsF& font);

}  // namespace gullymark::shell
