#pragma once

#include <functional>
#include <random>
#include <string>

#include "faults/site.h"

/// Many trials in one process: where no trial has to end its process, a process for each would cost more than all else.
namespace gullymark::faults {

/// Trials of the numbers 0 to `count` - 1, one after the other in a process of their own. One that crashes, or takes
/// too much processor time, falls short, and the rest go on in another process.
void try_apart(const Site& site, int count, Outcome& outcome,
               const std::function<void(int trial, Outcome& outcome)>& one);

/// 0 to `count` - 1.
int pick(std::mt19937& random, std::size_t count);

}  // namespace gullymark::faults
