#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/menu.h"
#include "platform/screen.h"
#include "store/project_life_cycle.h"

/// The main window `frmsoftwaremain`, the window of the project level, without a toolkit. It and the inlet workspace
/// are never visible together.
namespace gullymark::store {

struct MainWindow {
    std::string caption = "Gullymark";
    std::string message_title;  // the title of the boxes of this level, "Tarnel Brook" from the load on
    std::array<std::string, 3> status_panels;  // panels 1 to 3; two more show the date and the time
    platform::Field mnucreateProj;
    platform::Field mnuopenProj;
    platform::Field mnuupdateProj;
    platform::Field mnucloseProj;
    bool visible = false;
};

extern MainWindow frmsoftwaremain;

/// Sets the message title and the target release, clears the working folder and the product name, disables Close.
/// The shell shows the window after it, through `tarnelbrookmain`.
void load_main_window();

/// With no project name: warns, then shows the details form for a new row. Otherwise the form for the row that
/// exists; Create and Open are off from then on, Close is on.
void mnuupdateProj_Click();

/// Goes to the workspace of the open project; without one it warns.
void mnuInlet_Click();

/// Closes the connection, open or not, and ends the program. Nothing is asked.
void mnuExit_Click();

/// The window's system menu (unload mode 0) exits; no other mode does anything.
void Form_QueryUnload(int unload_mode);

/// Hides the main window and shows the workspace. A file of another product ends the whole program after a warning,
/// without closing anything.
void open_designform();

/// Hides the main window and shows the workspace, of whatever product the file is.
void go_to_workspace();

/// Opens the help file beside the program in the desktop's viewer. All help commands of all windows come here.
void show_help();

/// Shows the about box, modal.
void show_about_box();

/// The texts of the about box.
inline constexpr std::string_view about_text = "GullymarkAL® Ver. 1.00.07 - Alabama Edition";
inline constexpr std::string_view product_family = "Tarnel Brook";

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
