#include <gmock/gmock.h>

#include <filesystem>

#include "editor/logic_stage.h"
#include "engine/inlet_row.h"
#include "platform/database.h"
#include "review/findings.h"
#include "roads/road_runner.h"
#include "store/project_store.h"
#include "support/outside_double.h"

namespace gullymark::review {
namespace {

/// Projects that the program itself has made, as they lie in their files when the designer is through.
struct Roads : testing::Test {
    static std::vector<Finding> judge_file(const std::string& path, const std::string& units) {
        platform::Connection connection;
        connection.open(path);
        platform::RowSet rows;
        rows.open(connection, store::select_inlets);
        Project project{.units = units};
        if (rows.record_count() > 0) {
            for (rows.move_first(); !rows.at_end(); rows.move_next()) {
                project.inlets.emplace_back();
                engine::load_row(rows, project.inlets.back());
            }
        }
        return judge(project, {});
    }

    /// Goes a road; what is wrong in its project then, as "rule inlet".
    static std::vector<std::string> wrong_after(const std::string& road_name, const std::string& units) {
        const testing_support::TempFolder folder;
        {
            roads::Road road(roads::road_path(road_name), folder.path());
            roads::LogicStage logic(road, folder.path("program"));
            road.run(logic.stage);
        }
        std::vector<std::string> wrong;
        std::size_t files = 0;
        for (const auto& file : std::filesystem::directory_iterator(folder.path())) {
            if (file.path().extension() != ".gmk") {
                continue;
            }
            ++files;
            for (const auto& finding : judge_file(file.path(), units)) {
                if (finding.severity == Severity::wrong) {
                    wrong.push_back(finding.rule + ' ' + finding.inlet);
                }
            }
        }
        EXPECT_EQ(files, 1U);
        return wrong;
    }
};

using Told = std::vector<std::string>;

TEST_F(Roads, AChainThatWasWalkedToItsEndLosesTheLastBypassAlone) {
    EXPECT_EQ(wrong_after("chain_of_five", "ENGLISH"), Told{"bypass-untaken A5"});
}

TEST_F(Roads, InletsOfEveryKindAreAsTheProgramStoredThem) {
    EXPECT_THAT(wrong_after("every_kind_solved", "ENGLISH"),
                testing::Each(testing::StartsWith("bypass-untaken ")));
}

/// The other two inlets of its file were made by hand.
TEST_F(Roads, AMetricInletIsAsTheProgramStoredIt) {
    Told of_the_inlet;
    for (const auto& wrong : wrong_after("metric", "METRIC")) {
        if (wrong.find("CB-3") != std::string::npos) {
            of_the_inlet.push_back(wrong);
        }
    }
    EXPECT_EQ(of_the_inlet, Told{"bypass-untaken CB-3"});
}

}  // namespace
}  // namespace gullymark::review
