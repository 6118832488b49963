#pragma once

/// The command SOLVE of the form.
namespace gullymark::editor {

/// What stands on the screen counts: the focused field is left first, and a leave that is refused stops the command,
/// but for that of the inlet number, which only speaks. A solve that ran shows the results page; after any other the
/// user is in his field again.
void cmdsolve_Click();

}  // namespace gullymark::editor
