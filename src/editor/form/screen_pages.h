#pragma once

#include "editor/form/inlet_screen.h"

/// What the design form and the record view do alike when a page is shown, each on its own screen.
namespace gullymark::editor {

/// Tab 1: in a sump the right side is shown and the frames say "LEFT" and "RIGHT".
void show_discharge_frames(InletScreen& screen);

/// Tab 1: the check boxes agree with the texts of the override columns, and open what may then be typed.
void show_overrides(InletScreen& screen);

/// Tab 2: the captions that follow type and location.
void show_inlet_captions(InletScreen& screen);

/// Tab 3: the captions of the results; the frame is disabled.
void show_result_captions(InletScreen& screen);

}  // namespace gullymark::editor
