#pragma once

#include <string>

#include "calculation/document.h"

namespace gullymark::calculation {

/// The document in lines of at most 80 characters but for longer words, for a letter in a monospaced font.
std::string as_text(const Document& document);

}  // namespace gullymark::calculation
