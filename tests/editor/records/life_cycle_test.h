#pragma once

#include "editor/editor_test.h"
#include "editor/records/grid_events.h"
#include "editor/windows/workspace_menu.h"

namespace gullymark::editor {

/// Two curb inlets on grade, saved: "10" and "2", which is the second in the order of texts.
struct LifeCycle : EditorTest {
    LifeCycle() {
        show_workspace();
        add_curb_inlet("10", "1");
        solve_and_save();
        add_curb_inlet("2", "2");
        type(Station, "2+00");
        type(RoadWay, "Main");
        solve_and_save();
        boxes();
    }
    [[nodiscard]] std::string all_numbers() const {
        return stored("SELECT INLET_NUMBER FROM INLET ORDER BY INLET_NUMBER");
    }
    static void edit(int row) {
        pick_grid_row(row);
        mnuEditinlet_Click();
    }
};

inline const Box saved = information("Record Saved");
inline const Box unsolved = plain("Data has changed! Please 'Solve' Inlet Analysis before saving");

}  // namespace gullymark::editor
