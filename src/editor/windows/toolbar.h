#pragma once

#include <array>
#include <string_view>

#include "editor/state/workspace.h"

/// The toolbar of the workspace: its buttons and what they do.
namespace gullymark::editor {

struct ToolbarButton {
    int index;
    std::string_view caption;
};

inline constexpr std::array<ToolbarButton, 7> toolbar_buttons{{
    {add_button, "Add"},
    {copy_button, "Copy"},
    {edit_button, "Edit"},
    {save_button, "Save"},
    {solve_button, "Solve"},
    {exit_button, "Exit"},
    {help_button, "Help"},
}};

/// A toolbar button by its index; one whose condition does not hold does nothing, and neither does a separator.
void Toolbar1_ButtonClick(int index);

}  // namespace gullymark::editor
