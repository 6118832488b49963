#pragma once

#include <string>

#include "editor/inlet_screen.h"
#include "engine/inlet_record.h"
#include "platform/row_set.h"

/// The record view `frmviewinlet`: one inlet, read only, on the four tabs of the design form and under its names.
namespace gullymark::editor {

/// The inlet that the record view shows; the open inlet stays as it is.
extern engine::InletRecord viewed_inlet;

struct InletView {
    std::string caption = "Inlet Record - VIEW MODE";
    InletScreen screen{.record = &viewed_inlet};
    bool visible = false;
    int shows = 0;  // rises with each record that is shown: the window comes to the front
    platform::RowSet viewinletRS;
};

extern InletView frmviewinlet;

/// Loads and shows the inlet `ViewInletNumber`.
void show_inlet_view();

/// Closes the view and shows the list again.
void unload_inlet_view();

/// The user clicked a page.
void view_tab_clicked(int tab);

}  // namespace gullymark::editor
