// Solves a second, from the texts of an inlet to the texts of its results, on one core; with the trace off and on.

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

#include "engine/hydraulics/Common_Libraries.h"
#include "engine/inlet_record.h"
#include "engine/solve.h"
#include "engine/step.h"
#include "engine/unit_constants.h"
#include "tools/case_table.h"

namespace {

using namespace gullymark;

/// The ordinary inlets of one kind, each as its record before the solve, ENGLISH ones alone.
std::vector<engine::InletRecord> ordinary_inlets(const std::string& location, const std::string& type) {
    const auto table = cases::read_table(GULLYMARK_SOURCE_DIR "/tests/cases/solves_ordinary.tsv");
    std::vector<engine::InletRecord> inlets;
    for (const auto& row : table.rows) {
        if (cases::cell(table, row, "UNITS") == "ENGLISH" &&
            cases::cell(table, row, "INLET_LOCATION") == location &&
            cases::cell(table, row, "INLET_TYPE") == type) {
            cases::load_row(table, row);
            inlets.push_back(engine::open_inlet);
        }
    }
    return inlets;
}

void solve_all(benchmark::State& state, const std::vector<engine::InletRecord>& inlets, bool traced) {
    engine::UnitSystem = "ENGLISH";
    engine::set_unit_defaults();
    std::vector<engine::TraceLine> trace;
    engine::onlooker.trace = traced ? &trace : nullptr;
    std::size_t next = 0;
    for (auto _ : state) {
        state.PauseTiming();
        engine::open_inlet = inlets[next++ % inlets.size()];
        state.ResumeTiming();
        for (int i = 0; i < 64; ++i) {
            trace.clear();
            engine::check_and_solve();
        }
    }
    engine::onlooker.trace = nullptr;
    state.SetItemsProcessed(state.iterations() * 64);
}

void solve_curb_example(benchmark::State& state) {
    engine::open_inlet = {};
    const std::map<engine::Column, const char*> example = {
        {engine::Column::INLET_LOCATION, "CONTINUOUS GRADE"},
        {engine::Column::INLET_TYPE, "Curb Inlet"},
        {engine::Column::TOTAL_DISCHARGE, "1.77"},
        {engine::Column::LONGSLOPE, "0.01"},
        {engine::Column::MANNINGS, "0.016"},
        {engine::Column::GUTWIDTH, "0"},
        {engine::Column::PAVXSLOPE, "0.02"},
        {engine::Column::GUTXSLOPE, "0.02"},
        {engine::Column::INLETXSLOPE, "0.02"},
        {engine::Column::LOCDEPWIDTH, "0"},
        {engine::Column::ALLOWABLE_SPREAD, "10"},
        {engine::Column::INLETLENGTH, "9.84"},
        {engine::Column::GRATEPERCLOG, "0"},
    };
    for (const auto& [column, text] : example) {
        engine::open_inlet.load(column, text);
    }
    solve_all(state, {engine::open_inlet}, false);
}
BENCHMARK(solve_curb_example);

/// One evaluation of what a bisection of the gutter spread evaluates in each pass: the floor of a solve.
void one_pass_of_the_spread_search(benchmark::State& state) {
    engine::Real T = 7.5;
    for (auto _ : state) {
        const auto Qs = 1.0 * engine::power(T - 2.0, 2.67);
        engine::Real Q = Qs / engine::side_flow_share(T, 2.0, 0.08, 0.02);
        benchmark::DoNotOptimize(T);
        benchmark::DoNotOptimize(Q);
    }
}
BENCHMARK(one_pass_of_the_spread_search);

void register_kinds() {
    for (const std::string location : {"CONTINUOUS GRADE", "SUMP"}) {
        for (const std::string type : {"Curb Inlet", "Grate Inlet", "Combination Curb and Grate Inlet",
                                       "Slotted Inlet", "Grate Inlet in a Ditch"}) {
            for (const bool traced : {false, true}) {
                benchmark::RegisterBenchmark((type + ", " + location + (traced ? ", traced" : "")).c_str(),
                                             [=](benchmark::State& state) {
                                                 solve_all(state, ordinary_inlets(location, type), traced);
                                             });
            }
        }
    }
}

[[maybe_unused]] const bool registered = (register_kinds(), true);

}  // namespace
