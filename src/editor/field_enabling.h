#pragma once

#include <string_view>

/// Which fields of the inlet data tab an inlet offers. These operations always work on the design form.
namespace gullymark::editor {

/// Disables, then greys the inlet data fields.
void ResetInletDataFields();

/// Tab 2: captions, then the operation of the inlet's type and location. A field that does not apply is emptied, in
/// "VIEW" on the screen alone.
void ShowInletDataFields();

/// The operation for a type and a location by their exact texts; any other runs none.
void setup_fields(std::string_view type, std::string_view location);

void EnableCurbOnGrade();
void EnableCurbInSump();
void EnableGrateOnGrade();
void EnableGrateInSump();
void EnableComboOnGrade();
void EnableComboInSump();
void EnableSlottedInSump();
void EnableDitchOnGrade();
void EnableDitchInSump();

}  // namespace gullymark::editor
