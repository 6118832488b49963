#include "shell/review/severity_sign.h"

#include <array>
#include <cmath>
#include <numbers>

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include "review/finding_lines.h"
#include "shell/binding/contrast.h"
#include "shell/binding/qt_text.h"

namespace gullymark::shell {
namespace {

using review::Severity;

QColor color_named(Severity severity) {
    switch (severity) {
        case Severity::wrong:
            return {200, 25, 20};
        case Severity::beyond:
            return {176, 92, 0};
        case Severity::doubtful:
            break;
    }
    return {30, 95, 180};
}

/// The corners of a figure in a circle of 1, the first at `turn`.
QPolygonF corners(int count, double turn) {
    QPolygonF points;
    for (int i = 0; i < count; ++i) {
        const double angle = turn + 2 * std::numbers::pi * i / count;
        points << QPointF(std::cos(angle), std::sin(angle));
    }
    return points;
}

QPainterPath ground_of(Severity severity) {
    QPainterPath path;
    switch (severity) {
        case Severity::wrong:
            path.addPolygon(corners(8, std::numbers::pi / 8));
            break;
        case Severity::beyond:
            path.addPolygon(corners(3, -std::numbers::pi / 2).translated(0, 0.2));
            break;
        case Severity::doubtful:
            path.addEllipse(QPointF(), 0.95, 0.95);
            break;
    }
    path.closeSubpath();
    return path;
}

/// What stands on the figure, in lines of the painter's pen.
void paint_mark(QPainter& painter, Severity severity) {
    switch (severity) {
        case Severity::wrong:
            painter.drawLine(QPointF(-0.4, -0.4), QPointF(0.4, 0.4));
            painter.drawLine(QPointF(-0.4, 0.4), QPointF(0.4, -0.4));
            break;
        case Severity::beyond:
            painter.drawLine(QPointF(0, -0.25), QPointF(0, 0.2));
            painter.drawPoint(QPointF(0, 0.5));
            break;
        case Severity::doubtful: {
            QPainterPath hook;
            hook.moveTo(-0.33, -0.28);
            hook.cubicTo(-0.33, -0.8, 0.37, -0.75, 0.35, -0.27);
            hook.cubicTo(0.33, -0.02, 0.02, -0.02, 0.0, 0.22);
            painter.drawPath(hook);
            painter.drawPoint(QPointF(0, 0.56));
            break;
        }
    }
}

void paint_sign(QPainter& painter, const QRectF& rect, Severity severity, const QColor& color,
                const QColor& mark) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect.center());
    const double half = std::min(rect.width(), rect.height()) / 2;
    painter.scale(half, half);
    painter.fillPath(ground_of(severity), color);
    painter.setPen(QPen(mark, severity == Severity::doubtful ? 0.22 : 0.26, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    paint_mark(painter, severity);
    painter.restore();
}

class SeverityIcon : public QIconEngine {
  public:
    explicit SeverityIcon(Severity severity) : severity_(severity) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
        const QPalette palette = QApplication::palette();
        const bool marked = mode == QIcon::Selected;
        paint_sign(*painter, rect, severity_,
                   marked ? palette.color(QPalette::HighlightedText) : severity_color(severity_, palette),
                   palette.color(marked ? QPalette::Highlight : QPalette::Base));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
    [[nodiscard]] QIconEngine* clone() const override { return new SeverityIcon(*this); }

  private:
    Severity severity_;
};

}  // namespace

QString severity_text(Severity severity) {
    QString word = to_qt(review::severity_word(severity));
    word[0] = word[0].toUpper();
    return word;
}

QColor severity_color(Severity severity, const QPalette& palette) {
    const std::array grounds{palette.color(QPalette::Base), palette.color(QPalette::Window),
                             palette.color(QPalette::AlternateBase)};
    return readable(color_named(severity), grounds, text_contrast);
}

QIcon severity_icon(Severity severity) {
    return QIcon(new SeverityIcon(severity));
}

QImage severity_image(Severity severity, const QPalette& palette, int pixels) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paint_sign(painter, QRectF(0, 0, pixels, pixels), severity, severity_color(severity, palette),
               palette.color(QPalette::Base));
    return image;
}

}  // namespace gullymark::shell
