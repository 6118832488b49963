#include "engine/hydraulics/sump_inlets.h"

#include "engine/engine_fixture.h"

namespace gullymark::engine {
namespace {

using enum Column;

class SumpInlets : public EngineTest {
  protected:
    static Real heavier_side(std::string_view carryover1, std::string_view discharge1,
                             std::string_view carryover2, std::string_view discharge2) {
        fill({{CARRYOVER1, carryover1},
              {DISCHARGE1, discharge1},
              {CARRYOVER2, carryover2},
              {DISCHARGE2, discharge2}});
        SumpFlows flows;
        read_sump_flows(1, flows);
        return flows.Qg;
    }
};

TEST_F(SumpInlets, TheHeavierSideAloneGoesIntoTheGutter) {
    EXPECT_EQ(heavier_side("0.5", "1.25", "0", "1.5"), 1.75);
    EXPECT_EQ(heavier_side("0", "1.25", "0.5", "1.5"), 2.0);
    EXPECT_EQ(heavier_side("0", "2", "2", "0"), 2.0);
}

TEST_F(SumpInlets, ASideThatCannotBeReadCountsAsNothing) {
    EXPECT_EQ(heavier_side("", "5", "0", "1.5"), 1.5);
    EXPECT_EQ(heavier_side("", "5", "abc", "1.5"), 0.0);
}

TEST_F(SumpInlets, AThroatIsNamedByTheWholeTextAlone) {
    EXPECT_EQ(throat_named("Horizontal"), Throat::horizontal);
    EXPECT_EQ(throat_named("Inclined"), Throat::inclined);
    EXPECT_EQ(throat_named("Vertical"), Throat::vertical);
    for (const auto* text : {"", "vertical", "Vertical ", "Vert"}) {
        EXPECT_EQ(throat_named(text), Throat::none) << text;
    }
}

TEST_F(SumpInlets, AnAngleTakesFifteenDigitsOfPi) {
    EXPECT_EQ(in_radians(180.0).value(), 3.14159265358979);
    EXPECT_EQ(in_radians(-90.0).value(), -3.14159265358979 / 2.0);
    EXPECT_THROW((void)in_radians(1e308).value(), Fault);
}

TEST_F(SumpInlets, CloggingShortensThePerimeterBeyondOneLength) {
    EXPECT_EQ(clogged_perimeter(8.0, 2.0, 0.0).text(), "8.000");
    EXPECT_EQ(clogged_perimeter(8.0, 2.0, 50.0).text(), "5.000");
    EXPECT_EQ(clogged_perimeter(8.0, 2.0, 100.0).text(), "2.000");
    EXPECT_EQ(clogged_perimeter(0.0, 2.0, 25.0).text(), "0.500");
    EXPECT_EQ(clogged_perimeter(2.0005, 0.0, 0.0).text(), "2.001");
}

}  // namespace
}  // namespace gullymark::engine
