#include "faults/worker.h"

#include <sys/resource.h>

#include <algorithm>
#include <csignal>
#include <fstream>

#include "support/child_process.h"

namespace gullymark::faults {
namespace {

constexpr rlim_t seconds_each = 10;

/// This process may take so much processor time from now on.
void allow_time() {
    rusage used{};
    getrusage(RUSAGE_SELF, &used);
    const auto seconds = static_cast<rlim_t>(used.ru_utime.tv_sec + used.ru_stime.tv_sec);
    const rlimit limit{seconds + seconds_each, RLIM_INFINITY};
    setrlimit(RLIMIT_CPU, &limit);
}

void write_down(const Outcome& outcome, const std::string& path) {
    std::ofstream file(path, std::ios::app);
    for (const auto& [what, number] : outcome.counts) {
        file << number << ' ' << what << '\n';
    }
    for (auto what : outcome.shortfalls) {
        std::ranges::replace(what, '\n', '|');
        file << "short " << what << '\n';
    }
}

void read_back(const std::string& path, Outcome& outcome) {
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        const auto blank = line.find(' ');
        const auto number = line.substr(0, blank);
        const auto what = line.substr(blank + 1);
        if (number == "short") {
            outcome.fail(what);
        } else {
            outcome.count(what, std::stoi(number));
        }
    }
}

void try_from(int first, int count, std::atomic<int>& at, const std::string& path,
              const std::function<void(int trial, Outcome& outcome)>& one) {
    const rlimit no_core{0, 0};
    setrlimit(RLIMIT_CORE, &no_core);
    for (int trial = first; trial < count; ++trial) {
        at = trial;
        allow_time();
        Outcome outcome;
        one(trial, outcome);
        write_down(outcome, path);
    }
    at = count;
}

}  // namespace

void try_apart(const Site& site, int count, Outcome& outcome,
               const std::function<void(int trial, Outcome& outcome)>& one) {
    const std::string path = site.path("outcomes");
    const testing_support::SharedNumber at;
    for (int first = 0; first < count; first = *at + 1) {
        testing_support::ChildProcess worker([&] { try_from(first, count, *at, path, one); });
        if (!worker.wait() && *at < count) {
            outcome.fail("trial " + std::to_string(*at) + ": the program " +
                         (worker.signal() == SIGXCPU ? "hangs" : "crashes"));
        }
    }
    read_back(path, outcome);
    std::filesystem::remove(path);
}

int pick(std::mt19937& random, std::size_t count) {
    return static_cast<int>(random() % count);
}

}  // namespace gullymark::faults
