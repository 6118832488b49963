#pragma once

#include <string>

#include "review/review_file.h"

namespace gullymark::shell {

/// Opens the reviewer's window, with the project at `file` where that is not empty, and waits until it is closed. Without a display
/// it tells so on standard error and ends the program with exit status 2. `argv` is the program's, for the toolkit, which takes none of its own options from it.
void run_review(int argc, char** argv, const std::string& file);

/// The book of a project as the bytes of a PDF file. No display is needed.
std::string make_book(int argc, char** argv, const review::Reviewed& reviewed, const std::string& file);

/// Readies the application for the reviewer's windows: icon, palettes, small screens, boxes and dialogs.
void prepare_review();

}  // namespace gullymark::shell
