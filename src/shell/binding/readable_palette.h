#pragma once

namespace gullymark::shell {

/// Keeps every text readable on the desktop's palette, now and whenever it changes: what cannot be changed is still to
/// be read (most of the form in "VIEW", and the results in every mode), and so is a marked row. Colors of the desktop
/// that are readable stay as they are; afterwards the windows are shown anew.
void keep_texts_readable();

}  // namespace gullymark::shell
