#pragma once

#include <string_view>

#include "editor/form/screen_fields.h"

/// The events of the design form's fields, in the order in which they come to a field.
///
/// The shell turns what the user does into the calls below, one for each event. It asks `leave` before the focus moves;
/// on false the focus stays, and what wanted to move it does nothing more. A field does what the rules of the one list
/// of fields say, and then what its own handlers do.
namespace gullymark::editor {

/// The focus came to a field. The lists of the previous inlets get their entries here.
void enter(FieldId field);

/// The user changed a field's text to `text`. It stands on one line, and characters beyond the field's limit are dropped.
void edited(FieldId field, std::string_view text);

/// The list of a field is about to drop down.
void opened_list(FieldId field);

/// The user picked an entry of a list.
void picked(FieldId field, std::string_view entry);

/// The user clicked a check box, which turns over, or a command.
void clicked(FieldId field);

/// The user clicked a page of SSTab1.
void tab_clicked(int tab);

/// The focus is about to leave a field: its checks, then its computations. False: the focus stays where it is.
/// For a field that was not entered, or was left already, nothing runs and the answer is true.
bool leave(FieldId field);

/// Leaves the field that has the focus, if one has it.
bool leave_focused_field();

// The parts of `leave`.

/// The check before leaving; false refuses.
bool may_leave(FieldId field);

/// What a field does when it is left.
void left(FieldId field);

}  // namespace gullymark::editor
