// Projects with any text in any column: all is judged, and nothing that is told is no number.

#include <array>
#include <random>
#include <set>

#include "review/flow_curve.h"
#include "review/fresh_road.h"
#include "review/inlet_table.h"
#include "review/road_plan.h"
#include "review/sizing.h"
#include "review_fixture.h"
#include "support/case_tables.h"

namespace gullymark::review {
namespace {

/// What is told is whole, and on an inlet that there is.
void expect_sound(const Project& project) {
    const auto findings = judge(project, {});
    for (const auto& finding : findings) {
        EXPECT_TRUE(finding.index < project.inlets.size() || finding.index == whole_project) << finding.rule;
        EXPECT_FALSE(finding.text.empty() || finding.advice.empty()) << finding.rule;
        for (const char* none : {"nan", "inf ", "-0.000 "}) {
            EXPECT_EQ(finding.text.find(none), std::string::npos) << finding.rule << ": " << finding.text;
        }
    }
    const auto road = make_fresh_road(project);
    std::set<std::size_t> once;
    for (const std::size_t index : road.to_do) {
        EXPECT_TRUE(once.insert(index).second);
        EXPECT_TRUE(road.inlets.at(index).solved);
        EXPECT_FALSE(road.inlets.at(index).differing.empty());
    }
    for (const auto& [index, fresh] : road.inlets) {
        EXPECT_LT(index, project.inlets.size());
        EXPECT_EQ(fresh.solved, once.contains(index));
    }
    EXPECT_EQ(plan_road(project, findings, &road).inlets.size(), project.inlets.size());
    EXPECT_EQ(make_inlet_table(project, findings, road).rows.size(), project.inlets.size());
}

/// The pages of one inlet. They solve it many times.
void expect_sized(const Project& project, std::size_t index) {
    const auto area = runoff_for_length(project, index);
    static_cast<void>(
        size_inlet(project.inlets.at(index), project.units, area ? std::optional(area->area) : std::nullopt));
    static_cast<void>(flow_curve(project.inlets.at(index), project.units, nullptr));
}

struct AnyText : ReviewTest {
    /// The same at every run.
    std::mt19937 random{20071};  // NOLINT(cert-msc32-c,cert-msc51-cpp)

    std::size_t below(std::size_t end) { return random() % end; }

    std::string any_text() {
        static const std::array<std::string, 36> texts{"",
                                                       " ",
                                                       "0",
                                                       "-0",
                                                       "-1",
                                                       "1",
                                                       "0.001",
                                                       "99",
                                                       "100",
                                                       "101",
                                                       "1e308",
                                                       "-1e308",
                                                       "1e-308",
                                                       "1e999",
                                                       "NaN",
                                                       "INF",
                                                       ".",
                                                       "-",
                                                       "+",
                                                       "1,000",
                                                       "12+34",
                                                       "L1",
                                                       "L5",
                                                       "S1",
                                                       "R4",
                                                       "SUMP",
                                                       "CONTINUOUS GRADE",
                                                       "Grate Inlet",
                                                       "Combination Curb and Grate Inlet",
                                                       "Slotted Inlet",
                                                       "Grate Inlet in a Ditch",
                                                       "Y-Weld",
                                                       "P-1-7/8",
                                                       "Inclined",
                                                       "\xff\x00\n\t'\"",
                                                       std::string(5000, '9')};
        return texts.at(below(texts.size()));
    }
};

TEST_F(AnyText, InAnyColumnIsJudged) {
    const Project sound = project;
    for (int round = 0; round < 150; ++round) {
        const testing::ScopedTrace trace(__FILE__, __LINE__, "round " + std::to_string(round));
        project = sound;
        project.units = round % 3 == 0 ? "METRIC" : "ENGLISH";
        for (std::size_t changes = 1 + below(12); changes > 0; --changes) {
            change(below(project.inlets.size()),
                   {{engine::all_columns.at(below(engine::column_count)), any_text()}});
        }
        expect_sound(project);
    }
}

TEST_F(AnyText, InAnyColumnIsSized) {
    const Project sound = project;
    for (int round = 0; round < 12; ++round) {
        const testing::ScopedTrace trace(__FILE__, __LINE__, "round " + std::to_string(round));
        project = sound;
        const std::size_t index = round % 2 == 0 ? 1 : sump;
        for (std::size_t changes = 1 + below(3); changes > 0; --changes) {
            change(index, {{engine::all_columns.at(below(engine::column_count)), any_text()}});
        }
        expect_sized(project, index);
    }
    for (const Column column : {Column::RUNOFF_AREA, Column::INTENSITY, Column::RUNOFF_COEFF,
                                Column::TOTAL_DISCHARGE, Column::DISCHARGE1, Column::ALLOWABLE_SPREAD}) {
        project = sound;
        change(1, {{column, "1.7e308"}});
        expect_sized(project, 1);
    }
}

TEST_F(AnyText, OfOneKindInEveryColumnIsJudged) {
    const Project sound = project;
    for (int round = 0; round < 40; ++round) {
        project = sound;
        const std::string text = any_text();
        const testing::ScopedTrace trace(__FILE__, __LINE__, text.substr(0, 40));
        for (const Column column : engine::all_columns) {
            change(0, {{column, text}});
            change(sump, {{column, text}});
        }
        expect_sound(project);
        for (const Column column : {Column::INLET_TYPE, Column::INLET_LOCATION}) {
            change(0, {{column, sound.inlets[0].text(column)}});
            change(sump, {{column, sound.inlets[sump].text(column)}});
        }
        expect_sound(project);
    }
}

/// Their sum is no number any more.
TEST_F(AnyText, OfTheGreatestNumbersIsJudged) {
    for (const char* flow : {"1.7e308", "-1.7e308"}) {
        for (auto& inlet : project.inlets) {
            for (const Column column :
                 {Column::DISCHARGE1, Column::OVERLAND_FLOW, Column::QINT, Column::QCARRY}) {
                inlet.load(column, flow);
            }
        }
        expect_sound(project);
    }
}

TEST_F(AnyText, OfNullInEveryColumnIsJudged) {
    for (auto& inlet : project.inlets) {
        inlet = {};
    }
    expect_sound(project);
    project.inlets.resize(1);
    expect_sound(project);
    project.inlets.clear();
    expect_sound(project);
    EXPECT_EQ(found(), Told{});
}

TEST_F(AnyText, OfTheTablesIsJudgedAsOneProject) {
    for (const char* name : testing_support::case_tables) {
        const auto table = testing_support::read_case_table(name);
        for (const char* units : {"ENGLISH", "METRIC"}) {
            project = {.units = units};
            for (const auto& row : table.rows) {
                if (cases::cell(table, row, "UNITS") == units) {
                    cases::solve_row(table, row);
                    project.inlets.push_back(engine::open_inlet);
                    const auto count = project.inlets.size();
                    change(count - 1,
                           {{Column::INLET_NUMBER, std::to_string(count)},
                            {Column::PREINLET1, std::to_string(count % 9 == 0 ? count / 2 : count - 1)}});
                }
            }
            const testing::ScopedTrace trace(__FILE__, __LINE__, std::string(name) + units);
            expect_sound(project);
        }
    }
}

}  // namespace
}  // namespace gullymark::review
