#include "store/start.h"

#include <cmath>

#include "platform/failure.h"
#include "project_level.h"

namespace gullymark::store {
namespace {

/// What a stand-in clock throws when it was read too often.
struct ReadTooOften {};

/// A clock that goes on by `step` seconds at every reading and restarts at midnight.
struct Clock {
    double time;
    double step;
    int reads = 0;

    double operator()() {
        constexpr int too_often = 1'000'000;
        if (++reads > too_often) {
            throw ReadTooOften{};
        }
        const double now = time;
        time = std::fmod(time + step, 86400.0);
        return now;
    }
};

class Start : public ProjectLevel {
  protected:
    /// How often the wait read a clock that starts at `time`.
    static int reads_of_wait(double time, double step) {
        Clock clock{time, step};
        platform::outside.time_of_day = std::ref(clock);
        wait_for_splash();
        return clock.reads;
    }
};

TEST_F(Start, TheWaitEndsWithTheFirstReadingThreeSecondsOn) {
    // The start value, then 0.5 to 3.0 behind it.
    EXPECT_EQ(reads_of_wait(100.0, 0.5), 7);
    EXPECT_EQ(reads_of_wait(100.0, 4.0), 2);
    EXPECT_EQ(reads_of_wait(86396.0, 0.5), 7);
}

TEST_F(Start, BothValuesPassThroughSinglePrecision) {
    // Late in the day a 32-bit value cannot tell half a millisecond before the end from the end.
    EXPECT_EQ(reads_of_wait(80000.0, 2.9995), 2);
    EXPECT_EQ(reads_of_wait(1.0, 2.9995), 3);
}

TEST_F(Start, AWaitBegunInTheLastThreeSecondsBeforeMidnightDoesNotEnd) {
    EXPECT_THROW(reads_of_wait(86397.5, 0.25), ReadTooOften);
    EXPECT_THROW(reads_of_wait(86399.9, 1.0), ReadTooOften);
}

TEST_F(Start, WithoutAClockThereIsNoWait) {
    platform::outside.time_of_day = nullptr;
    wait_for_splash();
}

TEST_F(Start, TheSplashIsUnloadedBeforeTheMainWindowIsShown) {
    frmsoftwaremain = {};
    session.workingDirectory = "left over";
    platform::outside.time_of_day = [this] {
        record("clock");
        return steps.size() == 2 ? 10.0 : 13.0;
    };
    look = [](const std::string& /*step*/) { EXPECT_FALSE(frmsoftwaremain.visible); };
    tarnelbrookmain();
    EXPECT_EQ(steps, (Steps{"splash", "clock", "clock", "unload splash"}));
    EXPECT_TRUE(frmsoftwaremain.visible);
    EXPECT_EQ(session.workingDirectory, "");
    EXPECT_EQ(menu_state(), "on on on off");
}

TEST_F(Start, AFailureOfAnyStepIsIgnored) {
    frmsoftwaremain = {};
    windows.show_splash = [] { throw platform::Failure("no picture"); };
    windows.unload_splash = [] { throw platform::Failure("no splash"); };
    platform::outside.time_of_day = []() -> double { throw platform::Failure("no clock"); };
    tarnelbrookmain();
    EXPECT_TRUE(frmsoftwaremain.visible);
    EXPECT_TRUE(user.boxes.empty());
}

}  // namespace
}  // namespace gullymark::store
