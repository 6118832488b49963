#include "editor/windows/toolbar.h"

#include "editor/form/pages.h"
#include "editor/form/solve_command.h"
#include "editor/windows/workspace_menu.h"
#include "store/help.h"

namespace gullymark::editor {
namespace {

struct ButtonCommand {
    ToolbarIndex index;
    bool in_view;
    void (*run)();
};

void solve() {
    SSTab1_Click();
    cmdsolve_Click();
}

constexpr std::array<ButtonCommand, 5> mode_commands{{
    {add_button, true, mnuAddinlet_Click},
    {copy_button, true, mnuflexcopyinlet_Click},
    {edit_button, true, mnuEditinlet_Click},
    {save_button, false, mnuSaveinlet_Click},
    {solve_button, false, solve},
}};

// Solve is pressed and stays so while the others are released, deliberately.
void exit_workspace() {
    release_button(help_button);
    press_button(solve_button);
    release_mode_buttons();
    mnuExit_Click();
}

}  // namespace

void Toolbar1_ButtonClick(int index) {
    for (const auto& command : mode_commands) {
        if (command.index == index && command.in_view == viewing()) {
            press_button(command.index);
            command.run();
            // A command that entered no mode has ended: it was answered with No, or had nothing to work on.
            if (viewing()) {
                release_button(command.index);
            }
            return;
        }
    }
    if (index == exit_button) {
        exit_workspace();
    } else if (index == help_button) {
        press_button(help_button);
        store::show_help();
        release_button(help_button);
    }
}

}  // namespace gullymark::editor
