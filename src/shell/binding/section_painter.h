#pragma once

#include <QPainter>
#include <QRectF>

#include "section/section.h"
#include "shell/binding/section_colors.h"

namespace gullymark::shell {

/// Paints a section into `area`, with the painter's font: on a window, on paper and for the help the same. Nothing is
/// painted outside of the area, and the painter's state stays as it was.
///
/// Solved water is plain, the water beyond the allowable spread has another color and is hatched, and water that is not
/// solved is hatched the other way.
void paint_section(QPainter& painter, const QRectF& area, const section::Section& section,
                   const SectionColors& colors);

}  // namespace gullymark::shell
