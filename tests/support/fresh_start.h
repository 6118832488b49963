#pragma once

#include "editor/inlet_form.h"
#include "editor/inlet_grid.h"
#include "editor/inlet_list.h"
#include "editor/inlet_view.h"
#include "editor/life_cycle.h"
#include "editor/renumber_dialog.h"
#include "editor/windows.h"
#include "editor/workspace.h"
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
