#pragma once

#include <cstddef>

#include "editor/screen_fields.h"

/// What a new inlet starts with, and the entries of the lists.
namespace gullymark::editor {

/// Fills all lists but those of the previous inlets.
void FillFormLists();

/// The defaults of a new inlet in the project's units, the unit captions and the unit constants with them.
void SetFormDefaults();

/// The defaults of the inlet data tab; everything typed there is lost.
void SetInletDefaults();

/// The entries of `cboClog`.
void fill_clog_entries();

/// Picks an entry of a list in code: the handler of a pick runs, that of leaving does not.
void select_entry(FieldId list, std::size_t index);

/// `txtAngle` greyed and locked with a fixed angle.
void fix_throat_angle(double degrees);

/// The engine takes the project's units.
void follow_project_units();

}  // namespace gullymark::editor
