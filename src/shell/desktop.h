#pragma once

/// The real answers to what the logic asks of its user and desktop.
namespace gullymark::shell {

/// Fills `platform::outside` with message boxes, file dialogs, the help viewer, the pointer, the painting meanwhile, the
/// beep and the clock. Before a box or a dialog appears, the windows behind it show what the logic has set so far.
///
/// Yes and No: No is the default button and the answer of the Escape key and of the window's close button, since
/// what a Yes does is seldom taken back. A help file that is missing, or that nothing on the desktop opens, is told in a box.
void attach_to_desktop();

}  // namespace gullymark::shell
