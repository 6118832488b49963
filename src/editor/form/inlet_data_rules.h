#pragma once

#include <string_view>

/// What the fields of the inlet data page do while a user types, beyond the rules of the one list of fields.
namespace gullymark::editor {

/// A message of `txtSx` that no path shows.
inline constexpr std::string_view pavement_slope_message = "error in Pavement Cross slope Data!";

/// `txtAngle` grayed and locked with a fixed angle.
void fix_throat_angle(double degrees);

/// A throat was picked: the results go, and the angle follows it; a text that is no throat leaves the angle.
void cboThroat_Click();

/// A grate was picked: the results go.
void cboType_Click();

/// A curb was picked: the results go.
void cboCurb_Click();

/// Leaving: three standards have a curb, whatever was picked.
void cboCurb_LostFocus();

/// `cboClog` with its entries anew and 0 picked; disabled as it is for a ditch in a sump.
void FillClogList();

/// The list of `cboClog` is about to open: `FillClogList`, but for "VIEW".
void cboClog_DropDown();

/// A clogging was picked: the results go, but for "VIEW".
void cboClog_Click();

/// Before leaving; true refuses: more than 99 per cent, after a box. The results go, but for a lone point, which becomes 0.
bool cboClog_Validate();

/// Leaving: a gutter of no width has the slope of the pavement.
void txtSx_LostFocus();

/// Leaving: an inlet is no flatter than the pavement, and the local depression `txta` follows from the slopes.
void txtSdashW_LostFocus();

}  // namespace gullymark::editor
