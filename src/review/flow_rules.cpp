#include "review/flow_rules.h"

#include "engine/inlet_flow.h"
#include "engine/solve.h"
#include "platform/number_text.h"
#include "review/balance.h"

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

}  // namespace

void judge_flows(Survey& survey, Survey::Index index) {
    for (const auto& side : sides_of(survey.inlet(index))) {
        judge_discharge(survey, index, side);
    }
    judge_total(survey, index);
    judge_vanished_flow(survey, index);
}

void judge_balance(Survey& survey) {
    const Balance balance = balance_of(survey.project(), survey.links());
    if (balance.closes()) {
        return;
    }
    survey.report(rules::balance_open, whole_project,
                  "Runoff in is " + told_flow(balance.in) + ", intercepted are " +
                      told_flow(balance.intercepted) + ", bypass out is " + told_flow(balance.out) + ": " +
                      told_flow(balance.unexplained()) + " are unexplained.",
                  "Bring the inlets up to date from the highest down; the findings on them tell which.");
}

}  // namespace gullymark::review
