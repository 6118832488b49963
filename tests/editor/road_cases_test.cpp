#include <gtest/gtest.h>

#include <string>

#include "editor/logic_stage.h"
#include "roads/road_runner.h"
#include "support/outside_double.h"

namespace gullymark::roads {
namespace {

struct RoadCases : testing::TestWithParam<std::string> {};

/// Each road under tests/cases, on the logic alone.
TEST_P(RoadCases, Logic) {
    const testing_support::TempFolder folder;
    Road road(road_path(GetParam()), folder.path());
    LogicStage logic(road, folder.path("program"));
    road.run(logic.stage);
}

INSTANTIATE_TEST_SUITE_P(Roads, RoadCases, testing::ValuesIn(road_names()),
                         [](const auto& name) { return name.param; });

}  // namespace
}  // namespace gullymark::roads
