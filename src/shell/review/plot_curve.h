#pragma once

#include <QPainter>
#include <QRectF>
#include <QWidget>

#include "review/flow_curve.h"
#include "shell/review/road_colors.h"

namespace gullymark::shell {

/// The units of what is plotted, as captions.
struct PlotUnits {
    QString flow;
    QString length;
    QString depth;
};

/// Plots spread (in a ditch depth) and efficiency against flow: two curves, one solid with its axis on the left, one dashed
/// with its axis on the right, the points of the inlet, and a line at the allowable spread. With the painter's font.
void paint_curve(QPainter& painter, const QRectF& area, const review::FlowCurve& curve,
                 const PlotUnits& units, const RoadColors& colors);

/// The plot on a window.
class CurvePlot : public QWidget {
  public:
    explicit CurvePlot(QWidget* parent = nullptr);

    void show_curve(review::FlowCurve curve, PlotUnits units, const QString& title);

    [[nodiscard]] const review::FlowCurve& curve() const { return curve_; }
    [[nodiscard]] QSize sizeHint() const override { return {480, 220}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {240, 150}; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    review::FlowCurve curve_;
    PlotUnits units_;
    QString title_;
};

}  // namespace gullymark::shell
