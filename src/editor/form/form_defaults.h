#pragma once

/// What a new inlet starts with.
namespace gullymark::editor {

/// The defaults of a new inlet in the project's units, on the details page; the unit captions and the unit constants
/// with them.
void SetFormDefaults();

}  // namespace gullymark::editor
