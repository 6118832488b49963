#pragma once

#include "editor/records/grid_events.h"
#include "editor/records/life_cycle.h"
#include "editor/state/renumber_dialog.h"
#include "editor/state/windows.h"
#include "editor/state/workspace.h"
#include "editor/windows/inlet_list.h"
#include "editor/windows/inlet_view.h"
#include "engine/solve.h"
#include "engine/unit_constants.h"
#include "store/main_window.h"
#include "store/project_details.h"
#include "store/project_session.h"
#include "store/project_store.h"
#include "store/windows.h"

namespace gullymark::testing_support {

/// All state of the program as before its start, row sets and connections closed.
inline void forget_everything() {
    editor::unload_inlet_editor();
    editor::unload_inlet_grid();
    editor::unload_inlet_list();
    editor::frmviewinlet = {};
    editor::frminletmodify = {};
    editor::MDIInlet = {};
    editor::windows = {};
    engine::unit_constants = {};
    engine::UnitSystem.clear();
    engine::DataSolved = false;
    store::frmProject = {};
    store::frmsoftwaremain = {};
    store::project_store = {};
    store::session = {};
    store::windows = {};
}

}  // namespace gullymark::testing_support
