#pragma once

#include <vector>

#include <QColor>
#include <QRect>
#include <QString>

class QWidget;

namespace gullymark::testing_support {

struct PaintedText {
    QString text;
    QRect where;  // in the window
    QColor color;
};

/// Every text that a window paints, whatever widget or style paints it.
std::vector<PaintedText> painted_texts(QWidget& window);

}  // namespace gullymark::testing_support
