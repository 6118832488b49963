// What the picture of an inlet takes: from its record to a drawing, and from that to the pixels of a page.

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include "engine/inlet_record.h"
#include "section/section.h"
#include "shell/binding/section_painter.h"
#include "tools/case_table.h"

namespace {

using namespace gullymark;

/// The kinds of inlets that the help shows, solved; the third is a curb inlet in a sump, with three views.
void solve_inlet(std::int64_t row) {
    static const auto table = cases::read_table(GULLYMARK_SOURCE_DIR "/tests/cases/solves_help.tsv");
    cases::solve_row(table, table.rows.at(static_cast<std::size_t>(row)));
}

void draw_from_the_record(benchmark::State& state) {
    solve_inlet(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(section::draw_section(engine::open_inlet, section::Water::solved));
    }
}

void paint_on_a_page(benchmark::State& state) {
    solve_inlet(state.range(0));
    const auto section = section::draw_section(engine::open_inlet, section::Water::unsolved);
    const auto colors = shell::section_colors_on_paper();
    QImage page(640, 300, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        QPainter painter(&page);
        shell::paint_section(painter, page.rect(), section, colors);
    }
}

BENCHMARK(draw_from_the_record)->Arg(0)->Arg(2);
BENCHMARK(paint_on_a_page)->Arg(0)->Arg(2)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
