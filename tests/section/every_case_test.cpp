#include <gtest/gtest.h>

#include <string>

#include "engine/inlet_record.h"
#include "engine/unit_constants.h"
#include "platform/number_text.h"
#include "section/approaches.h"
#include "section_fixture.h"
#include "support/case_tables.h"

namespace gullymark::section {
namespace {

class EveryCase : public testing::TestWithParam<const char*> {
  protected:
    void TearDown() override { platform::outside = {}; }

    static cases::Table table() { return testing_support::read_case_table(GetParam()); }
};

TEST_P(EveryCase, IsDrawnInItsFrameAndWithoutABox) {
    const auto cases = table();
    ASSERT_FALSE(cases.rows.empty());
    for (std::size_t i = 0; i < cases.rows.size(); ++i) {
        cases::solve_row(cases, cases.rows[i]);
        const testing::ScopedTrace line(__FILE__, __LINE__, "line " + std::to_string(i + 2));
        platform::outside.show_box = [](const platform::Box& box) {
            ADD_FAILURE() << "a drawing shows a box: " << box.text;
            return platform::Answer::ok;
        };
        for (const Water water : {Water::solved, Water::unsolved}) {
            expect_drawable(draw_section(engine::open_inlet, water));
        }
    }
}

/// What the picture works out for the smaller flow is what the solver works out for the larger one.
TEST_P(EveryCase, HasTheSpreadOfTheLargerApproachAsTheSolverFoundIt) {
    const auto cases = table();
    for (std::size_t i = 0; i < cases.rows.size(); ++i) {
        cases::solve_row(cases, cases.rows[i]);
        const auto& record = engine::open_inlet;
        const auto number = [](Column column) {
            return platform::read_number(engine::open_inlet.text(column));
        };
        double larger = 0;
        bool readable = true;
        for (const auto& [discharge, carryover] : {std::pair{Column::DISCHARGE1, Column::CARRYOVER1},
                                                   std::pair{Column::DISCHARGE2, Column::CARRYOVER2}}) {
            readable = readable && number(discharge).fault == platform::NumberFault::none &&
                       number(carryover).fault == platform::NumberFault::none;
            larger = std::max(larger, number(discharge).number + number(carryover).number);
        }
        if (record.text(Column::GUTTERSPREAD).empty() || !readable || larger <= 0) {
            continue;
        }
        const auto spread = gutter_spread(record, larger);
        EXPECT_EQ(platform::format_number(spread.value_or(0), engine::is_english() ? "0.000" : "0.0000"),
                  record.text(Column::GUTTERSPREAD))
            << "line " << i + 2;
    }
}

INSTANTIATE_TEST_SUITE_P(Tables, EveryCase, testing::ValuesIn(testing_support::case_tables),
                         testing_support::name_by_table);

}  // namespace
}  // namespace gullymark::section
