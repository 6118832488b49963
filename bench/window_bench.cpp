// What a user waits for in a project of many inlets: the same deeds as in project_bench, through the real windows, until
// everything is painted. The windows are drawn into memory (the toolkit's offscreen platform).

#include <benchmark/benchmark.h>

#include <string>

#include <QApplication>
#include <QTableView>

#include "calculation/worked_calculation.h"
#include "editor/form/field_events.h"
#include "editor/form/screen_fields.h"
#include "editor/form/solve_command.h"
#include "editor/windows/inlet_list.h"
#include "editor/windows/workspace_menu.h"
#include "engine/unit_constants.h"
#include "many_inlets.h"
#include "platform/files.h"
#include "shell/binding/turn.h"
#include "shell/start.h"
#include "shell/windows/calculation_window.h"
#include "tools/case_table.h"

namespace {

using namespace gullymark;
using shell::handle;

/// Until nothing is left to lay out or to paint.
void settle() {
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

QWidget& window(const char* name) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == name) {
            return *widget;
        }
    }
    std::abort();
}

/// The program in front of its main window, which opens the projects.
struct Windows {
    Windows() {
        shell::build_windows();
        handle(store::load_main_window);
    }
    ~Windows() { shell::destroy_windows(); }
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;

    static void open(std::int64_t inlets) {
        const auto path = bench::project_of(inlets);
        handle([&] { bench::open_project(path); });
        settle();
    }
    static void leave() {
        handle(bench::leave_project);
        settle();
    }
};

void open_until_painted(benchmark::State& state) {
    const Windows windows;
    bench::project_of(state.range(0));  // made before the clock runs
    for (auto _ : state) {
        Windows::open(state.range(0));
        state.PauseTiming();
        Windows::leave();
        state.ResumeTiming();
    }
}

void pick_a_row(benchmark::State& state) {
    const Windows windows;
    Windows::open(state.range(0));
    auto& grid = *window("MDIInlet").findChild<QTableView*>("flexgrid");
    int row = 0;
    for (auto _ : state) {
        row = (row + 7919) % static_cast<int>(state.range(0));
        grid.setCurrentIndex(grid.model()->index(row, 0));
        settle();
    }
    Windows::leave();
}

void save_a_row(benchmark::State& state) {
    const Windows windows;
    Windows::open(state.range(0));
    int station = 0;
    for (auto _ : state) {
        state.PauseTiming();
        handle(editor::mnuEditinlet_Click);
        editor::edited(editor::FieldId::Station, std::to_string(++station));  // else nothing would be written
        handle(editor::cmdsolve_Click);
        settle();
        state.ResumeTiming();
        handle(editor::mnuSaveinlet_Click);
        settle();
    }
    Windows::leave();
}

void open_the_listing(benchmark::State& state) {
    const Windows windows;
    Windows::open(state.range(0));
    for (auto _ : state) {
        handle(editor::show_inlet_list);
        settle();
        state.PauseTiming();
        handle(editor::exit_inlet_list);
        settle();
        state.ResumeTiming();
    }
    Windows::leave();
}

/// A digit in a field of the inlet data, which the section beside it follows.
void type_a_digit(benchmark::State& state) {
    const Windows windows;
    Windows::open(state.range(0));
    handle(editor::mnuEditinlet_Click);
    handle([] { editor::tab_clicked(2); });
    settle();
    bool wide = false;
    for (auto _ : state) {
        wide = !wide;
        handle([wide] { editor::edited(editor::FieldId::txtW, wide ? "3.5" : "2.5"); });
        settle();
    }
    Windows::leave();
}

/// An inlet of a kind: 0 to 9 in the order of the table, ENGLISH.
void solve_kind(std::int64_t kind) {
    constexpr std::size_t of_each_kind = 30;
    const auto table = cases::read_table(GULLYMARK_SOURCE_DIR "/tests/cases/solves_ordinary.tsv");
    cases::solve_row(table, table.rows.at(static_cast<std::size_t>(kind) * of_each_kind));
}

calculation::Document work_out() {
    return calculation::work_out({.inlet = engine::open_inlet, .units = engine::UnitSystem});
}

void work_an_inlet_out(benchmark::State& state) {
    solve_kind(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(work_out());
    }
}

/// Worked out, laid out and painted.
void show_a_worked_calculation(benchmark::State& state) {
    const Windows windows;
    solve_kind(state.range(0));
    for (auto _ : state) {
        shell::CalculationWindow calculation(work_out(), section::Water::solved);
        calculation.show();
        settle();
    }
}

BENCHMARK(work_an_inlet_out)->DenseRange(0, 9);
BENCHMARK(show_a_worked_calculation)->DenseRange(0, 9)->UseRealTime();
BENCHMARK(open_until_painted)->Apply(bench::sizes)->UseRealTime();
BENCHMARK(pick_a_row)->Apply(bench::sizes)->UseRealTime();
BENCHMARK(save_a_row)->Apply(bench::sizes)->UseRealTime();
BENCHMARK(type_a_digit)->Arg(10)->UseRealTime();
BENCHMARK(open_the_listing)->Apply(bench::sizes)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    platform::set_program_folder(GULLYMARK_BINARY_DIR "/bin");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
