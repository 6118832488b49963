#pragma once

#include "editor/editor_test.h"
#include "editor/windows/workspace_menu.h"

namespace gullymark::editor {

struct WorkspaceTest : EditorTest {
    void show_with(int inlets) {
        for (int i = 1; i <= inlets; ++i) {
            put_inlets({{{"INLET_NUMBER", std::to_string(i)},
                         {"INLET_TYPE", "Curb Inlet"},
                         {"INLET_LOCATION", "CONTINUOUS GRADE"}}});
        }
        show_workspace();
    }
};

}  // namespace gullymark::editor
