#include "section/water_watch.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/solve.h"
#include "engine/step.h"
#include "section/inputs.h"
#include "section_fixture.h"
#include "tools/case_table.h"

namespace gullymark::section {
namespace {

class WaterWatched : public SectionTest {
  protected:
    WaterWatch watch;
};

TEST_F(WaterWatched, StaysSolvedUntilAnInputHasAnotherValue) {
    auto record = curb_on_grade();
    EXPECT_EQ(watch.look(record), Water::solved);
    record.set(Column::STATION, "10+00");
    record.set(Column::CURB_HEIGHT, "8.0");
    record.set(Column::THROATANGLE, "");
    record.set(Column::GUTWIDTH, "2.000");
    EXPECT_EQ(watch.look(record), Water::solved) << "nothing that the water depends on";
    record.set(Column::GUTWIDTH, "2.001");
    EXPECT_EQ(watch.look(record), Water::unsolved);
    record.set(Column::GUTWIDTH, "2");
    EXPECT_EQ(watch.look(record), Water::solved) << "as it was";
    record.set(Column::GUTWIDTH, "");
    EXPECT_EQ(watch.look(record), Water::unsolved);
}

TEST_F(WaterWatched, BelongsToNewInputsOnceTheyAreSolved) {
    auto record = curb_on_grade();
    watch.look(record);
    record.set(Column::PAVXSLOPE, "0.0300");
    EXPECT_EQ(watch.look(record), Water::unsolved);
    record.begin_new_changes();
    EXPECT_EQ(watch.look(record), Water::solved);
    record.set(Column::PAVXSLOPE, "0.0208");
    EXPECT_EQ(watch.look(record), Water::unsolved);
}

TEST_F(WaterWatched, IsUnsolvedWhenItWasNeverSeenUnchanged) {
    auto record = curb_on_grade();
    record.set(Column::GUTWIDTH, "2.00");
    EXPECT_EQ(watch.look(record), Water::unsolved);
}

TEST_F(WaterWatched, IsNoneWithoutResults) {
    auto record = curb_on_grade();
    watch.look(record);
    record.set(Column::OPENSPREAD, "");
    record.set(Column::CURBDEPTH, "");
    EXPECT_EQ(watch.look(record), Water::none);
}

bool is_result(Column column) {
    return column >= Column::OPENSPREAD;
}

/// Every column that a solver reads counts.
TEST_F(WaterWatched, DependsOnWhatTheSolversRead) {
    platform::outside = {};
    const auto table = cases::read_table(std::string(GULLYMARK_TEST_DIR) + "/cases/solves_ordinary.tsv");
    for (const auto& row : table.rows) {
        cases::load_row(table, row);
        std::vector<engine::TraceLine> trace;
        engine::onlooker.trace = &trace;
        engine::check_and_solve();
        engine::onlooker = {};
        for (const auto& line : trace) {
            for (const Column column : engine::formula::columns_in(line.formula)) {
                EXPECT_TRUE(is_input(column, engine::open_inlet) || is_result(column))
                    << engine::column_name(column) << " of a " << engine::open_inlet.text(Column::INLET_TYPE)
                    << ", " << engine::open_inlet.text(Column::INLET_LOCATION);
            }
        }
    }
}

}  // namespace
}  // namespace gullymark::section
