#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "review/findings.h"

/// Findings for scripts, in a form that stays as it is.
namespace gullymark::review {

/// "wrong", "beyond" or "doubtful".
std::string_view severity_word(Severity severity);

/// SEVERITY<tab>RULE<tab>INLET<tab>TEXT<tab>ADVICE<line feed> for each finding, in their order. In the texts a tab, a line
/// break or another control character is a blank, so that a line has five fields; all other bytes stand as they are.
std::string finding_lines(const std::vector<Finding>& findings);

/// The same as one JSON array of objects with the texts "severity", "rule", "inlet", "text" and "advice"; "[]" for none.
/// It ends with a line feed. Control characters are escaped, and a byte that is no part of UTF-8 is \ufffd.
std::string finding_json(const std::vector<Finding>& findings);

/// "5 findings on 12 inlets: 2 wrong, 1 beyond, 2 doubtful".
std::string finding_counts(const std::vector<Finding>& findings, std::size_t inlets);

}  // namespace gullymark::review
