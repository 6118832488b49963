#include "engine/hydraulics/grate_types.h"

#include <array>

#include "engine/engine_fixture.h"

namespace gullymark::engine {
namespace {

class Frontal : public EngineTest {
  protected:
    static double efficiency(std::string_view grate, std::string_view length, double V) {
        fill({{Column::GRATETYPE, grate}, {Column::INLETLENGTH, length}});
        FrontalFlow frontal;
        read_grate_length(1, frontal);
        find_frontal_efficiency(2, frontal, V);
        return frontal.Rf.value.number();
    }
};

struct GrateRow {
    const char* grate;
    const char* other;
    double short_15;  // Rf of a grate of 2 ft at 15 ft/s, by hand from c2 4 + c1 2 + c0
    double long_19;   // Rf of a grate of 6 ft at 19 ft/s, by hand from b1 6 + b0
    double Vmax;
};

// clang-format off
constexpr auto rows = std::to_array<GrateRow>({
    {"P-1-7/8",           "P-50",                  0.3789883,  1.0,        23.93},
    {"P-1-1/8",           "P-30",                  0.2260009,  0.4087306,  21.31},
    {"Curved Vane",       "Curved Vane",           0.18549883, 0.32284,    21.31},
    {"30\u00B0 Tilt Bar", "30\u00B0- 85 Tilt Bar", 0.0505,     0.232066,   20.08},
    {"45\u00B0 Tilt Bar", "45\u00B0- 85 Tilt Bar", 0.10000117, 0.147358,   19.59},
    {"P-1-7/8-4",         "P-50x100",              0.06849883, 0.14464,    19.51},
    {"Reticuline",        "Reticuline",            0.0235009,  0.178597,   19.53},
});
// clang-format on

TEST_F(Frontal, EveryGrateFollowsItsTwoFitsUnderBothNames) {
    for (const auto& row : rows) {
        for (const auto* name : {row.grate, row.other}) {
            EXPECT_NEAR(efficiency(name, "2", 15.0), row.short_15, 1e-12) << name;
            EXPECT_NEAR(efficiency(name, "6", 19.0), row.long_19, 1e-12) << name;
        }
    }
}

TEST_F(Frontal, ATraceTellsWhichFitOfWhichGrateWasTaken) {
    std::vector<TraceLine> trace;
    onlooker.trace = &trace;
    efficiency("P-30", "6", 19.0);
    EXPECT_EQ(describe_formula(trace[3]),
              (std::vector<std::string>{"= b1 x INLETLENGTH + b0", "= 1.20029 x 6 + 5.2286",
                                        "reads INLETLENGTH \"6\": Length of the opening or grate",
                                        "- the fit of \"P-1-1/8\" for lengths between 4.5 and 10 ft"}));
    trace.clear();
    efficiency("Curved Vane", "2", 15.0);
    EXPECT_EQ(describe_formula(trace[3]).front(), "= c2 x INLETLENGTH^2 + c1 x INLETLENGTH + c0");
    EXPECT_EQ(describe_formula(trace[3]).back(), "- the fit of \"Curved Vane\" for lengths below 4.5 ft");
}

TEST_F(Frontal, AnUnknownGrateTakesNothingFromTheFront) {
    for (const auto* name : {"", "P-1-7/8 ", "p-30", "Unknown", "30 Tilt Bar", "30\xB0 Tilt Bar"}) {
        EXPECT_EQ(efficiency(name, "12", 1.0), 0.0) << name;
    }
}

TEST_F(Frontal, AGrateOfTenFeetTakesAllAtAnySpeed) {
    for (const auto& row : rows) {
        EXPECT_EQ(efficiency(row.grate, "10", 1000.0), 1.0) << row.grate;
    }
}

TEST_F(Frontal, AGrateOfExactlyFourAndAHalfFeetTakesNothing) {
    for (const auto& row : rows) {
        EXPECT_EQ(efficiency(row.grate, "4.5", 1.0), 0.0) << row.grate;
        EXPECT_EQ(efficiency(row.grate, "4.499", 1.0), 1.0) << row.grate;
        EXPECT_EQ(efficiency(row.grate, "4.501", 1.0), 1.0) << row.grate;
    }
}

TEST_F(Frontal, AGrateWithoutLengthTakesNothing) {
    EXPECT_EQ(efficiency("P-50", "0", 1.0), 0.0);
    EXPECT_EQ(efficiency("P-50", "-3", 1.0), 0.0);
}

TEST_F(Frontal, ALongerGrateTakesNothingFromItsGreatestVelocityOn) {
    // P-30, 6 ft: 1 - 0.09 (21.30 - 12.43034) = 0.2017, and nothing at 21.31.
    EXPECT_NEAR(efficiency("P-30", "6", 21.30), 0.2017306, 1e-12);
    EXPECT_EQ(efficiency("P-30", "6", 21.31), 0.0);
    for (const auto& row : rows) {
        EXPECT_EQ(efficiency(row.grate, "9.999", row.Vmax), 0.0) << row.grate;
        EXPECT_GT(efficiency(row.grate, "9.999", row.Vmax - 0.001), 0.0) << row.grate;
    }
}

TEST_F(Frontal, SlowFlowGivesNoMoreThanOneAndFastFlowNoLessThanZero) {
    EXPECT_EQ(efficiency("Reticuline", "2", 1.0), 1.0);
    EXPECT_EQ(efficiency("Reticuline", "2", 100.0), 0.0);
}

TEST_F(Frontal, AMetricLengthIsTurnedIntoFeetAndAMetricVelocityIsNot) {
    use_units("METRIC");
    // 0.6096 m are 2 ft.
    EXPECT_NEAR(efficiency("P-30", "0.6096", 15.0), 0.2260009, 1e-12);
    // 3.048 m are 10 ft.
    EXPECT_EQ(efficiency("P-30", "3.048", 15.0), 1.0);
}

TEST_F(Frontal, AnUnreadableEnglishLengthEntersTheFirstBranch) {
    EXPECT_EQ(efficiency("P-30", "abc", 15.0), 1.0);
    EXPECT_EQ(efficiency("Unknown", "abc", 15.0), 0.0);
}

TEST_F(Frontal, AnUnreadableMetricLengthCountsAsNone) {
    use_units("METRIC");
    EXPECT_EQ(efficiency("P-30", "abc", 15.0), 0.0);
}

}  // namespace
}  // namespace gullymark::engine
