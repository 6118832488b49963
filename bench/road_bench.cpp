// What the pages of the road and of sizing take: from a project to the shapes of its road, from these to the pixels of a page,
// and an inlet with every standard of its table.

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include "engine/unit_constants.h"
#include "engine/words.h"
#include "review/findings.h"
#include "review/flow_curve.h"
#include "review/made_road.h"
#include "review/sizing.h"
#include "shell/review/road_painter.h"

namespace {

using namespace gullymark;
using engine::Column;

review::Project road_of(std::int64_t inlets) {
    return testing_support::MadeRoad::make(static_cast<std::size_t>(inlets));
}

void plan_a_road(benchmark::State& state) {
    const auto project = road_of(state.range(0));
    const auto findings = review::judge(project, {});
    for (auto _ : state) {
        benchmark::DoNotOptimize(review::plan_road(project, findings));
    }
}

/// All of the road, or a twentieth of it.
void paint_a_road(benchmark::State& state) {
    const auto project = road_of(state.range(0));
    const auto plan = review::plan_road(project, review::judge(project, {}));
    const auto colors = shell::road_colors_on_paper();
    QImage page(1240, 700, QImage::Format_ARGB32_Premultiplied);
    const double part = (plan.to - plan.from) / static_cast<double>(state.range(1));
    for (auto _ : state) {
        QPainter painter(&page);
        shell::paint_road(painter, page.rect(), plan, plan.from, plan.from + part, colors);
    }
}

/// The inlet of that kind with all rows of its table, with its largest areas and, on a grade, its distances.
void size_an_inlet(benchmark::State& state) {
    auto inlet = road_of(12).inlets.at(static_cast<std::size_t>(state.range(0)));
    std::size_t rows = 0;
    for (auto _ : state) {
        rows = review::size_inlet(inlet, "ENGLISH", 0.001).rows.size();
    }
    state.counters["rows"] = static_cast<double>(rows);
}

void plot_an_inlet(benchmark::State& state) {
    const auto inlet = road_of(12).inlets.front();
    for (auto _ : state) {
        benchmark::DoNotOptimize(review::flow_curve(inlet, "ENGLISH", nullptr));
    }
}

constexpr int grate_on_grade = 1;
constexpr int grate_in_sump = 11;
constexpr int curb_on_grade = 10;

BENCHMARK(plan_a_road)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(paint_a_road)
    ->Args({12, 1})
    ->Args({1000, 1})
    ->Args({1000, 20})
    ->Args({10000, 1})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(size_an_inlet)
    ->Arg(curb_on_grade)
    ->Arg(grate_on_grade)
    ->Arg(grate_in_sump)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(plot_an_inlet)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
