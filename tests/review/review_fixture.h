#pragma once

#include <gmock/gmock.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "calculation/solve_copy.h"
#include "engine/engine_fixture.h"
#include "engine/inlet_flow.h"
#include "engine/results.h"
#include "platform/number_text.h"
#include "review/advices.h"
#include "review/findings.h"
#include "review/rules.h"

namespace gullymark::review {

using engine::Column;
using Texts = std::initializer_list<std::pair<Column, std::string_view>>;
using Told = std::vector<std::string>;

/// A road of ten inlets: five down the left to a sump, four down the right. Everything is up to date and within what is
/// allowed, so that nothing is found.
class ReviewTest : public engine::EngineTest {
  protected:
    static constexpr std::size_t sump = 9;

    void SetUp() override {
        EngineTest::SetUp();
        project = {.id = "P-1", .name = "Mill Road", .units = "ENGLISH"};
        for (int i = 1; i <= 5; ++i) {
            add_curb_inlet("L" + std::to_string(i), i == 1 ? "" : "L" + std::to_string(i - 1), 110 - i);
        }
        for (int i = 1; i <= 4; ++i) {
            add_curb_inlet("R" + std::to_string(i), i == 1 ? "" : "R" + std::to_string(i - 1), 110 - i);
        }
        add_curb_inlet("S1", "L5", 100);
        change(sump, {{Column::INLET_LOCATION, "SUMP"},
                      {Column::PREINLET2, "R4"},
                      {Column::RDISCHARGE_OVERRIDE, "NO"},
                      {Column::RUNOFF_AREA2, "0.1000"},
                      {Column::RUNOFF_COEFF2, "0.7500"},
                      {Column::INTENSITY2, "6.00"},
                      {Column::DISCHARGE2, "0.450"},
                      {Column::CARRYOVER2, "0.0"},
                      {Column::HEIGHTOFCURB, "6.000"},
                      {Column::THROATYPE, "Horizontal"},
                      {Column::THROATANGLE, "90.00"},
                      {Column::INLETLENGTH, "30.000"},
                      {Column::GUTXSLOPE, "0.0208"},
                      {Column::GRATEPERCLOG, "50"}});
        bring_up_to_date();
    }

    void add_curb_inlet(const std::string& number, const std::string& previous, int top) {
        project.inlets.emplace_back();
        change(project.inlets.size() - 1, {{Column::INLET_NUMBER, number},
                                           {Column::INLET_TYPE, "Curb Inlet"},
                                           {Column::INLET_LOCATION, "CONTINUOUS GRADE"},
                                           {Column::OFFSET, "12.000"},
                                           {Column::OFFSET_LOCATION, "RIGHT"},
                                           {Column::TOP_ELEVATION, std::to_string(top) + ".000"},
                                           {Column::CURB_HEIGHT, "6.0"},
                                           {Column::ALLOWABLE_SPREAD, "8.0"},
                                           {Column::LDISCHARGE_OVERRIDE, "NO"},
                                           {Column::RUNOFF_AREA, "0.2000"},
                                           {Column::RUNOFF_COEFF, "0.7500"},
                                           {Column::INTENSITY, "6.00"},
                                           {Column::DISCHARGE1, "0.900"},
                                           {Column::PREINLET1, previous},
                                           {Column::CARRYOVER1, "0.0"},
                                           {Column::OVERLAND_FLOW, "0.000"},
                                           {Column::LONGSLOPE, "0.0300"},
                                           {Column::MANNINGS, "0.016"},
                                           {Column::GUTWIDTH, "2.000"},
                                           {Column::PAVXSLOPE, "0.0208"},
                                           {Column::GUTXSLOPE, "0.0833"},
                                           {Column::INLETXSLOPE, "0.3333"},
                                           {Column::LOCDEPWIDTH, "2.000"},
                                           {Column::INLETLENGTH, "5.000"},
                                           {Column::GRATEPERCLOG, "50"}});
    }

    void change(std::size_t index, Texts texts) {
        for (const auto& [column, text] : texts) {
            project.inlets.at(index).load(column, std::string(text));
        }
    }

    [[nodiscard]] const std::string& stored(std::size_t index, Column column) const {
        return project.inlets.at(index).text(column);
    }

    /// Carryover, total and results of one inlet, as the program hands them on and stores them.
    void update(std::size_t index) {
        auto& inlet = project.inlets.at(index);
        const bool in_sump = inlet.text(Column::INLET_LOCATION) == "SUMP";
        for (const auto& [column, zero] :
             {std::pair{Column::DISCHARGE2, "0.000"}, std::pair{Column::CARRYOVER2, "0.0"}}) {
            if (inlet.text(column).empty()) {
                inlet.load(column, zero);
            }
        }
        take_bypass(inlet, Column::PREINLET1, Column::CARRYOVER1);
        if (in_sump) {
            take_bypass(inlet, Column::PREINLET2, Column::CARRYOVER2);
        }
        const auto number = [&](Column column) { return platform::read_number(inlet.text(column)).number; };
        const double total = engine::total_flow({.from_left = number(Column::DISCHARGE1),
                                                 .from_right = in_sump ? number(Column::DISCHARGE2) : 0.0,
                                                 .bypass_left = number(Column::CARRYOVER1),
                                                 .bypass_right = in_sump ? number(Column::CARRYOVER2) : 0.0,
                                                 .overland = number(Column::OVERLAND_FLOW)})
                                 .number();
        inlet.load(Column::TOTAL_DISCHARGE, platform::format_number(total, "0.000"));
        solve(index);
    }

    /// The inlet as it is after Solve and Save, with what stands in its inputs.
    void solve(std::size_t index) {
        auto& inlet = project.inlets.at(index);
        inlet = calculation::solve_copy(inlet, project.units, "0.000").inlet;
    }

    void bring_up_to_date() {
        for (std::size_t index = 0; index < project.inlets.size(); ++index) {
            update(index);
        }
    }

    /// What is told by a rule: "L1: ..." of an inlet, the bare sentence of the project.
    [[nodiscard]] Told told_by(std::string_view rule) const {
        Told all;
        for (const auto& finding : judge(project, limits)) {
            EXPECT_THAT(advices, testing::Contains(testing::Pair(finding.rule, finding.advice)));
            if (finding.rule == rule) {
                all.push_back(finding.inlet.empty() ? finding.text : finding.inlet + ": " + finding.text);
            }
        }
        return all;
    }

    /// All that is found: "result-differs L1".
    [[nodiscard]] Told found() const {
        Told all;
        for (const auto& finding : judge(project, limits)) {
            all.push_back(finding.rule + ' ' + finding.inlet);
        }
        return all;
    }

    Project project;
    Limits limits;

  private:
    void take_bypass(engine::InletRecord& inlet, Column previous, Column carryover) {
        if (inlet.text(previous).empty()) {
            inlet.load(carryover, "0.0");
            return;
        }
        for (const auto& other : project.inlets) {
            if (other.text(Column::INLET_NUMBER) == inlet.text(previous)) {
                inlet.load(carryover, std::string(engine::carryover_from(other.text(Column::QCARRY))));
            }
        }
    }
};

}  // namespace gullymark::review
