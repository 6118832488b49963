// What a user waits for in a project of many inlets: the same deeds as in project_bench, through the real windows, until
// everything is painted. The windows are drawn into memory (the toolkit's offscreen platform).

#include <benchmark/benchmark.h>

#include <string>

#include <QApplication>
#include <QTableView>

#include "editor/form/field_events.h"
#include "editor/form/screen_fields.h"
#include "editor/form/solve_command.h"
#include "editor/windows/inlet_list.h"
#include "editor/windows/workspace_menu.h"
#include "many_inlets.h"
#include "platform/files.h"
#include "shell/binding/turn.h"
#include "shell/start.h"

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

BENCHMARK(open_until_painted)->Apply(bench::sizes)->UseRealTime();
BENCHMARK(pick_a_row)->Apply(bench::sizes)->UseRealTime();
BENCHMARK(save_a_row)->Apply(bench::sizes)->UseRealTime();
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
