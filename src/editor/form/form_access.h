#pragma once

#include <string>
#include <string_view>

#include "editor/form/inlet_form.h"

/// The fields of the open form in few words, for those who act on it.
namespace gullymark::editor {

/// A field of the design form: what it shows beyond its text, and whether it can be used.
inline platform::Field& field(FieldId id) {
    return frminletMDIC.screen[id];
}

/// What a field shows.
inline const std::string& text(FieldId id) {
    return frminletMDIC.screen.text(id);
}

/// Writes a field's text, into its column where it has one; see `InletScreen::set_text`.
inline void set_text(FieldId id, std::string_view new_text) {
    frminletMDIC.screen.set_text(id, new_text);
}

/// True where the inlet lies on a continuous grade, by the exact text of its location.
bool on_grade();

/// True where it lies in a sump. A location that is neither is possible.
bool in_sump();

/// Focus and selection are to go to a field.
void SelectFieldText(FieldId id);

/// The user is in no field, and none is wanted: nothing is checked or computed.
void drop_focus();

}  // namespace gullymark::editor
