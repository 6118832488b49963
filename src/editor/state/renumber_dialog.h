#pragma once

#include <cstddef>
#include <string>

#include "platform/screen.h"

/// What stands in the modal dialog `frminletmodify`, in which an inlet gets another number.
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

}  // namespace gullymark::editor
