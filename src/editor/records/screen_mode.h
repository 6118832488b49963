#pragma once

#include <string_view>

/// The screen mode of the workspace and all that follows it. The mode itself stands in state/workspace.h.
namespace gullymark::editor {

/// Sets the mode: "View", "Add" or "Edit"; any other word does nothing. The commands, the grid, the pages of the form
/// and the field of the number follow it; "Add" shows the details page.
void Activate_menu(std::string_view new_mode);

}  // namespace gullymark::editor
