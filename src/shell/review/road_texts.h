#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QString>

#include <vector>

namespace gullymark::shell {

struct RoadLabel {
    QString text;
    QRectF box;
    QColor color;
};

/// Texts of a picture, none of which covers another or is cut by the edge of the area.
class RoadTexts {
  public:
    RoadTexts(QPainter& painter, const QRectF& area);

    /// No text is to stand here.
    void block(const QRectF& box);
    /// Takes a place for a text where it is free.
    [[nodiscard]] bool take(const QRectF& box);
    /// Draws a text in a place that was taken.
    void draw(const QString& text, const QRectF& box, const QColor& color);
    /// Both; false where the place is not free.
    bool place(const QString& text, const QRectF& box, const QColor& color) {
        const bool is_free = take(box);
        if (is_free) {
            draw(text, box, color);
        }
        return is_free;
    }

  private:
    [[nodiscard]] std::size_t strip_of(double x) const;
    void keep(const QRectF& box, double gap);

    QPainter& painter_;
    QRectF area_;
    std::vector<std::vector<QRectF>> taken_;  // by upright strips of the area
};

}  // namespace gullymark::shell
