#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "calculation/solve_copy.h"
#include "engine/inlet_flow.h"
#include "engine/words.h"
#include "platform/number_text.h"
#include "review/project.h"

/// Roads of any length, made by one rule.
namespace gullymark::testing_support {

/// Inlets every 60 ft from 10+00, in turn on the left and on the right, of all kinds in turn. Each takes the bypass of the one
/// before on its side; the sixth of each six stands in a sump and takes what comes from both sides. As a designer leaves it:
/// of every 11 inlets one was changed without its next one, of every 13 one names no previous inlet, of every 40 one has a
/// station that cannot be read.
class MadeRoad {
  public:
    static review::Project make(std::size_t inlets) {
        MadeRoad road;
        for (std::size_t i = 0; i < inlets; ++i) {
            road.add(i);
        }
        return std::move(road.project_);
    }

  private:
    using Column = engine::Column;

    static std::string station(std::size_t feet) {
        const std::string rest = std::to_string(feet % 100);
        return std::to_string(feet / 100) + '+' + (rest.size() < 2 ? "0" : "") + rest;
    }

    void add(std::size_t i) {
        using namespace engine::words;
        constexpr std::array kinds{curb_inlet, grate_inlet, combination_inlet, slotted_inlet, ditch_inlet};
        const bool in_sump = i % 6 == 5;
        const bool is_left = i % 2 == 0;
        engine::InletRecord inlet;
        const auto set = [&inlet](Column column, std::string_view text) {
            inlet.load(column, std::string(text));
        };
        set(Column::INLET_NUMBER, number(i));
        set(Column::STATION, i % 40 == 7 ? "near the bridge" : station(1000 + 60 * i));
        set(Column::INLET_TYPE, in_sump ? kinds.at(i / 6 % 4) : kinds.at(i % 5));
        set(Column::INLET_LOCATION, in_sump ? sump : continuous_grade);
        set(Column::OFFSET, is_left ? "-14.000" : "14.000");
        set(Column::OFFSET_LOCATION, is_left ? "LEFT" : "RIGHT");
        set(Column::TOP_ELEVATION, platform::format_number(500.0 - 0.5 * static_cast<double>(i), "0.000"));
        set_flow(set, i, in_sump);
        set_sizes(set);
        if (in_sump) {
            set(Column::GRATEPERCLOG, "10");
            set(Column::GUTXSLOPE, "0.0208");
        }
        project_.inlets.push_back(solved(std::move(inlet), in_sump));
        if (i % 11 == 3) {  // changed, solved and saved, and nobody told the next one
            auto& changed = project_.inlets.back();
            changed.load(Column::QCARRY, "0.777");
        }
    }

    static std::string number(std::size_t i) { return std::to_string(i + 1); }

    template <typename Set>
    void set_flow(const Set& set, std::size_t i, bool in_sump) const {
        const auto runoff = platform::format_number(0.1 + 0.07 * static_cast<double>(i % 7), "0.0000");
        const auto flow = platform::format_number(6.0 * 0.75 * platform::read_number(runoff).number, "0.000");
        set(Column::LDISCHARGE_OVERRIDE, "NO");
        set(Column::RUNOFF_AREA, runoff);
        set(Column::RUNOFF_COEFF, "0.7500");
        set(Column::INTENSITY, "6.00");
        set(Column::DISCHARGE1, flow);
        set(Column::OVERLAND_FLOW, "0.000");
        const bool names_none = i % 13 == 9;
        const std::size_t before = in_sump ? 1 : (i % 6 == 0 ? i + 1 : 2);
        take_over(set, names_none || before > i ? project_.inlets.size() : i - before, Column::PREINLET1,
                  Column::CARRYOVER1);
        if (in_sump) {
            set(Column::RDISCHARGE_OVERRIDE, "NO");
            set(Column::RUNOFF_AREA2, runoff);
            set(Column::RUNOFF_COEFF2, "0.7500");
            set(Column::INTENSITY2, "6.00");
            set(Column::DISCHARGE2, flow);
            take_over(set, i - 2, Column::PREINLET2, Column::CARRYOVER2);
        }
    }

    template <typename Set>
    void take_over(const Set& set, std::size_t source, Column previous, Column carryover) const {
        const bool is_one = source < project_.inlets.size() &&
                            project_.inlets[source].text(Column::INLET_LOCATION) != engine::words::sump;
        set(previous, is_one ? number(source) : "");
        set(carryover, is_one ? engine::carryover_from(project_.inlets[source].text(Column::QCARRY)) : "0.0");
    }

    template <typename Set>
    static void set_sizes(const Set& set) {
        using Text = std::pair<Column, std::string_view>;
        for (const auto& [column, text] : std::to_array<Text>({
                 {Column::CURB_HEIGHT, "6.0"},      {Column::ALLOWABLE_SPREAD, "8.0"},
                 {Column::LONGSLOPE, "0.0200"},     {Column::MANNINGS, "0.016"},
                 {Column::GUTWIDTH, "2.000"},       {Column::PAVXSLOPE, "0.0208"},
                 {Column::GUTXSLOPE, "0.0833"},     {Column::INLETXSLOPE, "0.3333"},
                 {Column::LOCDEPWIDTH, "2.000"},    {Column::INLETLENGTH, "6.000"},
                 {Column::GRATEPERCLOG, "25"},      {Column::OPENLEN_GRATE, "2.000"},
                 {Column::GRATETYPE, "P-1-7/8"},    {Column::GRATEWIDTH, "2.000"},
                 {Column::GRATEAREA, "4.000"},      {Column::GRATEPERI, "8.000"},
                 {Column::THROATYPE, "Horizontal"}, {Column::THROATANGLE, "90.00"},
                 {Column::HEIGHTOFCURB, "6.000"},   {Column::SLOTWIDTH, "21.00"},
                 {Column::RSCOPERATIO, "3.000"},    {Column::LSCOPERATIO, "3.000"},
                 {Column::CURBOPTION, "With Curb"},
             })) {
            set(column, text);
        }
    }

    static engine::InletRecord solved(engine::InletRecord inlet, bool in_sump) {
        const auto number_in = [&inlet](Column column) {
            return platform::read_number(inlet.text(column)).number;
        };
        const double total =
            engine::total_flow({.from_left = number_in(Column::DISCHARGE1),
                                .from_right = in_sump ? number_in(Column::DISCHARGE2) : 0.0,
                                .bypass_left = number_in(Column::CARRYOVER1),
                                .bypass_right = in_sump ? number_in(Column::CARRYOVER2) : 0.0})
                .number();
        inlet.load(Column::TOTAL_DISCHARGE, platform::format_number(total, "0.000"));
        return calculation::solve_copy(inlet, "ENGLISH", "0.000").inlet;
    }

    review::Project project_{.id = "P-9", .name = "County Road 9", .units = "ENGLISH"};
};

}  // namespace gullymark::testing_support
