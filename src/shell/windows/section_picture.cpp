#include "shell/windows/section_picture.h"

#include <algorithm>

#include <QPainter>

#include "engine/unit_constants.h"
#include "shell/binding/qt_text.h"
#include "shell/binding/section_painter.h"

namespace gullymark::shell {

SectionPicture::SectionPicture(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(QStringLiteral("Section of the inlet"));
}

QSize SectionPicture::sizeHint() const {
    return {480, 240};
}

QSize SectionPicture::minimumSizeHint() const {
    return {260, 160};
}

bool SectionPicture::is_up_to_date() const {
    return source_ && source_->water == water_ && source_->units == engine::UnitSystem &&
           std::ranges::all_of(engine::all_columns, [this](engine::Column column) {
               return source_->texts.at(static_cast<std::size_t>(column)) == record_->value(column);
           });
}

void SectionPicture::follow(section::Water water) {
    water_ = water;
    if (record_ != nullptr && isVisible() && !is_up_to_date()) {
        draw_anew();
    }
}

void SectionPicture::draw_anew() {
    source_.emplace(Source{.texts = {}, .water = water_, .units = engine::UnitSystem});
    for (const engine::Column column : engine::all_columns) {
        source_->texts.at(static_cast<std::size_t>(column)) = record_->value(column);
    }
    drawn_ = section::draw_section(*record_, water_);
    if (const QString sentence = to_qt(drawn_.sentence); sentence != accessibleDescription()) {
        setAccessibleDescription(sentence);
        setToolTip(sentence);
    }
    update();
}

void SectionPicture::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    follow(water_);
}

void SectionPicture::paintEvent(QPaintEvent* /*event*/) {
    if (drawn_.views.empty()) {
        return;
    }
    constexpr double margin = 6;
    const SectionColors colors = section_colors(palette());
    QPainter painter(this);
    painter.fillRect(rect(), colors.paper);
    paint_section(painter, QRectF(rect()).adjusted(margin, margin, -margin, -margin), drawn_, colors);
    painter.setPen(colors.faint);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace gullymark::shell
