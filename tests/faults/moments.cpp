#include "faults/moments.h"

#include <algorithm>
#include <limits>
#include <thread>

namespace gullymark::faults {

using Clock = std::chrono::steady_clock;
using testing_support::ChildProcess;
using testing_support::SharedNumber;

int times_each(const Deed& deed) {
    constexpr int times_in_a_project = 6;
    return deed.from_the_start ? 1 : times_in_a_project;
}

void do_all(const Site& site, const Deed& deed, std::atomic<int>& done) {
    Designer designer(site.program());
    if (!deed.from_the_start) {
        designer.open(site.file());
    }
    done = 0;
    for (int number = 0; number < times_each(deed); ++number) {
        deed.act(designer, site, number);
        ++done;
    }
}

std::chrono::microseconds time_of(const std::function<void()>& prepare, const std::function<void()>& action) {
    const SharedNumber least;
    *least = std::numeric_limits<int>::max();
    for (int i = 0; i < 5; ++i) {
        prepare();
        ChildProcess([&] {
            const auto start = Clock::now();
            action();
            const auto time = std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start);
            *least = std::min<int>(*least, static_cast<int>(time.count()));
        }).wait();
    }
    return std::chrono::microseconds(*least);
}

bool disturb_within(std::chrono::microseconds duration, std::mt19937& random,
                    const std::function<void()>& action,
                    const std::function<void(const ChildProcess&)>& disturb) {
    std::uniform_int_distribution<std::int64_t> moment(0, duration.count());
    const auto delay = std::chrono::microseconds(moment(random));
    const SharedNumber started;
    ChildProcess child([&] {
        while (*started == 0) {
            std::this_thread::yield();
        }
        action();
    });
    *started = 1;
    std::this_thread::sleep_for(delay);
    disturb(child);
    return child.wait();
}

}  // namespace gullymark::faults
