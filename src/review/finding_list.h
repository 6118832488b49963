#pragma once

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "review/finding.h"
#include "review/project.h"

/// Which findings a list shows, in which order, and how it finds its place again in a new state of the project.
namespace gullymark::review {

enum class FindingOrder : unsigned char { by_severity, along_the_road, by_text };

/// What a list of findings shows.
struct FindingChoice {
    std::set<Severity> severities{Severity::wrong, Severity::beyond, Severity::doubtful};
    std::string
        text;  // in the number of the inlet, the sentence, the advice or the rule; A to Z are as a to z
    FindingOrder order = FindingOrder::by_severity;
    bool descending = false;
};

/// The indices of what is shown, in its order. Findings that the order does not tell apart stay as they are in `findings`;
/// along the road those of the whole project come last. `places` tells where each inlet stands along it; empty for the order
/// of the file.
std::vector<std::size_t> choose_findings(const std::vector<Finding>& findings, const FindingChoice& choice,
                                         const std::vector<std::size_t>& places = {});

/// The same finding in a new state: the same words, else the same rule at the same inlet; nothing where it is mended.
std::optional<std::size_t> find_again(const std::vector<Finding>& findings, const Finding& before);

/// The same inlet in a new state of its project: by its number, the second of a number being the second again, else the
/// one that stands in its place, or last. Nothing in a project without inlets.
std::optional<std::size_t> find_inlet_again(const Project& now, const Project& before, std::size_t index);

}  // namespace gullymark::review
