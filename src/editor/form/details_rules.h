#pragma once

/// What the fields of the details page do while a user types, beyond the rules of the one list of fields; type and
/// location stand in kind_rules.h.
namespace gullymark::editor {

/// Entering: the number becomes the one that the dialog of renumbering starts from.
void Inlet_Number_GotFocus();

/// Leaving: an empty number, and one that another inlet has or may have, are told; the focus stays, and the latter is
/// emptied.
void Inlet_Number_LostFocus();

/// Entering: the standard is remembered and selected.
void inlet_subtype_GotFocus();

/// Leaving: a standard that was changed is told; the inlet stays as it is.
void inlet_subtype_LostFocus();

/// Before leaving; true refuses: an empty offset becomes 0.0, any other one is checked as a number.
bool offset_Validate();

/// Leaving: the sign of the offset follows its side.
void offset_LostFocus();

/// The sign of `offset` follows `offset_location`: negative on the left. An empty offset stays.
void ApplyOffsetSign();

/// Leaving: an empty spread becomes 8.0, whatever the units.
void allowable_spread_LostFocus();

}  // namespace gullymark::editor
