#pragma once

#include <QIcon>
#include <QImage>
#include <QPalette>
#include <QString>

#include "review/finding.h"

/// How a severity looks: a shape of its own and a color, which stand beside its word.
namespace gullymark::shell {

/// "Wrong", "Beyond" or "Doubtful".
QString severity_text(review::Severity severity);

/// An octagon with a cross, a triangle with an exclamation mark, a disk with a question mark, in the colors of the palette in
/// force whenever it is painted.
QIcon severity_icon(review::Severity severity);

/// The same sign for a text, in the colors of a palette, so many pixels wide and high.
QImage severity_image(review::Severity severity, const QPalette& palette, int pixels);

/// The color of a severity, readable as a text on the ground of lists and windows.
QColor severity_color(review::Severity severity, const QPalette& palette);

}  // namespace gullymark::shell
