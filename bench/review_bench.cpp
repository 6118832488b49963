// A project read, judged and brought up to date, all inlets of all kinds mixed.

#include "many_inlets.h"
#include "review/findings.h"
#include "review/fresh_road.h"
#include "review/read_project.h"

namespace {

using namespace gullymark;

void read_a_project(benchmark::State& state) {
    const auto path = bench::project_of(state.range(0));
    for (auto _ : state) {
        auto project = review::read_project(path);
        benchmark::DoNotOptimize(project);
        state.PauseTiming();
        project = {};
        state.ResumeTiming();
    }
}
BENCHMARK(read_a_project)->Apply(bench::sizes);

void judge_a_project(benchmark::State& state) {
    const auto project = review::read_project(bench::project_of(state.range(0)));
    for (auto _ : state) {
        const auto findings = review::judge(project, {});
        state.counters["findings"] = static_cast<double>(findings.size());
    }
}
BENCHMARK(judge_a_project)->Apply(bench::sizes);

void bring_a_project_up_to_date(benchmark::State& state) {
    const auto project = review::read_project(bench::project_of(state.range(0)));
    for (auto _ : state) {
        const auto road = review::make_fresh_road(project);
        state.counters["to do"] = static_cast<double>(road.to_do.size());
    }
}
BENCHMARK(bring_a_project_up_to_date)->Apply(bench::sizes);

/// What the aim is told of: read, solved twice and judged.
void review_a_project(benchmark::State& state) {
    const auto path = bench::project_of(state.range(0));
    for (auto _ : state) {
        const auto project = review::read_project(path);
        benchmark::DoNotOptimize(review::judge(project, {}));
        benchmark::DoNotOptimize(review::make_fresh_road(project));
    }
}
BENCHMARK(review_a_project)->Apply(bench::sizes);

}  // namespace
