#pragma once

#include <string_view>

/// Which fields of the inlet data tab an inlet offers. These operations always work on the design form.
namespace gullymark::editor {

/// Disables, then grays the inlet data fields.
void ResetInletDataFields();

/// Tab 2: captions, then the operation of the inlet's type and location. A field that does not apply is emptied, in
/// "VIEW" on the screen alone.
void ShowInletDataFields();

/// The operation for a type and a location by their exact texts; any other runs none.
void setup_fields(std::string_view type, std::string_view location);

/// Offers what a curb inlet on a grade, or a slotted one, has.
void EnableCurbOnGrade();

/// Offers what a curb inlet in a sump has.
void EnableCurbInSump();

/// Offers what a grate on a grade has.
void EnableGrateOnGrade();

/// Offers what a grate in a sump has.
void EnableGrateInSump();

/// Offers what a combination inlet on a grade has.
void EnableComboOnGrade();

/// Offers what a combination inlet in a sump has.
void EnableComboInSump();

/// Offers what a slotted inlet in a sump has.
void EnableSlottedInSump();

/// Offers what a grate in a ditch on a grade has.
void EnableDitchOnGrade();

/// Offers what a grate in a ditch in a sump has.
void EnableDitchInSump();

}  // namespace gullymark::editor
