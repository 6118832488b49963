#pragma once

#include <functional>

namespace gullymark::catalogue {
struct Table;
}

/// What the inlet workspace asks of the windows, as one table of functions. The shell fills it once at start; a test
/// puts in functions of its own. A function that nobody has set does nothing.
///
/// Everything else that a window shows stands in its struct, its `visible` and `loaded` included. The shell puts those
/// values on the screen before it carries out any function of this table or of `platform::outside`, and after every
/// handler.
namespace gullymark::editor {

struct Windows {
    /// The focus goes on by one field, as by the Tab key.
    std::function<void()> move_focus_on;
    /// Shows `frminletmodify`, modal, and waits until its `visible` is false.
    std::function<void()> run_renumber_dialog;
    /// Shows a table of standards, modal, and waits until it is closed. A row that the user picks is then in the open
    /// inlet.
    std::function<void(const catalogue::Table&)> show_standards;
    /// Shows the worked calculation of the open inlet, modal, and waits until it is closed.
    std::function<void()> show_worked_calculation;
    /// Writes the Inlet Report of the current inlet.
    std::function<void()> inlet_report;
    /// Writes the Inlet Design Form of all inlets.
    std::function<void()> InletDesignForm;
};

extern Windows windows;

/// Calls a function of the table that somebody has set.
inline void call(const std::function<void()>& function) {
    if (function) {
        function();
    }
}

}  // namespace gullymark::editor
