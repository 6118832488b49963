#pragma once

/// What the type and the location of an inlet do while a user picks them: they make it another kind, whose data start
/// anew.
namespace gullymark::editor {

/// Entering: the type is remembered.
void inlet_type_GotFocus();

/// Entering: the location is remembered.
void inlet_location_GotFocus();

/// A type was picked: the inlet data start anew, and no standard is chosen. On a grade the right side is emptied but
/// for its runoff, in a sump the slope becomes 0.001.
void inlet_type_Click();

/// A location was picked: the same, but a grade empties the runoff of the right side too, and the slope of a sump
/// becomes 0.003.
void inlet_location_Click();

/// Leaving: where the type is another than it was when entered, the inlet data and the cloggings start anew.
void inlet_type_LostFocus();

/// Leaving: where the location is another than it was when entered, the inlet data start anew.
void inlet_location_LostFocus();

}  // namespace gullymark::editor
