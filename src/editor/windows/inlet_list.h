#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "editor/state/data_control.h"
#include "platform/menu.h"
#include "platform/screen.h"
#include "store/help.h"

/// The listing window `frminletflex`: all inlets, nothing to change. Row 0 of its grid is the heading. A double click on a
/// row opens the record view, inlet_view.h.
namespace gullymark::editor {

struct InletList {
    std::string caption = "Inlet Listing - VIEW MODE";
    bool loaded = false;
    bool visible = false;          // hidden while the record view is shown
    platform::RowSet flexinletRS;  // for counting
    DataControl Adodc1;            // behind the grid
    int row = 0;                   // the current row of inletflex, marked whole; 0: none
    std::int16_t kept_row = 0;
    int loads = 0;  // rises whenever the rows were read anew: what was shown is old
    int shows = 0;  // rises whenever the window was asked for: it comes to the front
    platform::Field rec_count;
    std::string ViewInletNumber;  // the inlet that was picked, and its previous inlets
    std::string ViewPreinlet1;
    std::string ViewPreinlet2;
};

extern InletList frminletflex;

inline constexpr std::string_view list_count_label = "Total Number of Inlets in the Project Database:";

inline constexpr std::array<std::string_view, 10> list_headings{
    "INLET_ID",  "STATION", "OFFSET",     "TYPE",       "LOCATION",
    "INLET STD", "LENGTH",  "PRE-INLET1", "PRE-INLET2", "DISCHARGE"};

/// Every column is 1200 twips wide: 20 of them are a point.
inline constexpr int list_column_points = 60;

/// Shows the window, modeless, loading it first if it is not loaded. A failure of the store is told in a plain box with
/// its description; the list is empty then.
void show_inlet_list();

/// Closes the window and forgets what it held, but for the counts of its loads and shows.
void unload_inlet_list();

/// Opens `flexinletRS` and points `Adodc1` at the query of the list. False after telling why not.
bool get_flexinlet_records();

/// A click or a key went to a row.
void inletflex_EnterCell(int row);

/// The inlet of the current row is the one that was picked; the heading does nothing.
void inletflex_Click();

/// The inlet of the current row, with its previous inlets, is the one to be viewed. False on the heading, and without
/// inlets after telling so.
bool choose_viewed_inlet();

/// A text of the list, as its last query read it; empty outside of its rows and columns.
std::string list_cell(int row, std::size_t column);

/// Reads the rows anew; failures are ignored.
void refresh_inlet_list();

/// The command Exit: closes the window.
void exit_inlet_list();

using ListMenuItem = platform::MenuItem<InletList>;

inline constexpr std::array<ListMenuItem, 6> list_menu{{
    {"mnuflexfile", "&File", ""},
    {"mnuflexrefresh", "&Refresh", "mnuflexfile", refresh_inlet_list},
    {"mnuflexexit", "E&xit", "mnuflexfile", exit_inlet_list},
    {"mnuflexhelpmenu", "&Help", ""},
    {"mnuflexhelp", "&Help", "mnuflexhelpmenu", store::show_help},
    {"mnuflexabout", "&About", "mnuflexhelpmenu", store::show_about_box},
}};

}  // namespace gullymark::editor
