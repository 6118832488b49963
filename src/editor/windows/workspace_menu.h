#pragma once

#include <array>

#include "editor/state/workspace.h"
#include "platform/menu.h"
#include "store/help.h"

/// The inlet workspace from its show to its close, its menu and the commands of it: every command that changes a row goes
/// through here.
namespace gullymark::editor {

/// Loads the workspace with the grid and the editor and shows it; one that is already shown stays as it is.
void show_workspace();

/// The window is about to close: unload mode 0 is its system menu. True lets it close.
bool MDIForm_QueryUnload(int unload_mode);

// Commands.

/// Begins a new inlet.
void mnuAddinlet_Click();

/// Lets the inlet that is shown be changed. Without inlets, or where it cannot be read, a box tells so.
void mnuEditinlet_Click();

/// Saves the open inlet and reads all anew, in "ADD" and "EDIT" alone.
void mnuSaveinlet_Click();

/// Throws the editor and the grid away and builds them anew from the file, in "VIEW" alone.
void mnuflexrefresh_Click();

/// Shows the list of inlets.
void mnuviewInlets_Click();

/// Begins a new inlet with the texts of the one that is shown, in "VIEW" alone and after a Yes.
void mnuflexcopyinlet_Click();

/// Gives an inlet another number and reads all anew, in "VIEW" alone.
void mnuflexmodifyinlet_Click();

/// Deletes the inlet of the grid's row and reads all anew, in "VIEW" alone. A failure is ignored.
void mnuflexdeleteinlet_Click();

/// Writes the Inlet Report of the inlet that is shown, in "VIEW" alone; a project without inlets is told there.
void mnuflex_inlet_report_Click();

/// Writes the Inlet Design Form of all inlets, in every mode.
void mnuInletDesignForm_Click();

/// In "ADD" and "EDIT": asks, gives the change up and stays. In "VIEW": back to the main window.
void mnuExit_Click();

using WorkspaceMenuItem = platform::MenuItem<Workspace>;

inline constexpr std::array<WorkspaceMenuItem, 15> workspace_menu{{
    {"mnufile", "&File", ""},
    {"mnuAddinlet", "&Add New Inlet", "mnufile", mnuAddinlet_Click, &Workspace::mnuAddinlet},
    {"mnuEditinlet", "&Edit Inlet", "mnufile", mnuEditinlet_Click, &Workspace::mnuEditinlet},
    {"mnuSaveinlet", "&Save Inlet", "mnufile", mnuSaveinlet_Click, &Workspace::mnuSaveinlet},
    {"mnuflexrefresh", "&Refresh", "mnufile", mnuflexrefresh_Click, &Workspace::mnuflexrefresh},
    {"mnuviewInlets", "&View Inlets", "mnufile", mnuviewInlets_Click},
    {"mnuflexcopyinlet", "Copy Inlet", "mnufile", mnuflexcopyinlet_Click, &Workspace::mnuflexcopyinlet},
    {"mnuflexmodifyinlet", "&Modify Inlet Number", "mnufile", mnuflexmodifyinlet_Click,
     &Workspace::mnuflexmodifyinlet},
    {"mnuflexdeleteinlet", "&Delete Inlet", "mnufile", mnuflexdeleteinlet_Click,
     &Workspace::mnuflexdeleteinlet},
    {"mnuflex_inlet_report", "&Print Report", "mnufile", mnuflex_inlet_report_Click,
     &Workspace::mnuflex_inlet_report},
    {"mnuInletDesignForm", "Inlet Design Form", "mnufile", mnuInletDesignForm_Click,
     &Workspace::mnuInletDesignForm},
    {"mnuExit", "E&xit", "mnufile", mnuExit_Click, &Workspace::mnuExit},
    {"mnuhelp", "&Help", ""},
    {"mnuInlethelp", "&Help on GullymarkAL", "mnuhelp", store::show_help},
    {"mnuabout", "About GullymarkAL", "mnuhelp", store::show_about_box},
}};

}  // namespace gullymark::editor
