#pragma once

#include <cstddef>
#include <functional>
#include <optional>

#include <QAbstractScrollArea>

#include "review/road_plan.h"
#include "shell/review/road_layout.h"

namespace gullymark::shell {

/// A road to look over and to pick from.
///
/// Mouse: a click picks, a drag pans, the wheel zooms about the pointer, with Shift it pans along the road, with Alt over its
/// lanes. Keys: Left and Right pick the inlet before and behind along the road, Home and End the first and the last one;
/// with Shift the arrows pan, as Up and Down do by themselves; plus and minus zoom about the current inlet, Ctrl+0 shows all
/// of the road; Enter opens the current inlet.
class RoadCanvas : public QAbstractScrollArea {
  public:
    explicit RoadCanvas(QWidget* parent = nullptr);

    /// Told when the user picks an inlet, and when Enter or a double click asks to see it.
    std::function<void(std::size_t inlet)> picked;
    std::function<void()> entered;

    /// Shows a road. Where it has the stretch and the lanes of the one before, the place in it stays.
    void show_road(review::RoadPlan plan);
    /// Marks an inlet and brings it into sight; nothing is told.
    void set_current(std::optional<std::size_t> inlet);

    void zoom(double times);
    void fit();

    [[nodiscard]] const review::RoadPlan& plan() const { return plan_; }
    [[nodiscard]] std::optional<std::size_t> current() const { return current_; }
    /// Where the road stands now.
    [[nodiscard]] RoadLayout placed() const { return {plan_, view()}; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

  private:
    [[nodiscard]] RoadView view() const;
    [[nodiscard]] double unit() const;
    [[nodiscard]] double margin() const;
    [[nodiscard]] double fitting_scale() const;
    void fit_bars();
    void zoom_about(double times, double x);
    void bring_into_sight(std::size_t inlet);
    void pick(std::size_t inlet);
    void step(int by);
    bool pan_by_key(const QKeyEvent& event);
    void tell_current();

    review::RoadPlan plan_;
    std::optional<std::size_t> current_;
    double scale_ = 0;  // pixels for each ft or m
    bool fits_ = true;  // follows the window's width
    bool dragging_ = false;
    QPoint pressed_;
    QPoint dragged_;
};

}  // namespace gullymark::shell
