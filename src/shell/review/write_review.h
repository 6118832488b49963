#pragma once

#include <string>

#include "review/review_file.h"

class QWidget;

/// What leaves the reviewer's window: each asks where to, and a box tells why nothing came of it.
namespace gullymark::shell {

/// The book as a PDF file; `path` is that of the project. Long work can be ended: nothing is written then.
void save_book(QWidget& parent, const review::Reviewed& reviewed, const std::string& path);

/// The book on a printer.
void print_book(QWidget& parent, const review::Reviewed& reviewed, const std::string& path);

/// The table of inlets as comma-separated values.
void save_table(const review::Reviewed& reviewed);

}  // namespace gullymark::shell
