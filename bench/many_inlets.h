#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <filesystem>
#include <string>

#include "editor/windows/workspace_menu.h"
#include "platform/outside.h"
#include "store/main_window.h"
#include "store/project_life_cycle.h"
#include "store/windows.h"
#include "tools/project_maker.h"

/// A project file of many inlets, opened as the user opens it.
namespace gullymark::bench {

inline std::string project_of(std::int64_t inlets) {
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
inline void open_project(const std::string& path) {
    platform::outside.show_box = [](const platform::Box&) { return platform::Answer::yes; };
    platform::outside.choose_file = [path](const platform::FileDialogRequest&) { return path; };
    store::windows.show_workspace = editor::show_workspace;
    store::mnuopenProj_Click();
}

inline void leave_project() {
    editor::mnuExit_Click();
    store::mnucloseProj_Click();
}

inline void sizes(benchmark::internal::Benchmark* bench) {
    bench->Unit(benchmark::kMillisecond)->RangeMultiplier(10)->Range(10, 100000);
}

}  // namespace gullymark::bench
