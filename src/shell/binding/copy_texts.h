#pragma once

#include <QWidget>

#include "editor/form/inlet_screen.h"

/// Copying from fields that take no focus: most of the form in "VIEW", and the results in every mode.
namespace gullymark::shell {

/// Gives `form`, which shows `screen`, a menu of the right mouse button that copies the field below the mouse, and
/// Ctrl+Shift+C, which copies the page in front: for each field its meaning, its text and its unit, with tabs between
/// them as a spreadsheet takes them. A field that can be typed in keeps the toolkit's own menu.
void add_copying(QWidget& form, const editor::InletScreen& screen);

}  // namespace gullymark::shell
