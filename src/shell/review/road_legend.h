#pragma once

#include <QPainter>
#include <QRectF>
#include <QWidget>

#include "shell/review/road_colors.h"

/// What the signs of a road mean.
namespace gullymark::shell {

/// Paints the legend from the top of `rect`, in as many lines as its width asks for.
void paint_road_legend(QPainter& painter, const QRectF& rect, const RoadColors& colors);

/// The height that it takes in a width.
[[nodiscard]] double road_legend_height(const QFontMetricsF& font, double width);

/// The legend on a window.
class RoadLegend : public QWidget {
  public:
    explicit RoadLegend(QWidget* parent = nullptr);

    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace gullymark::shell
