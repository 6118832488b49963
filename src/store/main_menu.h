#pragma once

#include <array>

#include "platform/menu.h"
#include "store/help.h"
#include "store/main_window.h"
#include "store/project_life_cycle.h"

/// The main window's menu, and the commands of it that have no room of their own.
namespace gullymark::store {

/// With no project name: warns, then shows the details form for a new row. Otherwise the form for the row that
/// exists; Create and Open are off from then on, Close is on.
void mnuupdateProj_Click();

/// Goes to the workspace of the open project; without one it warns.
void mnuInlet_Click();

/// Closes the connection, open or not, and ends the program. Nothing is asked.
void mnuExit_Click();

/// The window's system menu (unload mode 0) exits; no other mode does anything.
void Form_QueryUnload(int unload_mode);

using MainMenuItem = platform::MenuItem<MainWindow>;

inline constexpr std::array<MainMenuItem, 13> main_menu{{
    {"mnuFile", "&File", ""},
    {"mnucreateProj", "&Create New Project", "mnuFile", mnucreateProj_Click, &MainWindow::mnucreateProj},
    {"mnuopenProj", "&Open Project", "mnuFile", mnuopenProj_Click, &MainWindow::mnuopenProj},
    {"mnusep0", platform::menu_separator, "mnuFile"},
    {"mnuupdateProj", "&Update Project Details", "mnuFile", mnuupdateProj_Click, &MainWindow::mnuupdateProj},
    {"mnuInlet", "Design Inlet", "mnuFile", mnuInlet_Click},
    {"mnusep1", platform::menu_separator, "mnuFile"},
    {"mnucloseProj", "Close Project", "mnuFile", mnucloseProj_Click, &MainWindow::mnucloseProj},
    {"mnusep2", platform::menu_separator, "mnuFile"},
    {"mnuExit", "E&xit", "mnuFile", mnuExit_Click},
    {"mnuHelp", "&Help", ""},
    {"mnusubHelp", "&Help", "mnuHelp", show_help},
    {"mnuabout", "About TarnelBrook", "mnuHelp", show_about_box},
}};

}  // namespace gullymark::store
