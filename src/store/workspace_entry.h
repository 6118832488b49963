#pragma once

/// The ways from the project level into the inlet workspace.
namespace gullymark::store {

/// Hides the main window and shows the workspace. A file of another product ends the whole program after a warning,
/// without closing anything.
void open_designform();

/// Hides the main window and shows the workspace, of whatever product the file is.
void go_to_workspace();

}  // namespace gullymark::store
