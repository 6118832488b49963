#include "shell/binding/picture.h"

#include <QPainter>

namespace gullymark::shell {

Picture::Picture(QWidget* parent)
    : QWidget(parent),
      drawing_(QStringLiteral(":/pictures/curb_inlet.svg")),
      drawn_view_(drawing_.viewBoxF()) {}

void Picture::paintEvent(QPaintEvent* /*event*/) {
    if (!drawing_.isValid() || width() == 0 || height() == 0) {
        return;
    }
    // The view takes the shape of the widget, so that the drawing keeps its own.
    const double scale = std::min(width() / drawn_view_.width(), height() / drawn_view_.height());
    QRectF view(0, 0, width() / scale, height() / scale);
    view.moveCenter(drawn_view_.center());
    drawing_.setViewBox(view);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing_.render(&painter, QRectF(rect()));
}

}  // namespace gullymark::shell
