#pragma once

#include <cstddef>
#include <functional>
#include <optional>

#include <QWidget>

#include "review/review_file.h"

namespace gullymark::shell {

class RoadCanvas;
class RoadLegend;

/// The page of the road: its picture with commands and a legend.
class RoadPicture : public QWidget {
  public:
    explicit RoadPicture(QWidget* parent = nullptr);

    /// Told when an inlet is picked, and when Enter or a double click asks to see it.
    std::function<void(std::size_t inlet)> picked;
    std::function<void()> entered;

    /// What is shown from now on; it must outlive the page or the next call. The picture is made when it is looked at.
    void show_project(const review::Reviewed& reviewed);
    /// Marks an inlet and brings it into sight; nothing is told.
    void set_current(std::optional<std::size_t> inlet);

    [[nodiscard]] RoadCanvas& canvas() const { return *canvas_; }

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void build_commands(class QLayout& layout);
    void draw_when_seen();

    const review::Reviewed* waiting_ = nullptr;  // what is not drawn yet
    std::optional<std::size_t> current_;
    RoadCanvas* canvas_ = nullptr;
    RoadLegend* legend_ = nullptr;
};

}  // namespace gullymark::shell
