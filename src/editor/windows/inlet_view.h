#pragma once

#include <string>

#include "editor/form/inlet_screen.h"
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

/// Loads and shows the inlet `ViewInletNumber`. What cannot be read is told in a plain box with the store's description;
/// the view opens without it.
void show_inlet_view();

/// A double click in the list: shows the record of its current row in place of the list; the heading does nothing.
void inletflex_DblClick();

/// Closes the view and shows the list again.
void unload_inlet_view();

/// The user clicked a page; the one that is shown stays as it is.
void view_tab_clicked(int tab);

}  // namespace gullymark::editor
