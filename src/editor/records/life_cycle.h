#pragma once

/// The inlet editor, the design form with the rows behind it, from its load to its end.
namespace gullymark::editor {

/// Loads the form, if it is not loaded: lists, defaults, then the first inlet of the project in "VIEW". What cannot be
/// read is told.
void load_inlet_editor();

/// Releases the row sets and forgets the form's state.
void unload_inlet_editor();

}  // namespace gullymark::editor
