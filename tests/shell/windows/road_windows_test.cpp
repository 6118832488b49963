#include <gtest/gtest.h>

#include <string>

#include "roads/road_runner.h"
#include "shell/window_stage.h"

namespace gullymark::roads {
namespace {

struct RoadWindows : testing::TestWithParam<std::string> {};

/// Each road under tests/cases, on the real windows.
TEST_P(RoadWindows, Windows) {
    testing_support::RunningProgram program;
    Road road(road_path(GetParam()), program.folder.path());
    WindowStage windows(road, program);
    road.run(windows.stage);
}

INSTANTIATE_TEST_SUITE_P(Roads, RoadWindows, testing::ValuesIn(road_names()),
                         [](const auto& name) { return name.param; });

}  // namespace
}  // namespace gullymark::roads
