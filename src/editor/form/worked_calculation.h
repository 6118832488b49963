#pragma once

/// The command on the page of the results that shows how the inlet comes to them. It reads alone, in every mode.
namespace gullymark::editor {

/// Whether an inlet is on the form: a saved one, or one that is being added or changed.
bool has_worked_calculation();

/// Shows the worked calculation of the inlet on the form; nothing without one.
void show_worked_calculation();

}  // namespace gullymark::editor
