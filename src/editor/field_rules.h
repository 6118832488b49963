#pragma once

#include "editor/screen_fields.h"

/// What each field does while a user types. The families of like handlers follow the rules of the one list of fields
/// (see `enter`, `left`, `may_leave`, `filter_key` of inlet_form.h); here stand the fields with handlers of their own.
namespace gullymark::editor {

/// A message of `txtSx` that no path shows.
inline constexpr std::string_view pavement_slope_message = "error in Pavement Cross slope Data!";

/// Focus and selection to a field.
void SelectFieldText(FieldId field);

/// The text of a field in its format; one that is no number stays.
void format_field(FieldId field);

/// True refuses: a lone point becomes 0. Any other text is trimmed and formatted.
bool CheckNumericField(FieldId field);

// Entering.
void Inlet_Number_GotFocus();
void inlet_type_GotFocus();
void inlet_location_GotFocus();
void inlet_subtype_GotFocus();

// Picking.
void inlet_type_Click();
void inlet_location_Click();
void cboThroat_Click();
void cboType_Click();
void cboCurb_Click();
void cboClog_Click();
/// The sign of `offset` follows the side: negative on the left.
void ApplyOffsetSign();

// Commands.
/// Opens the table of standards of the inlet's type and location; a kind without one disables the command instead.
/// Before a ditch table `cboClog` starts anew.
void inletstd_help_Click();

// Opening a list.
void cboClog_DropDown();
void FillClogList();

// Before leaving; true refuses.
bool offset_Validate();
bool cboClog_Validate();

// Leaving.
void Inlet_Number_LostFocus();
void inlet_type_LostFocus();
void inlet_location_LostFocus();
void inlet_subtype_LostFocus();
void cboCurb_LostFocus();
void offset_LostFocus();
void allowable_spread_LostFocus();
void txtSx_LostFocus();
void txtSdashW_LostFocus();

}  // namespace gullymark::editor
