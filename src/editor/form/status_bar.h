#pragma once

/// The status bars of the workspace, as the open inlet and the project fill them.
namespace gullymark::editor {

/// All panels: the project, the kind of the inlet, the units; the number of the inlet.
void update_statusbar();

/// The panels that follow the inlet alone: its kind and its number.
void update_currentstatusbar();

}  // namespace gullymark::editor
