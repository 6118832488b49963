#include <gtest/gtest.h>

#include "section/gutter.h"
#include "section_fixture.h"

namespace gullymark::section {
namespace {

class SpreadOfTheWater : public SectionTest {};

TEST_F(SpreadOfTheWater, EndsAtTheSpreadOfTheRecordAndSplitsAtTheAllowableOne) {
    const Section section = draw_section(curb_on_grade(), Water::solved);
    const View& view = section.views.front();
    const Shape* water = find_shape(view, Part::water);
    const Shape* beyond = find_shape(view, Part::beyond);
    ASSERT_NE(water, nullptr);
    ASSERT_NE(beyond, nullptr);
    EXPECT_DOUBLE_EQ(farthest_right(*water), 8.0);
    EXPECT_DOUBLE_EQ(farthest_left(*beyond), 8.0);
    EXPECT_DOUBLE_EQ(farthest_right(*beyond), 10.209);
    // By hand: 2 x 0.0833 + 8.209 x 0.0208 = 0.3373 ft over the gutter line, the same at both ends.
    const Shape* surface = find_shape(view, Part::surface);
    ASSERT_NE(surface, nullptr);
    EXPECT_NEAR(surface->points.front().y, 0.3373, 0.0001);
    EXPECT_DOUBLE_EQ(surface->points.front().y, surface->points.back().y);
    ASSERT_NE(find_dimension(view, "2.209 ft beyond"), nullptr);
    EXPECT_TRUE(dimension_of(view, "2.209 ft beyond").beyond);
    EXPECT_NE(find_dimension(view, "spread 10.209 ft"), nullptr);
    EXPECT_NE(find_dimension(view, "allowable 8.0 ft"), nullptr);
}

struct Judgement {
    const char* spread;
    const char* allowable;
    bool beyond;
    const char* excess;
};

class JudgedSpread : public SpreadOfTheWater, public testing::WithParamInterface<Judgement> {};

TEST_P(JudgedSpread, IsJudgedOnTheTextsAsTheyAre) {
    const auto& [spread, allowable, beyond, excess] = GetParam();
    const auto record = curb_on_grade({{Column::OPENSPREAD, spread}, {Column::ALLOWABLE_SPREAD, allowable}});
    const Section section = draw_section(record, Water::solved);
    EXPECT_EQ(find_shape(section.views.front(), Part::beyond) != nullptr, beyond);
    EXPECT_EQ(judge_spread(record, spread).beyond, beyond);
    if (beyond) {
        EXPECT_EQ(judge_spread(record, spread).excess, excess);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, JudgedSpread,
    testing::Values(Judgement{"8.000", "8.0", false, ""}, Judgement{"8.001", "8.0", true, "0.001 ft"},
                    Judgement{"7.999", "8.0", false, ""}, Judgement{"10.209", "8.0", true, "2.209 ft"},
                    Judgement{"8.00000000001", "8.0", true, "1E-11 ft"},
                    Judgement{"48.000", "8.0", true, "40.000 ft"},
                    Judgement{" 8.001 ", "+8", true, "0.001 ft"}, Judgement{"8.001", "", false, ""},
                    Judgement{"8.001", "0.0", false, ""}, Judgement{"8.001", "-8.0", false, ""},
                    Judgement{"8.001", "8.0 ft", false, ""}, Judgement{"", "8.0", false, ""},
                    Judgement{"9e0", "8", true, "1 ft"}));

TEST_F(SpreadOfTheWater, NarrowerThanTheGutterLiesWithinIt) {
    const auto record = curb_on_grade({{Column::OPENSPREAD, "1.500"}, {Column::INLETXSLOPE, "0.0833"}});
    const Section section = draw_section(record, Water::solved);
    const View& view = section.views.front();
    const Shape* surface = find_shape(view, Part::surface);
    ASSERT_NE(surface, nullptr);
    EXPECT_DOUBLE_EQ(surface->points.back().x, 1.5);
    EXPECT_NEAR(surface->points.back().y, 1.5 * 0.0833, 1e-12);
    EXPECT_EQ(find_shape(view, Part::former_ground), nullptr) << "there is no depression";
}

TEST_F(SpreadOfTheWater, OfZeroDrawsNoWaterAndSaysSo) {
    const Section section = draw_section(curb_on_grade({{Column::OPENSPREAD, "0.000"}}), Water::solved);
    EXPECT_EQ(find_shape(section.views.front(), Part::water), nullptr);
    EXPECT_EQ(find_shape(section.views.front(), Part::surface), nullptr);
    EXPECT_TRUE(has_note(section, "spread 0.000 ft"));
}

TEST_F(SpreadOfTheWater, InMetersReadsDepthsInMillimeters) {
    engine::UnitSystem = "METRIC";
    const auto record = curb_on_grade({{Column::CURB_HEIGHT, "150"},
                                       {Column::ALLOWABLE_SPREAD, "3.0"},
                                       {Column::GUTWIDTH, "0.600"},
                                       {Column::LOCDEPWIDTH, "0.600"},
                                       {Column::OPENSPREAD, "3.0001"},
                                       {Column::CURBDEPTH, "99.9022"}});
    const Section section = draw_section(record, Water::solved);
    const View& view = section.views.front();
    ASSERT_NE(find_dimension(view, "curb 150 mm"), nullptr);
    EXPECT_DOUBLE_EQ(dimension_of(view, "curb 150 mm").to.y, 0.150);
    EXPECT_NE(find_dimension(view, "0.0001 m beyond"), nullptr);
    EXPECT_NE(find_dimension(view, "depth 99.9022 mm"), nullptr);
    // By hand: 0.6 x (0.3333 - 0.0833) = 0.150 m.
    ASSERT_NE(find_dimension(view, "a 150.00 mm"), nullptr);
    EXPECT_NEAR(dimension_of(view, "a 150.00 mm").from.y, -0.150, 1e-12);
}

}  // namespace
}  // namespace gullymark::section
