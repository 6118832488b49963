#pragma once

#include <QWidget>

#include "shell/binding/screen_item.h"

namespace gullymark::shell {

/// Puts one item on one of its widgets, where it differs: text, entries, caption, check mark, page, color, and whether it
/// is enabled, locked and visible. What a kind of widget does not have is passed over.
void put_on_screen(const ScreenItem& item, QWidget& widget);

}  // namespace gullymark::shell
