// A project of many inlets: from Open until the workspace is ready, one inlet picked in the grid, one inlet saved with
// both refreshes, the listing opened. Without windows: what the shell adds is told in doc/performance.md.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "editor/inlet_form.h"
#include "editor/inlet_grid.h"
#include "editor/inlet_list.h"
#include "editor/life_cycle.h"
#include "editor/workspace.h"
#include "platform/outside.h"
#include "store/main_window.h"
#include "store/project_session.h"
#include "store/windows.h"
#include "tools/project_maker.h"

namespace {

using namespace gullymark;

std::string project_of(std::int64_t inlets) {
    const auto path =
        std::filesystem::temp_directory_path() / ("gullymark_bench_" + std::to_string(inlets) + ".gmk");
    if (!std::filesystem::exists(path)) {
        tools::make_project(GULLYMARK_BINARY_DIR "/bin/GullymarkAL10.rdb",
                            GULLYMARK_SOURCE_DIR "/tests/cases/solves_ordinary.tsv", path.string(),
                            static_cast<std::size_t>(inlets));
    }
    return path.string();
}

/// What the user does with Open, the file dialog answered.
void open_project(const std::string& path) {
    platform::outside.show_box = [](const platform::Box&) { return platform::Answer::yes; };
    platform::outside.choose_file = [path](const platform::FileDialogRequest&) { return path; };
    store::windows.show_workspace = editor::show_workspace;
    store::mnuopenProj_Click();
}

void leave_project() {
    editor::mnuExit_Click();
    store::mnucloseProj_Click();
}

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
    for (auto _ : state) {
        state.PauseTiming();
        editor::mnuEditinlet_Click();
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

void sizes(benchmark::internal::Benchmark* bench) {
    bench->Unit(benchmark::kMillisecond)->RangeMultiplier(10)->Range(10, 100000);
}

BENCHMARK(open_until_ready)->Apply(sizes);
BENCHMARK(pick_a_row)->Apply(sizes);
BENCHMARK(save_a_row)->Apply(sizes);
BENCHMARK(open_the_listing)->Apply(sizes);

}  // namespace
