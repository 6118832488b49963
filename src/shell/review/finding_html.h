#pragma once

#include <string>
#include <vector>

#include <QString>

#include "review/finding.h"

class QTextBrowser;

namespace gullymark::shell {

/// A text of the project as rich text; of an endless one the beginning.
QString escaped_text(const std::string& text);

/// Findings as a text to read: the sign and the word of the severity, the sentence, and what to do about it.
void show_findings(QTextBrowser& view, const std::vector<review::Finding>& findings);

}  // namespace gullymark::shell
