#include "review/finding_list.h"

#include <algorithm>
#include <numeric>
#include <string_view>

namespace gullymark::review {
namespace {

char small(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool holds(std::string_view text, std::string_view wanted) {
    const auto same = [](char one, char other) { return small(one) == small(other); };
    return std::search(text.begin(), text.end(), wanted.begin(), wanted.end(), same) != text.end();
}

bool holds(const Finding& finding, std::string_view wanted) {
    return wanted.empty() || holds(finding.inlet, wanted) || holds(finding.text, wanted) ||
           holds(finding.advice, wanted) || holds(finding.rule, wanted);
}

std::size_t place_of(const Finding& finding, const std::vector<std::size_t>& places) {
    return finding.index < places.size() ? places[finding.index] : finding.index;
}

bool comes_before(const Finding& one, const Finding& other, FindingOrder order,
                  const std::vector<std::size_t>& places) {
    switch (order) {
        case FindingOrder::along_the_road:
            return place_of(one, places) < place_of(other, places);
        case FindingOrder::by_text:
            return one.text < other.text;
        case FindingOrder::by_severity:
            break;
    }
    return one.severity < other.severity;
}

}  // namespace

std::vector<std::size_t> choose_findings(const std::vector<Finding>& findings, const FindingChoice& choice,
                                         const std::vector<std::size_t>& places) {
    std::vector<std::size_t> chosen;
    for (std::size_t i = 0; i < findings.size(); ++i) {
        if (choice.severities.contains(findings[i].severity) && holds(findings[i], choice.text)) {
            chosen.push_back(i);
        }
    }
    std::stable_sort(chosen.begin(), chosen.end(), [&](std::size_t one, std::size_t other) {
        return choice.descending ? comes_before(findings[other], findings[one], choice.order, places)
                                 : comes_before(findings[one], findings[other], choice.order, places);
    });
    return chosen;
}

std::optional<std::size_t> find_again(const std::vector<Finding>& findings, const Finding& before) {
    std::optional<std::size_t> alike;
    for (std::size_t i = 0; i < findings.size(); ++i) {
        if (findings[i].rule != before.rule || findings[i].inlet != before.inlet) {
            continue;
        }
        if (findings[i].text == before.text) {
            return i;
        }
        alike = alike.value_or(i);
    }
    return alike;
}

std::optional<std::size_t> find_inlet_again(const Project& now, const Project& before, std::size_t index) {
    constexpr auto number = engine::Column::INLET_NUMBER;
    if (now.inlets.empty()) {
        return std::nullopt;
    }
    if (index >= before.inlets.size()) {
        return 0;
    }
    const std::string& wanted = before.inlets[index].text(number);
    const auto has_it = [&](const engine::InletRecord& inlet) { return inlet.text(number) == wanted; };
    const auto end = before.inlets.begin() + static_cast<std::ptrdiff_t>(index) + 1;
    auto left = std::count_if(before.inlets.begin(), end, has_it);
    for (std::size_t i = 0; i < now.inlets.size(); ++i) {
        if (has_it(now.inlets[i]) && --left == 0) {
            return i;
        }
    }
    return std::min(index, now.inlets.size() - 1);
}

}  // namespace gullymark::review
