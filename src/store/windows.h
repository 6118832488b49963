#pragma once

#include <functional>

/// What the project level asks of the windows, as one table of functions. The shell fills it once at start; a test
/// puts in functions of its own. A function that nobody has set does nothing.
///
/// Everything else that a window shows stands in its struct (`frmsoftwaremain`, `frmProject`). The shell puts those
/// values on the screen before it carries out any function of this table or of `platform::outside`, and after every
/// handler; so a text or an enable rule set before a box is seen behind that box.
namespace gullymark::store {

struct Windows {
    /// Shows the splash without waiting and paints it at once.
    std::function<void()> show_splash;
    /// Closes the splash, if it is shown.
    std::function<void()> unload_splash;
    /// Shows the details form, modal, and waits until `frmProject.visible` is false.
    std::function<void()> run_details_form;
    /// The focus goes on by one field in the details form.
    std::function<void()> move_details_focus_on;
    /// Shows the inlet workspace, modeless; one that is already shown stays.
    std::function<void()> show_workspace;
    /// Unloads the inlet editor, if it is loaded.
    std::function<void()> unload_inlet_editor;
    /// Shows the about box, modal.
    std::function<void()> show_about_box;
    /// Ends the program on the spot. Does not return; a test's may throw.
    std::function<void()> end_program;
};

extern Windows windows;

/// Calls a function of the table that somebody has set.
inline void call(const std::function<void()>& function) {
    if (function) {
        function();
    }
}

}  // namespace gullymark::store
