#pragma once

#include <array>
#include <string>
#include <string_view>

#include "editor/data_control.h"
#include "platform/menu.h"
#include "platform/screen.h"
#include "store/help.h"

/// The inlet workspace `MDIInlet` without a toolkit: it frames the design form and the grid, holds the screen mode,
/// and every command that changes a row goes through here.
namespace gullymark::editor {

struct Workspace {
    std::string caption = "GullymarkAL";
    bool visible = false;
    /// Panels 1 to 4: the mode is the text of panel 2 and stands nowhere else; panel 4 is the inlet number.
    std::array<std::string, 4> screenmode{"SCREEN MODE - ", "**SCREEN MODE**", "INLET NUMBER - ", ""};
    std::array<std::string, 3> StatusBar;      // panels 1 to 3; two more show the date and the time
    std::array<platform::Field, 17> Toolbar1;  // by index from 1; `checked` is pressed
    platform::Field mnuAddinlet;
    platform::Field mnuEditinlet;
    platform::Field mnuSaveinlet;
    platform::Field mnuflexrefresh;
    platform::Field mnuflexcopyinlet;
    platform::Field mnuflexmodifyinlet;
    platform::Field mnuflexdeleteinlet;
    platform::Field mnuflex_inlet_report;
    platform::Field mnuInletDesignForm;
    platform::Field mnuExit;
    DataControl Adodc1;      // behind the grid; the count of inlets always comes from it
    int CurrentGridRow = 0;  // the remembered row of the grid; 0: none yet
};

extern Workspace MDIInlet;

/// "VIEW", "ADD" or "EDIT", as panel 2 of `screenmode` says.
std::string_view mode();
bool viewing();

/// Loads the workspace with the grid and the editor and shows it; one that is already shown stays as it is.
void show_workspace();

/// Sets the mode and all that follows it: "View", "Add" or "Edit"; any other word does nothing.
void Activate_menu(std::string_view new_mode);

// The status bars, from the open inlet and the project.
void update_statusbar();
void update_currentstatusbar();

// Commands.
void mnuAddinlet_Click();
void mnuEditinlet_Click();
void mnuSaveinlet_Click();
/// Throws the editor and the grid away and builds them anew from the file, in "VIEW" alone.
void mnuflexrefresh_Click();
void mnuviewInlets_Click();
void mnuflexcopyinlet_Click();
void mnuflexmodifyinlet_Click();
void mnuflexdeleteinlet_Click();
void mnuflex_inlet_report_Click();
void mnuInletDesignForm_Click();
/// In "ADD" and "EDIT": asks, gives the change up and stays. In "VIEW": back to the main window.
void mnuExit_Click();

/// A toolbar button by its index; one whose condition does not hold does nothing.
void Toolbar1_ButtonClick(int index);

/// The window is about to close: unload mode 0 is its system menu. True lets it close.
bool MDIForm_QueryUnload(int unload_mode);

struct ToolbarButton {
    int index;
    std::string_view caption;
};

/// The buttons; the other indexes up to 16 are separators.
inline constexpr std::array<ToolbarButton, 7> toolbar_buttons{{
    {1, "Add"},
    {3, "Copy"},
    {5, "Edit"},
    {7, "Save"},
    {10, "Solve"},
    {13, "Exit"},
    {16, "Help"},
}};

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
