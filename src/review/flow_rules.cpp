#include "review/flow_rules.h"

#include <algorithm>
#include <cmath>

#include "engine/inlet_flow.h"
#include "engine/solve.h"
#include "platform/number_text.h"
#include "section/measures.h"

namespace gullymark::review {

using engine::Column;

namespace {

/// The discharge that a side has by its runoff; nothing where a factor is no number or the product is none.
std::optional<double> runoff_of(const engine::InletRecord& record, const Side& side) {
    const auto intensity = number_of(record.text(side.intensity));
    const auto area = number_of(record.text(side.area));
    const auto coefficient = number_of(record.text(side.coefficient));
    if (!intensity || !area || !coefficient) {
        return std::nullopt;
    }
    try {
        return engine::rational_discharge(*intensity, *area, *coefficient).number();
    } catch (engine::Fault) {
        return std::nullopt;
    }
}

void judge_discharge(Survey& survey, Survey::Index index, const Side& side) {
    const auto& record = survey.inlet(index);
    if (record.text(side.override_text) == "YES") {
        return;
    }
    const auto runoff = runoff_of(record, side);
    if (is_stored_as(record.text(side.discharge), runoff.value_or(0.0),
                     {std::string(engine::discharge_format)}) ||
        (!runoff && record.text(side.discharge).empty())) {
        return;
    }
    engine::InletRecord fresh;
    if (runoff) {
        fresh.load(side.discharge, platform::format_number(*runoff, engine::discharge_format));
    }
    survey.report(rules::discharge_differs, index,
                  "Discharge" + std::string(side.behind) + " is stored as " + told(record, side.discharge) +
                      " and is not typed, but " + told(record, side.intensity) + " x " +
                      told(record, side.area) + " x " + told(record, side.coefficient) +
                      (runoff ? " gives " + told(fresh, side.discharge) : std::string(" gives nothing")) +
                      ".",
                  "Open the inlet, go through its runoff or check the override, solve and save.");
}

engine::FlowShares shares_of(const engine::InletRecord& record) {
    engine::FlowShares shares{.from_left = number_or_zero(record, Column::DISCHARGE1),
                              .bypass_left = number_or_zero(record, Column::CARRYOVER1),
                              .overland = number_or_zero(record, Column::OVERLAND_FLOW)};
    if (section::in_sump(record)) {
        shares.from_right = number_or_zero(record, Column::DISCHARGE2);
        shares.bypass_right = number_or_zero(record, Column::CARRYOVER2);
    }
    return shares;
}

void judge_total(Survey& survey, Survey::Index index) {
    const auto& record = survey.inlet(index);
    try {
        const double total = engine::total_flow(shares_of(record)).number();
        if (!is_stored_as(record.text(Column::TOTAL_DISCHARGE), total, stored_formats())) {
            survey.report(rules::total_differs, index,
                          "Total discharge is stored as " + told(record, Column::TOTAL_DISCHARGE) +
                              ", but discharge, carryover and overland flow add up to " + told_flow(total) +
                              ".",
                          "Open the inlet, leave one of its flow fields, solve and save.");
        }
    } catch (engine::Fault) {
        survey.report(rules::total_differs, index,
                      "Total discharge is stored as " + told(record, Column::TOTAL_DISCHARGE) +
                          ", but discharge, carryover and overland flow are too great to add up.",
                      "Open the inlet and type its flow anew.");
    }
}

void judge_vanished_flow(Survey& survey, Survey::Index index) {
    const auto& record = survey.inlet(index);
    const bool is_known =
        !engine::sheet_of(record.text(Column::INLET_LOCATION), record.text(Column::INLET_TYPE)).empty();
    if (is_known && number_or_zero(record, Column::TOTAL_DISCHARGE) > 0 &&
        number_or_zero(record, Column::QINT) == 0 && record.text(Column::QCARRY).empty()) {
        survey.report(rules::flow_vanishes, index,
                      told(record, Column::TOTAL_DISCHARGE) +
                          " come to the inlet, but it stores no intercepted flow and no bypass.",
                      "Solve and save the inlet; where Solve gives neither, work out by hand what it takes.");
    }
}

/// Half a unit of the last digit of a text.
double half_a_digit(const std::string& text) {
    const auto point = text.find('.');
    const auto decimals = point == std::string::npos ? 0 : text.size() - point - 1;
    return 0.5 * std::pow(10.0, -static_cast<double>(std::min<std::size_t>(decimals, 300)));
}

struct Balance {
    double in = 0;
    double intercepted = 0;
    double out = 0;
    double rounding = 0;
};

void add_inlet(Balance& balance, const Survey& survey, const engine::InletRecord& record) {
    const auto shares = shares_of(record);
    balance.in += shares.from_left.number() + shares.from_right.number() + shares.overland.number();
    balance.intercepted += number_or_zero(record, Column::QINT);
    if (survey.takers_of(record.text(Column::INLET_NUMBER)).empty()) {
        balance.out += number_or_zero(record, Column::QCARRY);
    }
    for (const Column column : {Column::TOTAL_DISCHARGE, Column::QINT, Column::QCARRY}) {
        if (number_of(record.text(column))) {
            balance.rounding += half_a_digit(record.text(column));
        }
    }
}

}  // namespace

void judge_flows(Survey& survey, Survey::Index index) {
    for (const auto& side : sides_of(survey.inlet(index))) {
        judge_discharge(survey, index, side);
    }
    judge_total(survey, index);
    judge_vanished_flow(survey, index);
}

void judge_balance(Survey& survey) {
    Balance balance;
    for (const auto& record : survey.project().inlets) {
        add_inlet(balance, survey, record);
    }
    const double unexplained = balance.in - balance.intercepted - balance.out;
    constexpr double sums_of_doubles = 1e-9;
    if (std::fabs(unexplained) <= balance.rounding + sums_of_doubles * std::fabs(balance.in)) {
        return;
    }
    survey.report(rules::balance_open, Survey::whole_project,
                  "Runoff in is " + told_flow(balance.in) + ", intercepted are " +
                      told_flow(balance.intercepted) + ", bypass out is " + told_flow(balance.out) + ": " +
                      told_flow(unexplained) + " are unexplained.",
                  "Bring the inlets up to date from the highest down; the findings on them tell which.");
}

}  // namespace gullymark::review
