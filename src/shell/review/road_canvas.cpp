#include "shell/review/road_canvas.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

#include "shell/binding/qt_text.h"
#include "shell/binding/view_layout.h"
#include "shell/review/road_painter.h"

namespace gullymark::shell {
namespace {

constexpr double zoom_step = 1.25;
constexpr double largest_scale = 40;       // pixels for a ft or m
constexpr double longest_picture = 1.0e9;  // what a scroll bar can tell

/// The sentence of an inlet as the toolkit shows it whole, whatever signs are in it.
QString tip_of(const review::PlannedInlet& inlet) {
    return "<p style='white-space:pre-wrap'>" + to_qt(inlet.sentence).toHtmlEscaped() + "</p>";
}

}  // namespace

RoadCanvas::RoadCanvas(QWidget* parent) : QAbstractScrollArea(parent) {
    setObjectName(QStringLiteral("road"));
    setAccessibleName(QStringLiteral("The road"));
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    horizontalScrollBar()->setFocusPolicy(Qt::NoFocus);
    verticalScrollBar()->setFocusPolicy(Qt::NoFocus);
    setMinimumSize(240, 160);
}

double RoadCanvas::unit() const {
    return font_unit(QFontMetricsF(font()));
}

/// Beside the first and the last inlet there is room for their numbers and their water.
double RoadCanvas::margin() const {
    return 70 * unit();
}

double RoadCanvas::fitting_scale() const {
    const double width = std::max(viewport()->width() - 2 * margin(), 50.0);
    return width / (plan_.to - plan_.from);
}

RoadView RoadCanvas::view() const {
    const double scale = scale_ > 0 ? scale_ : fitting_scale();
    const double from = plan_.from + (horizontalScrollBar()->value() - margin()) / scale;
    return {.area = QRectF(viewport()->rect()),
            .from = from,
            .to = from + std::max(viewport()->width(), 1) / scale,
            .scrolled = static_cast<double>(verticalScrollBar()->value()),
            .unit = unit()};
}

void RoadCanvas::fit_bars() {
    if (fits_ || !(scale_ > 0)) {
        scale_ = fitting_scale();
    }
    const double length = (plan_.to - plan_.from) * scale_ + 2 * margin();
    auto& along = *horizontalScrollBar();
    along.setRange(0, fits_ ? 0 : static_cast<int>(std::max(0.0, length - viewport()->width())));
    along.setPageStep(viewport()->width());
    along.setSingleStep(viewport()->width() / 10 + 1);
    const RoadLayout layout = placed();
    const double height = layout.lane_height() * static_cast<double>(plan_.lanes.size());
    auto& over = *verticalScrollBar();
    over.setRange(0, static_cast<int>(std::max(0.0, std::ceil(height - layout.lanes().height()))));
    over.setPageStep(static_cast<int>(layout.lanes().height()));
    over.setSingleStep(static_cast<int>(layout.lane_height() / 6));
    viewport()->update();
}

void RoadCanvas::show_road(review::RoadPlan plan) {
    const bool same_place =
        plan.from == plan_.from && plan.to == plan_.to && plan.lanes.size() == plan_.lanes.size();
    plan_ = std::move(plan);
    if (current_ && *current_ >= plan_.inlets.size()) {
        current_.reset();
    }
    fits_ = fits_ || !same_place;
    fit_bars();
    tell_current();
}

void RoadCanvas::set_current(std::optional<std::size_t> inlet) {
    current_ = inlet && *inlet < plan_.inlets.size() ? inlet : std::nullopt;
    if (current_) {
        bring_into_sight(*current_);
    }
    tell_current();
    viewport()->update();
}

void RoadCanvas::tell_current() {
    setAccessibleDescription(current_ ? to_qt(plan_.inlets[*current_].sentence) : QString());
}

void RoadCanvas::zoom(double times) {
    const double x = current_ ? placed().x_of(plan_.inlets[*current_].at) : viewport()->width() / 2.0;
    zoom_about(times, std::clamp(x, 0.0, static_cast<double>(viewport()->width())));
}

void RoadCanvas::zoom_about(double times, double x) {
    const double fitting = fitting_scale();
    const double most = std::max(fitting, std::min(largest_scale, longest_picture / (plan_.to - plan_.from)));
    const double wanted = std::clamp(scale_ * times, fitting, most);
    const double station = view().from + x / scale_;
    fits_ = wanted <= fitting * 1.000001;
    scale_ = wanted;
    fit_bars();
    const double value = (station - plan_.from) * scale_ + margin() - x;
    horizontalScrollBar()->setValue(static_cast<int>(std::lround(std::clamp(value, 0.0, longest_picture))));
}

void RoadCanvas::fit() {
    fits_ = true;
    fit_bars();
}

void RoadCanvas::bring_into_sight(std::size_t inlet) {
    const QPointF at = placed().symbol(inlet);
    const double edge = std::min(margin(), viewport()->width() / 3.0);
    auto& along = *horizontalScrollBar();
    if (at.x() < edge) {
        along.setValue(along.value() + static_cast<int>(std::floor(at.x() - edge)));
    } else if (at.x() > viewport()->width() - edge) {
        along.setValue(along.value() + static_cast<int>(std::ceil(at.x() - viewport()->width() + edge)));
    }
    const RoadLayout layout = placed();
    const QRectF lane = layout.lane(plan_.inlets[inlet].lane);
    const QRectF seen = layout.lanes();
    auto& over = *verticalScrollBar();
    if (lane.bottom() > seen.bottom()) {
        over.setValue(over.value() + static_cast<int>(std::ceil(lane.bottom() - seen.bottom())));
    }
    if (lane.top() < seen.top()) {
        over.setValue(over.value() - static_cast<int>(std::ceil(seen.top() - lane.top())));
    }
}

void RoadCanvas::pick(std::size_t inlet) {
    set_current(inlet);
    if (picked) {
        picked(inlet);
    }
}

void RoadCanvas::step(int by) {
    if (plan_.along.empty()) {
        return;
    }
    const auto last = static_cast<std::ptrdiff_t>(plan_.along.size()) - 1;
    const std::ptrdiff_t now =
        current_ ? static_cast<std::ptrdiff_t>(plan_.places[*current_]) : (by > 0 ? -1 : last + 1);
    pick(plan_.along[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(now + by, 0, last))]);
}

bool RoadCanvas::pan_by_key(const QKeyEvent& event) {
    const bool with_shift = event.modifiers().testFlag(Qt::ShiftModifier);
    auto& along = *horizontalScrollBar();
    auto& over = *verticalScrollBar();
    switch (event.key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
            if (with_shift) {
                along.triggerAction(event.key() == Qt::Key_Left ? QAbstractSlider::SliderSingleStepSub
                                                                : QAbstractSlider::SliderSingleStepAdd);
            }
            return with_shift;
        case Qt::Key_Up:
        case Qt::Key_Down:
            over.triggerAction(event.key() == Qt::Key_Up ? QAbstractSlider::SliderSingleStepSub
                                                         : QAbstractSlider::SliderSingleStepAdd);
            return true;
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            along.triggerAction(event.key() == Qt::Key_PageUp ? QAbstractSlider::SliderPageStepSub
                                                              : QAbstractSlider::SliderPageStepAdd);
            return true;
        default:
            return false;
    }
}

void RoadCanvas::keyPressEvent(QKeyEvent* event) {
    if (event->modifiers().testFlag(Qt::AltModifier) || pan_by_key(*event)) {
        event->setAccepted(!event->modifiers().testFlag(Qt::AltModifier));
        return;
    }
    constexpr int whole_road = std::numeric_limits<int>::max();
    const bool with_control = event->modifiers().testFlag(Qt::ControlModifier);
    switch (event->key()) {
        case Qt::Key_Left:
            return step(-1);
        case Qt::Key_Right:
            return step(1);
        case Qt::Key_Home:
            return step(-whole_road);
        case Qt::Key_End:
            return step(whole_road);
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            return zoom(zoom_step);
        case Qt::Key_Minus:
            return zoom(1 / zoom_step);
        case Qt::Key_0:
            if (with_control) {
                return fit();
            }
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (current_ && entered) {
                return entered();
            }
            break;
        default:
            break;
    }
    event->ignore();
}

void RoadCanvas::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return event->ignore();
    }
    pressed_ = event->pos();
    dragged_ = event->pos();
    dragging_ = false;
}

void RoadCanvas::mouseMoveEvent(QMouseEvent* event) {
    if (!event->buttons().testFlag(Qt::LeftButton)) {
        return;
    }
    if (!dragging_ && (event->pos() - pressed_).manhattanLength() >= QApplication::startDragDistance()) {
        dragging_ = true;
        viewport()->setCursor(Qt::ClosedHandCursor);
    }
    if (dragging_) {
        const QPoint way = event->pos() - dragged_;
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - way.x());
        verticalScrollBar()->setValue(verticalScrollBar()->value() - way.y());
        dragged_ = event->pos();
    }
}

void RoadCanvas::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return event->ignore();
    }
    viewport()->unsetCursor();
    if (!std::exchange(dragging_, false)) {
        if (const auto hit = placed().inlet_at(event->position())) {
            pick(*hit);
        }
    }
}

void RoadCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && placed().inlet_at(event->position()) && entered) {
        entered();
    }
}

void RoadCanvas::wheelEvent(QWheelEvent* event) {
    const QPoint turned = event->angleDelta();
    const int by = turned.y() != 0 ? turned.y() : turned.x();
    constexpr double one_notch = 120;
    // Some desktops turn the wheel with Shift or Alt to the side by themselves.
    if (event->modifiers().testFlag(Qt::ShiftModifier) ||
        (turned.y() == 0 && turned.x() != 0 && !event->modifiers().testFlag(Qt::AltModifier))) {
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - by);
    } else if (event->modifiers().testFlag(Qt::AltModifier)) {
        verticalScrollBar()->setValue(verticalScrollBar()->value() - by / 2);
    } else {
        zoom_about(std::pow(zoom_step, by / one_notch), event->position().x());
    }
    event->accept();
}

bool RoadCanvas::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto& help = dynamic_cast<QHelpEvent&>(*event);
        if (const auto hit = placed().inlet_at(help.pos())) {
            QToolTip::showText(help.globalPos(), tip_of(plan_.inlets[*hit]), viewport());
        } else {
            QToolTip::hideText();
        }
        return true;
    }
    return QAbstractScrollArea::viewportEvent(event);
}

void RoadCanvas::scrollContentsBy(int /*dx*/, int /*dy*/) {
    viewport()->update();
}

void RoadCanvas::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    fit_bars();
}

void RoadCanvas::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(viewport());
    painter.setFont(font());
    paint_road(painter, placed(), road_colors(palette()), current_);
}

}  // namespace gullymark::shell
