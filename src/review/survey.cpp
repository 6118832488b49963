#include "review/survey.h"

#include <algorithm>
#include <array>

#include "calculation/typeset.h"
#include "engine/unit_constants.h"
#include "engine/units.h"
#include "platform/number_text.h"
#include "section/measures.h"

namespace gullymark::review {

using engine::Column;

namespace {

constexpr Side left_of(std::string_view behind) {
    return {behind,
            Column::LDISCHARGE_OVERRIDE,
            Column::RUNOFF_AREA,
            Column::RUNOFF_COEFF,
            Column::INTENSITY,
            Column::DISCHARGE1,
            Column::PREINLET1,
            Column::CARRYOVER1};
}

constexpr std::array in_a_sump{
    left_of(" of the left side"),
    Side{" of the right side", Column::RDISCHARGE_OVERRIDE, Column::RUNOFF_AREA2, Column::RUNOFF_COEFF2,
         Column::INTENSITY2, Column::DISCHARGE2, Column::PREINLET2, Column::CARRYOVER2}};
constexpr std::array on_a_grade{left_of("")};

const std::vector<Survey::Index> nowhere;

std::string with_unit(const std::string& text, engine::Unit unit) {
    const auto name = engine::unit_text(unit);
    return name.empty() ? text : text + ' ' + std::string(name);
}

}  // namespace

std::span<const Side> sides_of(const engine::InletRecord& record) {
    return section::in_sump(record) ? std::span<const Side>(in_a_sump) : std::span<const Side>(on_a_grade);
}

std::optional<double> number_of(std::string_view text) {
    const auto read = platform::read_number(text);
    return read.fault == platform::NumberFault::none ? std::optional(read.number) : std::nullopt;
}

double number_or_zero(const engine::InletRecord& record, Column column) {
    return number_of(record.text(column)).value_or(0.0);
}

std::string told(const engine::InletRecord& record, Column column) {
    const auto& text = record.text(column);
    return text.empty() ? "blank" : with_unit(calculation::shortened(text), engine::column_unit(column));
}

std::string told_flow(double flow) {
    return with_unit(platform::format_number(flow, engine::by_units("0.000", "0.0000")),
                     engine::Unit::discharge);
}

std::vector<std::string> stored_formats() {
    return engine::is_english() ? std::vector<std::string>{"0.000"}
                                : std::vector<std::string>{"0.0000", "0.000"};
}

bool is_stored_as(std::string_view text, double number, const std::vector<std::string>& formats) {
    const auto stored = number_of(text);
    return stored && std::any_of(formats.begin(), formats.end(), [&](const std::string& format) {
               return number_of(platform::format_number(number, format)) == stored;
           });
}

Survey::Survey(const Project& project, const Limits& limits) : project_(project), limits_(limits) {
    for (Index index = 0; index < count(); ++index) {
        const auto& record = inlet(index);
        by_number_[record.text(Column::INLET_NUMBER)].push_back(index);
        for (const auto& side : sides_of(record)) {
            if (const auto& previous = record.text(side.preinlet); !previous.empty()) {
                takers_[previous].push_back(index);
            }
        }
    }
}

const std::vector<Survey::Index>& Survey::with_number(const std::string& number) const {
    const auto found = by_number_.find(number);
    return found == by_number_.end() ? nowhere : found->second;
}

const std::vector<Survey::Index>& Survey::takers_of(const std::string& number) const {
    const auto found = takers_.find(number);
    return found == takers_.end() ? nowhere : found->second;
}

void Survey::report(const Rule& rule, Index index, std::string text, std::string advice) {
    told_.push_back({.index = index,
                     .finding = {.severity = rule.severity,
                                 .rule = rule.name,
                                 .inlet = index == whole_project ? std::string()
                                                                 : inlet(index).text(Column::INLET_NUMBER),
                                 .text = std::move(text),
                                 .advice = std::move(advice)}});
}

std::vector<Finding> Survey::take_findings() {
    std::stable_sort(told_.begin(), told_.end(), [](const Told& one, const Told& other) {
        return std::pair(one.finding.severity, one.index) < std::pair(other.finding.severity, other.index);
    });
    std::vector<Finding> findings;
    findings.reserve(told_.size());
    for (auto& each : told_) {
        findings.push_back(std::move(each.finding));
    }
    told_.clear();
    return findings;
}

}  // namespace gullymark::review
