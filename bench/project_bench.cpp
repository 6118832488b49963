// A project of many inlets: from Open until the workspace is ready, one inlet picked in the grid, one inlet saved with
// both refreshes, the listing opened. Without windows; window_bench has them.

#include <benchmark/benchmark.h>

#include <string>

#include "editor/form/field_events.h"
#include "editor/form/screen_fields.h"
#include "editor/form/solve_command.h"
#include "editor/records/grid_events.h"
#include "editor/windows/inlet_list.h"
#include "editor/windows/workspace_menu.h"
#include "many_inlets.h"
#include "store/windows.h"

namespace {

using namespace gullymark;
using bench::leave_project;
using bench::open_project;
using bench::project_of;
using bench::sizes;

void open_until_ready(benchmark::State& state) {
    const auto path = project_of(state.range(0));
    for (auto _ : state) {
        open_project(path);
        state.PauseTiming();
        leave_project();
        state.ResumeTiming();
    }
}

void pick_a_row(benchmark::State& state) {
    open_project(project_of(state.range(0)));
    int row = 0;
    for (auto _ : state) {
        row = (row + 7919) % static_cast<int>(state.range(0));
        editor::pick_grid_row(row + 1);
    }
    leave_project();
}

void save_a_row(benchmark::State& state) {
    open_project(project_of(state.range(0)));
    int station = 0;
    for (auto _ : state) {
        state.PauseTiming();
        editor::mnuEditinlet_Click();
        editor::edited(editor::FieldId::Station, std::to_string(++station));  // else nothing would be written
        editor::cmdsolve_Click();
        state.ResumeTiming();
        editor::mnuSaveinlet_Click();
    }
    leave_project();
}

void open_the_listing(benchmark::State& state) {
    open_project(project_of(state.range(0)));
    for (auto _ : state) {
        editor::show_inlet_list();
        state.PauseTiming();
        editor::unload_inlet_list();
        state.ResumeTiming();
    }
    leave_project();
}

BENCHMARK(open_until_ready)->Apply(sizes);
BENCHMARK(pick_a_row)->Apply(sizes);
BENCHMARK(save_a_row)->Apply(sizes);
BENCHMARK(open_the_listing)->Apply(sizes);

}  // namespace
