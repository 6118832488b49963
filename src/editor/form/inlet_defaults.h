#pragma once

/// The inlet data page as a kind of inlet starts it.
namespace gullymark::editor {

/// The defaults of the inlet data page, the lists' picks with them; everything typed there is lost.
void SetInletDefaults();

/// The throat of a new inlet: picked from its list, and written where the list lacks it.
void select_vertical_throat();

}  // namespace gullymark::editor
