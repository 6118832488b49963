#pragma once

/// The one place where rows of INLET are made and changed; a new number is given in renumber.h. Solve never saves, Save
/// never solves, and Save refuses an inlet that changed after its last Solve.
namespace gullymark::editor {

// Commands, as the workspace calls them after its own questions. A failure is told in a plain box with the store's
// description and ends the command.

/// A new inlet with the defaults, to be typed in from its number on. Without a row to save it in, the mode is "VIEW".
void SetAddrecord();

/// The same, with the texts of the inlet that is shown.
void SetCopyrecord();

/// The inlet that is shown can be changed.
void SetEditRecord();

/// Saves the open inlet, and the mode is "VIEW" again. One without a number, or unsolved since its last change, is
/// refused in a box. A failure of the store is not told.
void SaveinletRecord();

/// Deletes the inlet of the grid's row after a Yes; one that another inlet names, or may name, stays. Throws Failure.
void current_record_delete();

// Their parts.

/// A new row with the project's identifier, the road of the inlet before and the defaults. A failure is told.
void AddRecord();

/// A new row with the texts that were held. A failure is told.
void AddCopiedRecord();

/// Holds the texts that a copy takes over: no number, no previous inlets with their carryover, no results.
void CaptureInletFields();

/// Writes the project's identifier and the texts that were held into the fields.
void RestoreInletFields();

/// Stores the open inlet; a failure is ignored, and nothing of the rest is done.
void UpdateRecord();

/// Gives up what was changed and shows what is stored; failures are ignored.
void CancelUpdate();

}  // namespace gullymark::editor
