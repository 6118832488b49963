#pragma once

#include <array>
#include <string>

#include "platform/screen.h"

/// What stands in the main window `frmsoftwaremain`, the window of the project level, without a toolkit. It and the inlet
/// workspace are never visible together. Its commands stand in main_menu.h.
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

}  // namespace gullymark::store
