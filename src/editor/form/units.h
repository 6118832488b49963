#pragma once

/// The units of the project on the form.
namespace gullymark::editor {

/// The engine takes the project's units.
void follow_project_units();

/// The unit captions of the form, metric where the engine's units are; a form is drawn with the English ones.
void show_unit_captions();

}  // namespace gullymark::editor
