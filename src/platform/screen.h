#pragma once

#include <string>
#include <vector>

/// What the logic of a window needs of a thing on the screen, without a toolkit: the logic sets it, the shell's binder
/// shows it. Names of screen things are those of the windows' drawings.
namespace gullymark::platform {

/// A meaning, not a paint: a usable field, or one that does not apply.
enum class Color { window, gray };

struct Field {
    std::string text;     // what a field shows; of a bound field the column's text counts instead
    std::string caption;  // of a label, a frame, a check box or a command
    std::vector<std::string> entries;  // of a list
    bool enabled = true;
    bool locked = false;  // shows, takes the focus, but no typing
    bool visible = true;
    bool checked = false;  // of a check box or a pressed tool button
    Color color = Color::window;

    bool operator==(const Field&) const = default;
};

/// The check of a list field: true refuses leaving it. An entry's beginning passes and stays as typed, the empty text
/// too; case counts. Any other text is refused in a box and becomes the first entry.
/// A list without entries has nothing to check against: every text passes.
bool CheckListValue(std::string& text, const std::vector<std::string>& entries);

}  // namespace gullymark::platform
