#include "shell/review/road_picture.h"

#include <utility>

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include "review/road_plan.h"
#include "shell/review/road_canvas.h"
#include "shell/review/road_legend.h"

namespace gullymark::shell {
namespace {

QToolButton* command(const char* name, const QString& caption, const QString& tip) {
    auto* button = new QToolButton;
    button->setObjectName(QString::fromLatin1(name));
    button->setText(caption);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setAutoRaise(true);
    return button;
}

}  // namespace

RoadPicture::RoadPicture(QWidget* parent)
    : QWidget(parent), canvas_(new RoadCanvas), legend_(new RoadLegend) {
    auto* layout = new QVBoxLayout(this);
    auto* commands = new QHBoxLayout;
    build_commands(*commands);
    layout->addLayout(commands);
    layout->addWidget(canvas_, 1);
    layout->addWidget(legend_);
    setFocusProxy(canvas_);
    canvas_->picked = [this](std::size_t inlet) {
        current_ = inlet;
        if (picked) {
            picked(inlet);
        }
    };
    canvas_->entered = [this] {
        if (entered) {
            entered();
        }
    };
}

void RoadPicture::build_commands(QLayout& layout) {
    constexpr double step = 1.6;
    auto* closer = command("road_closer", QStringLiteral("+"), QStringLiteral("Zoom in (+)"));
    auto* farther = command("road_farther", QStringLiteral("\u2212"), QStringLiteral("Zoom out (\u2212)"));
    auto* whole = command("road_whole", QStringLiteral("Whole road"), QStringLiteral("Whole road (Ctrl+0)"));
    auto* signs = command("road_legend", QStringLiteral("Legend"), QStringLiteral("What the signs mean"));
    signs->setCheckable(true);
    signs->setChecked(true);
    connect(closer, &QToolButton::clicked, this, [this] { canvas_->zoom(step); });
    connect(farther, &QToolButton::clicked, this, [this] { canvas_->zoom(1 / step); });
    connect(whole, &QToolButton::clicked, this, [this] { canvas_->fit(); });
    connect(signs, &QToolButton::toggled, legend_, &QWidget::setVisible);
    auto* hint = new QLabel(QStringLiteral("Along the road to scale, across it not"));
    hint->setObjectName(QStringLiteral("road_scale"));
    hint->setToolTip(QStringLiteral(
        "Left and Right pick the next inlet, Home and End the first and the last, Enter shows it.\n"
        "Drag, Shift+arrows or Shift+wheel pan; the wheel, + and - zoom; Ctrl+0 shows the whole road."));
    hint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    hint->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    for (QWidget* each : {static_cast<QWidget*>(closer), static_cast<QWidget*>(farther),
                          static_cast<QWidget*>(whole), static_cast<QWidget*>(signs)}) {
        layout.addWidget(each);
    }
    dynamic_cast<QHBoxLayout&>(layout).addWidget(hint, 1);
}

void RoadPicture::show_project(const review::Reviewed& reviewed) {
    waiting_ = &reviewed;
    draw_when_seen();
}

void RoadPicture::set_current(std::optional<std::size_t> inlet) {
    current_ = inlet;
    if (waiting_ == nullptr && canvas_->current() != inlet) {
        canvas_->set_current(inlet);
    }
}

void RoadPicture::draw_when_seen() {
    if (waiting_ == nullptr || !isVisible()) {
        return;
    }
    const auto& reviewed = *std::exchange(waiting_, nullptr);
    canvas_->show_road(review::plan_road(reviewed.project, reviewed.findings, &reviewed.fresh));
    canvas_->set_current(current_);
}

void RoadPicture::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    draw_when_seen();
}

}  // namespace gullymark::shell
