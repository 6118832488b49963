#include "shell/windows/results_page.h"

#include <QEvent>
#include <QGridLayout>
#include <QWidget>

namespace gullymark::shell {
namespace {

/// Watches the room that the page has.
class ResultsPage : public QObject {
  public:
    ResultsPage(QWidget& form, QWidget& frame)
        : QObject(&frame),
          frame_(frame),
          depth_(*form.findChild<QWidget*>("fixed_depth_frame")),
          picture_(*form.findChild<QWidget*>("fixed_results_picture")),
          split_(*form.findChild<QWidget*>("fixed_split_frame")),
          flow_(*form.findChild<QWidget*>("fixed_flow_frame")),
          size_(*form.findChild<QWidget*>("fixed_size_frame")),
          viewport_(*frame.parentWidget()->parentWidget()) {
        viewport_.installEventFilter(this);
        arrange(false);
    }

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Resize && has_room() != wide_) {
            arrange(!wide_);
        }
        return false;
    }

  private:
    [[nodiscard]] bool has_room() const {
        const int groups = std::max(depth_.minimumSizeHint().width(), split_.minimumSizeHint().width()) +
                           flow_.minimumSizeHint().width() + size_.minimumSizeHint().width();
        return viewport_.width() >= groups + around_groups();
    }

    /// The margins of page and frame, and the gaps between three groups.
    [[nodiscard]] int around_groups() const {
        const auto sides = [](const QMargins& margins) { return margins.left() + margins.right(); };
        const auto& grid = dynamic_cast<const QGridLayout&>(*frame_.layout());
        return sides(frame_.parentWidget()->layout()->contentsMargins()) + sides(frame_.contentsMargins()) +
               sides(grid.contentsMargins()) + 2 * grid.horizontalSpacing();
    }

    void arrange(bool wide) {
        wide_ = wide;
        auto& grid = dynamic_cast<QGridLayout&>(*frame_.layout());
        for (QWidget* part : {&depth_, &picture_, &split_, &flow_, &size_}) {
            grid.removeWidget(part);
        }
        grid.addWidget(&depth_, 0, 0);
        grid.addWidget(&picture_, 0, 1, 1, wide ? 2 : 1);
        grid.addWidget(&split_, 1, 0);
        grid.addWidget(&flow_, 1, 1);
        grid.addWidget(&size_, wide ? 1 : 2, wide ? 2 : 0);
        grid.setColumnStretch(0, wide ? 0 : 1);
        grid.setColumnStretch(1, 1);
        grid.setColumnStretch(2, wide ? 1 : 0);
        grid.setRowStretch(0, 1);
    }

    QWidget& frame_;
    QWidget& depth_;
    QWidget& picture_;
    QWidget& split_;
    QWidget& flow_;
    QWidget& size_;
    QWidget& viewport_;
    bool wide_ = false;
};

}  // namespace

void fit_results_page(QWidget& form) {
    new ResultsPage(form, *form.findChild<QWidget*>("Results_Frame"));  // owned by the frame
}

}  // namespace gullymark::shell
