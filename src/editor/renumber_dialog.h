#pragma once

#include <string>

#include "platform/screen.h"

/// The modal dialog `frminletmodify`, in which an inlet gets another number.
namespace gullymark::editor {

struct RenumberDialog {
    bool visible = false;
    platform::Field thisinletnumber;  // the number as it is, not to be changed
    platform::Field newinletnumber;   // typed
    std::string CurrentInletNumber;   // the old number and
    std::string NewInletNumber;       // the new one; empty or the same: no change
};

extern RenumberDialog frminletmodify;

/// Characters that can be typed as a new number.
inline constexpr std::size_t new_number_limit = 20;

/// Loads the dialog for `CurrentInletNumber`, shows it, modal, and returns when it was closed.
void show_renumber_dialog();

/// The user changed the text of `newinletnumber`.
void edit_new_number(std::string_view text);

/// Takes the new number, unless another inlet has it or the user thinks better of it; then the dialog stays.
void cmdmodaccept_Click();
/// Closes without a change.
void cmdmodcancel_Click();

}  // namespace gullymark::editor
