#pragma once

#include <vector>

#include "section/section.h"
#include "shell/binding/view_layout.h"

/// Where all views of a section and its notes stand on a widget or a sheet.
namespace gullymark::shell {

struct PlacedSection {
    std::vector<PlacedView> views;
    std::vector<PlacedText> notes;
};

/// Places a section in `area`, with texts in such a font. `section` must outlive what comes back.
[[nodiscard]] PlacedSection place_section(const QRectF& area, const section::Section& section,
                                          const QFontMetricsF& font);

}  // namespace gullymark::shell
