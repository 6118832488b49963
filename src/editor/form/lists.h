#pragma once

#include <cstddef>

#include "editor/form/screen_fields.h"

/// The entries of the form's lists. Those of the previous inlets come from the file, in carryover.h.
namespace gullymark::editor {

/// Fills all lists but those of the previous inlets.
void FillFormLists();

/// The entries of `cboClog`.
void fill_clog_entries();

/// Picks an entry of a list in code: its text is shown, then the list's handler of a pick runs; that of leaving does
/// not. An index behind the last entry picks nothing.
void pick_entry(FieldId list, std::size_t index, void (*click)());

}  // namespace gullymark::editor
