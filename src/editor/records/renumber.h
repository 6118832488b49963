#pragma once

#include <string_view>

/// How an inlet gets another number: the command and its dialog. What stands in the dialog is in
/// state/renumber_dialog.h.
namespace gullymark::editor {

/// The command of the workspace: asks, shows the dialog for the inlet of the grid's row, and gives it the new number, in
/// its own row and in those that name it. A failure is told in a plain box with the store's description.
void modifyinlet();

/// Loads the dialog for `CurrentInletNumber`, shows it, modal, and returns when it was closed.
void show_renumber_dialog();

/// The user changed the text of `newinletnumber`. It stands on one line; characters beyond the limit are dropped.
void edit_new_number(std::string_view text);

/// Takes the new number, unless another inlet has it or the user thinks better of it; then the dialog stays.
void cmdmodaccept_Click();

/// Closes without a change.
void cmdmodcancel_Click();

}  // namespace gullymark::editor
