#pragma once

namespace gullymark::shell {

/// Shows the about box `frmAbout`, modal, and waits until its OK button, Enter or Escape closes it.
void run_about_box();

}  // namespace gullymark::shell
