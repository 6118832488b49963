#pragma once

#include <array>
#include <string>
#include <string_view>

#include "editor/state/data_control.h"
#include "platform/screen.h"

/// What stands in the inlet workspace `MDIInlet`, without a toolkit: it frames the design form and the grid, and holds
/// the screen mode. Its commands stand in windows/workspace_menu.h.
namespace gullymark::editor {

/// The buttons of the toolbar by their indexes; the other ones up to the last are separators.
enum ToolbarIndex : int {
    add_button = 1,
    copy_button = 3,
    edit_button = 5,
    save_button = 7,
    solve_button = 10,
    exit_button = 13,
    help_button = 16,
};

/// Room for every index, 0 included.
inline constexpr std::size_t toolbar_size = help_button + 1;

struct Workspace {
    std::string caption = "GullymarkAL";
    bool visible = false;
    /// Panels 1 to 4: the mode is the text of panel 2 and stands nowhere else; panel 4 is the inlet number.
    std::array<std::string, 4> screenmode{"SCREEN MODE - ", "**SCREEN MODE**", "INLET NUMBER - ", ""};
    std::array<std::string, 3> StatusBar;                // panels 1 to 3; two more show the date and the time
    std::array<platform::Field, toolbar_size> Toolbar1;  // by index from 1; `checked` is pressed
    platform::Field mnuAddinlet;
    platform::Field mnuEditinlet;
    platform::Field mnuSaveinlet;
    platform::Field mnuflexrefresh;
    platform::Field mnuflexcopyinlet;
    platform::Field mnuflexmodifyinlet;
    platform::Field mnuflexdeleteinlet;
    platform::Field mnuflex_inlet_report;
    platform::Field mnuInletDesignForm;
    platform::Field mnuExit;
    DataControl Adodc1;      // behind the grid; the count of inlets always comes from it
    int CurrentGridRow = 0;  // the remembered row of the grid; 0: none yet
};

extern Workspace MDIInlet;

/// "VIEW", "ADD" or "EDIT", as panel 2 of `screenmode` says.
std::string_view mode();

/// True in the mode "VIEW".
bool viewing();

/// The button of that index is pressed and stays so.
void press_button(ToolbarIndex index);

/// The button of that index is pressed no longer.
void release_button(ToolbarIndex index);

/// Releases Add, Copy, Edit and Save; Solve stays as it is.
void release_mode_buttons();

}  // namespace gullymark::editor
