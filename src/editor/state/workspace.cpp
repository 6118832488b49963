#include "editor/state/workspace.h"

namespace gullymark::editor {

Workspace MDIInlet;

std::string_view mode() {
    return MDIInlet.screenmode[1];
}

bool viewing() {
    return mode() == "VIEW";
}

void press_button(ToolbarIndex index) {
    MDIInlet.Toolbar1.at(static_cast<std::size_t>(index)).checked = true;
}

void release_button(ToolbarIndex index) {
    MDIInlet.Toolbar1.at(static_cast<std::size_t>(index)).checked = false;
}

void release_mode_buttons() {
    for (const ToolbarIndex index : {save_button, edit_button, copy_button, add_button}) {
        release_button(index);
    }
}

}  // namespace gullymark::editor
