#pragma once

#include <string>

#include "editor/form/screen_fields.h"

/// A user of the design form without a window: what he does becomes the events that the shell would hand on. Each
/// answers false where the form does not let it happen.
namespace gullymark::roads {

/// A field by its name; throws std::runtime_error for a word that names none.
editor::FieldId field_id(const std::string& name);

/// Goes to a field by mouse: it takes typing, and the field before it lets itself be left. Throws std::runtime_error
/// for a field of another page.
bool go_to(editor::FieldId field);

/// Types in place of the field's text, key by key.
bool type_into(editor::FieldId field, const std::string& keys);
/// The same at once, from the clipboard.
bool paste_into(editor::FieldId field, const std::string& pasted);
bool pick_in(editor::FieldId field, const std::string& entry);
bool open_list(editor::FieldId field);
bool click_on(editor::FieldId field);

/// The Tab key: the next field in the order of the list takes the focus; behind the last one no field has it.
bool move_on();
/// The Enter key; true where it moves on.
bool strike_enter();

/// Carries out where the logic wants the focus.
void honour_wanted_focus();

}  // namespace gullymark::roads
