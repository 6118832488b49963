#include "editor/inlet_form.h"
#include "editor/life_cycle.h"
#include "editor/workspace.h"

namespace gullymark::editor {
namespace {

void press(std::size_t index) {
    MDIInlet.Toolbar1.at(index).checked = true;
}

void release(std::size_t index) {
    MDIInlet.Toolbar1.at(index).checked = false;
}

struct ButtonCommand {
    int index;
    bool in_view;
    void (*run)();
};

void solve() {
    SSTab1_Click(2);
    cmdsolve_Click();
}

constexpr std::array<ButtonCommand, 5> mode_commands{{
    {1, true, mnuAddinlet_Click},
    {3, true, mnuflexcopyinlet_Click},
    {5, true, mnuEditinlet_Click},
    {7, false, mnuSaveinlet_Click},
    {10, false, solve},
}};

// Button 10 is pressed and stays so while the others are released; that is meant.
void exit_workspace() {
    release(16);
    press(10);
    for (const std::size_t index : {7U, 5U, 3U, 1U}) {
        release(index);
    }
    mnuExit_Click();
}

}  // namespace

void Toolbar1_ButtonClick(int index) {
    for (const auto& command : mode_commands) {
        if (command.index == index && command.in_view == viewing()) {
            press(static_cast<std::size_t>(index));
            command.run();
            // A command that entered no mode has ended: it was answered with No, or had nothing to work on.
            if (viewing()) {
                release(static_cast<std::size_t>(index));
            }
            return;
        }
    }
    if (index == 13) {
        exit_workspace();
    } else if (index == 16) {
        press(16);
        store::show_help();
        release(16);
    }
}

}  // namespace gullymark::editor
