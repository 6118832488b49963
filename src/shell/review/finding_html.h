#pragma once

#include <vector>

#include "review/finding.h"

class QTextBrowser;

namespace gullymark::shell {

/// Findings as a text to read: the sign and the word of the severity, the sentence, and what to do about it.
void show_findings(QTextBrowser& view, const std::vector<review::Finding>& findings);

}  // namespace gullymark::shell
