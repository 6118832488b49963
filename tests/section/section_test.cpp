#include "section/section.h"

#include <gtest/gtest.h>

#include "section_fixture.h"

namespace gullymark::section {
namespace {

class SectionOfAnInlet : public SectionTest {};

engine::InletRecord ditch(std::string_view location, Texts others = {}) {
    auto record = record_of({{Column::INLET_TYPE, "Grate Inlet in a Ditch"},
                             {Column::INLET_LOCATION, location},
                             {Column::INLETLENGTH, "3.500"},
                             {Column::GRATEWIDTH, "2.000"},
                             {Column::LONGSLOPE, "0.0100"},
                             {Column::DISCHARGE1, "3.000"},
                             {Column::CARRYOVER1, "0.0"},
                             {Column::DISCHARGE2, "2.000"},
                             {Column::CARRYOVER2, "0.5"}});
    for (const auto& [column, text] : others) {
        record.load(column, std::string(text));
    }
    return record;
}

TEST_F(SectionOfAnInlet, TellsItsWaterByTheResultsAndTheFirstChange) {
    auto record = curb_on_grade();
    EXPECT_EQ(water_of(record), Water::solved);
    record.set(Column::GUTWIDTH, "3.00");
    EXPECT_EQ(water_of(record), Water::unsolved);
    record.begin_new_changes();
    EXPECT_EQ(water_of(record), Water::solved);
    EXPECT_EQ(water_of(curb_on_grade({{Column::OPENSPREAD, ""}, {Column::CURBDEPTH, ""}})), Water::none);
    EXPECT_EQ(water_of({}), Water::none);
}

TEST_F(SectionOfAnInlet, SaysWhatBecameOfItsWater) {
    EXPECT_TRUE(has_note(draw_section(curb_on_grade(), Water::unsolved), "not solved"));
    EXPECT_FALSE(has_note(draw_section(curb_on_grade(), Water::solved), "not solved"));
    const auto dry = curb_on_grade({{Column::OPENSPREAD, ""}, {Column::CURBDEPTH, ""}});
    const Section section = draw_section(dry, Water::none);
    EXPECT_TRUE(has_note(section, "no results"));
    EXPECT_EQ(find_shape(section.views.front(), Part::water), nullptr);
    EXPECT_EQ(draw_section(dry, Water::solved).water, Water::none) << "without results nothing is solved";
}

TEST_F(SectionOfAnInlet, PrintsItsExaggerationAsARoundNumber) {
    const Section section = draw_section(curb_on_grade(), Water::solved);
    EXPECT_GT(section.exaggeration, 1);
    EXPECT_EQ(section.exaggeration, std::round(section.exaggeration));
    EXPECT_EQ(section.notes.front(), "vertical x " + std::to_string(std::lround(section.exaggeration)));
}

TEST_F(SectionOfAnInlet, IsASentenceForWhoCannotSeeIt) {
    EXPECT_EQ(draw_section(curb_on_grade(), Water::solved).sentence,
              "Section at the inlet, L 10.25 ft: spread 10.209 ft, 2.209 ft beyond the allowable 8.0 ft, "
              "depth 4.048 in.");
    EXPECT_EQ(
        draw_section(curb_on_grade({{Column::OPENSPREAD, "8.000"}}), Water::unsolved).sentence,
        "Section at the inlet, L 10.25 ft: spread 8.000 ft, within the allowable 8.0 ft, depth 4.048 in, "
        "not solved since the inputs changed.");
    EXPECT_EQ(draw_section(curb_on_grade({{Column::OPENSPREAD, ""}, {Column::CURBDEPTH, ""}}), Water::none)
                  .sentence,
              "Section at the inlet, L 10.25 ft: no results.");
}

TEST_F(SectionOfAnInlet, DrawsCurbGutterAndDepressionAtTheirSizes) {
    const Section section = draw_section(curb_on_grade(), Water::solved);
    const View& view = section.views.front();
    ASSERT_NE(find_dimension(view, "curb 6.0 in"), nullptr);
    EXPECT_DOUBLE_EQ(dimension_of(view, "curb 6.0 in").to.y, 0.5);
    ASSERT_NE(find_dimension(view, "a 6.00 in"), nullptr);
    EXPECT_NEAR(dimension_of(view, "a 6.00 in").from.y, -0.5, 1e-12);
    ASSERT_NE(find_dimension(view, "W, Wa 2.00 ft"), nullptr);
    EXPECT_DOUBLE_EQ(dimension_of(view, "W, Wa 2.00 ft").to.x, 2.0);
    const Shape* ground = find_shape(view, Part::ground);
    ASSERT_NE(ground, nullptr);
    // The line of the depressed gutter falls by the inlet cross slope: 2 x 0.3333 from its edge to the curb.
    EXPECT_NEAR(ground->points[1].y - ground->points[0].y, 2 * 0.3333, 1e-12);
    EXPECT_DOUBLE_EQ(ground->points[1].x, 2.0);
}

TEST_F(SectionOfAnInlet, DrawsTheBarsOfAGrateWithinItsWidth) {
    const Section section = draw_section(curb_on_grade({{Column::INLET_TYPE, "Grate Inlet"},
                                                        {Column::GRATEWIDTH, "1.875"},
                                                        {Column::GRATETYPE, "P-1-7/8"}}),
                                         Water::solved);
    const View& view = section.views.front();
    EXPECT_EQ(count_shapes(view, Part::metal), 13) << "12 gaps of 1-7/8 in";
    for (const Shape& shape : view.shapes) {
        if (shape.part == Part::metal) {
            EXPECT_GE(farthest_left(shape), 0);
            EXPECT_LE(farthest_right(shape), 1.875 + 1e-12);
        }
    }
    EXPECT_NE(find_dimension(view, "Wg 1.875 ft"), nullptr);
}

TEST_F(SectionOfAnInlet, ShowsBothApproachesOfASumpEachWithItsFlowAndItsSpread) {
    for (const char* type :
         {"Curb Inlet", "Grate Inlet", "Combination Curb and Grate Inlet", "Slotted Inlet"}) {
        const Section section = draw_section(inlet_in_sump(type), Water::solved);
        ASSERT_EQ(section.views.size(), 3U) << type;
        const View& left = section.views[1];
        const View& right = section.views[2];
        EXPECT_EQ(left.title, "Left approach, Q 2.200 cfs, S 0.0100");
        EXPECT_EQ(right.title, "Right approach, Q 1.800 cfs, S 0.0100");
        ASSERT_NE(find_shape(left, Part::water), nullptr);
        EXPECT_LE(farthest_right(shape_of(left, Part::water)), 0) << "the left one has its curb on the right";
        ASSERT_NE(find_shape(left, Part::beyond), nullptr);
        EXPECT_DOUBLE_EQ(farthest_left(shape_of(left, Part::beyond)), -8.320);
        ASSERT_NE(find_shape(right, Part::water), nullptr);
        EXPECT_EQ(find_shape(right, Part::beyond), nullptr) << "the smaller flow stays within";
        EXPECT_EQ(find_dimension(right, "spread 8.320 ft"), nullptr);
    }
}

TEST_F(SectionOfAnInlet, LeavesTheSmallerApproachWithoutWaterWhenItIsNotSolved) {
    const Section section = draw_section(inlet_in_sump("Curb Inlet"), Water::unsolved);
    EXPECT_NE(find_shape(section.views[1], Part::water), nullptr);
    EXPECT_EQ(find_shape(section.views[2], Part::water), nullptr);
}

TEST_F(SectionOfAnInlet, OpensTheCurbByTheThroatOfASump) {
    const View upright = draw_section(inlet_in_sump("Curb Inlet"), Water::solved).views.front();
    ASSERT_NE(find_dimension(upright, "h 6.00 in"), nullptr);
    EXPECT_DOUBLE_EQ(dimension_of(upright, "h 6.00 in").to.y - dimension_of(upright, "h 6.00 in").from.y,
                     0.5);
    const View gap =
        draw_section(inlet_in_sump("Curb Inlet", {{Column::THROATYPE, "Vertical"}}), Water::solved)
            .views.front();
    ASSERT_NE(find_dimension(gap, "h 6.00 in"), nullptr);
    EXPECT_DOUBLE_EQ(dimension_of(gap, "h 6.00 in").from.x, -0.5);
    const View inclined =
        draw_section(
            inlet_in_sump("Curb Inlet", {{Column::THROATYPE, "Inclined"}, {Column::THROATANGLE, "30.00"}}),
            Water::solved)
            .views.front();
    ASSERT_NE(find_dimension(inclined, "h 6.00 in"), nullptr);
    EXPECT_NEAR(dimension_of(inclined, "h 6.00 in").to.y - dimension_of(inclined, "h 6.00 in").from.y, 0.25,
                1e-9);
}

TEST_F(SectionOfAnInlet, DrawsNothingOfAFieldThatItsKindDoesNotHave) {
    const Texts left_over{{Column::HEIGHTOFCURB, "9.00"},
                          {Column::THROATYPE, "Vertical"},
                          {Column::SLOTWIDTH, "900"},
                          {Column::GRATEWIDTH, "wide"}};
    const Section plain = draw_section(curb_on_grade(), Water::solved);
    const Section section = draw_section(curb_on_grade(left_over), Water::solved);
    EXPECT_EQ(find_dimension(section.views.front(), "h "), nullptr);
    EXPECT_DOUBLE_EQ(section.views.front().high.x, plain.views.front().high.x);
    EXPECT_EQ(section.notes, plain.notes);
}

TEST_F(SectionOfAnInlet, CutsADitchAcrossOnAGrade) {
    const Section section = draw_section(ditch("CONTINUOUS GRADE", {{Column::GUTWIDTH, "2.000"},
                                                                    {Column::LSCOPERATIO, "3.000"},
                                                                    {Column::RSCOPERATIO, "2.000"},
                                                                    {Column::CURBDEPTH, "6.000"},
                                                                    {Column::QINT, "5.639"}}),
                                         Water::solved);
    ASSERT_EQ(section.views.size(), 1U);
    const Shape* surface = find_shape(section.views.front(), Part::surface);
    ASSERT_NE(surface, nullptr);
    EXPECT_DOUBLE_EQ(surface->points.front().x, -1 - 3 * 0.5);
    EXPECT_DOUBLE_EQ(surface->points.back().x, 1 + 2 * 0.5);
    EXPECT_NE(find_dimension(section.views.front(), "top width 4.500 ft"), nullptr);
    EXPECT_NE(find_dimension(section.views.front(), "depth 6.000 in"), nullptr);
    EXPECT_NE(find_dimension(section.views.front(), "Wg, B 2.000 ft"), nullptr);
    EXPECT_FALSE(section.views.front().allowable.has_value()) << "a ditch has no allowable spread";
}

TEST_F(SectionOfAnInlet, CutsADitchInASumpAlongItWithBothApproaches) {
    const Section section = draw_section(
        ditch("SUMP", {{Column::DEPTHATINLET, "3.000"}, {Column::QINT, "5.500"}}), Water::solved);
    ASSERT_EQ(section.views.size(), 1U);
    const View& view = section.views.front();
    ASSERT_EQ(view.marks.size(), 2U);
    EXPECT_EQ(view.marks[0].text, "left approach 3.000 cfs, S 0.0100");
    EXPECT_EQ(view.marks[1].text, "right approach 2.500 cfs, S 0.0100");
    EXPECT_NE(find_dimension(view, "L 3.500 ft"), nullptr);
    ASSERT_NE(find_shape(view, Part::surface), nullptr);
    EXPECT_DOUBLE_EQ(shape_of(view, Part::surface).points.front().y, 0.25);
}

TEST_F(SectionOfAnInlet, SaysThatARatedGrateShowsNoInterception) {
    for (const char* standard : {"Y-Weld", "Y-DI Gr"}) {
        const Texts rated{{Column::INLET_SUBTYPE, standard}, {Column::DEPTHATINLET, "5.512"}};
        EXPECT_TRUE(has_note(draw_section(ditch("SUMP", rated), Water::solved),
                             "Q INTERCEPTED is blank: nothing is intercepted"));
    }
    const Texts other{{Column::INLET_SUBTYPE, "C"}, {Column::DEPTHATINLET, "4.159"}, {Column::QINT, "5.000"}};
    EXPECT_FALSE(has_note(draw_section(ditch("SUMP", other), Water::solved),
                          "Q INTERCEPTED is blank: nothing is intercepted"));
    const Texts alone{{Column::INLET_SUBTYPE, "X - DI Grate"}, {Column::CURBDEPTH, "7.162"}};
    EXPECT_TRUE(has_note(draw_section(ditch("CONTINUOUS GRADE", alone), Water::solved),
                         "depth alone: no interception is computed"));
}

TEST_F(SectionOfAnInlet, LeavesTheRecordAsItIs) {
    const auto record = inlet_in_sump("Combination Curb and Grate Inlet");
    const auto before = inlet_in_sump("Combination Curb and Grate Inlet");
    expect_drawable(draw_section(record, Water::solved));
    for (const Column column : engine::all_columns) {
        EXPECT_EQ(record.value(column), before.value(column)) << engine::column_name(column);
    }
    EXPECT_FALSE(record.changed());
}

TEST_F(SectionOfAnInlet, MirrorsAViewWithItsFrame) {
    View view;
    add_shape(view, Part::ground, {{-1, 0}, {10, 2}});
    finish(view);
    const View other = mirrored(view);
    EXPECT_DOUBLE_EQ(other.low.x, -10);
    EXPECT_DOUBLE_EQ(other.high.x, 1);
    EXPECT_DOUBLE_EQ(other.shapes.front().points.back().x, -10);
}

}  // namespace
}  // namespace gullymark::section
