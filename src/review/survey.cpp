#include "review/survey.h"

#include <algorithm>
#include <utility>

namespace gullymark::review {

void Survey::report(const Rule& rule, Index index, std::string text, std::string advice) {
    told_.push_back(
        {.severity = rule.severity,
         .rule = rule.name,
         .index = index,
         .inlet = index == whole_project ? std::string() : inlet(index).text(engine::Column::INLET_NUMBER),
         .text = std::move(text),
         .advice = std::move(advice)});
}

std::vector<Finding> Survey::take_findings() {
    std::ranges::stable_sort(
        told_, {}, [](const Finding& finding) { return std::pair(finding.severity, finding.index); });
    return std::exchange(told_, {});
}

}  // namespace gullymark::review
