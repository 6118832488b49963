#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <random>

#include "faults/deeds.h"
#include "support/child_process.h"

/// Disturbing a designer at his work at random moments.
namespace gullymark::faults {

/// How often a process does a deed: one that opens the file does so once.
int times_each(const Deed& deed);

/// Opens the project and does the deed so often; `done` counts what came back, from -1 before the open.
void do_all(const Site& site, const Deed& deed, std::atomic<int>& done);

/// How long an undisturbed process takes at least, so that the moments fall all over it.
std::chrono::microseconds time_of(const std::function<void()>& prepare, const std::function<void()>& action);

/// Runs `action` in a process of its own and disturbs that after a random part of `duration`; true when it came to its
/// end all the same.
bool disturb_within(std::chrono::microseconds duration, std::mt19937& random,
                    const std::function<void()>& action,
                    const std::function<void(const testing_support::ChildProcess&)>& disturb);

}  // namespace gullymark::faults
