#pragma once

/// The way from the form to the tables of standard inlets.
namespace gullymark::editor {

/// Opens the table of standards of the inlet's type and location; a kind without one disables the command instead.
/// Before a ditch table `cboClog` starts anew.
void inletstd_help_Click();

}  // namespace gullymark::editor
