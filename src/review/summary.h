#pragma once

#include <cstddef>
#include <string>

#include "review/review_file.h"

/// What is told of a project above all inlets. The units of the project are in force meanwhile.
namespace gullymark::review {

/// "Runoff in 9.000 cfs, intercepted 7.000 cfs, bypass out 1.500 cfs, unexplained 0.500 cfs"; where rounding explains what is
/// left, "the balance closes".
std::string balance_line(const Balance& balance);

/// "Open, solve and save, in this order: 3, 4, 7", with the first `most` numbers and how many more there are; else that
/// everything is up to date. An inlet without a number is told by its place in the file.
std::string to_do_line(const Reviewed& reviewed, std::size_t most);

/// "total 1.128 cfs, spread 3.945 ft, bypass 0.351 cfs" as an inlet stores them, or as they would be.
std::string numbers_line(const Reviewed& reviewed, std::size_t inlet, bool fresh);

/// What keeps a part of the road from being brought up to date: the first obstacle with its inlet, and how many more there are.
/// Empty for none.
std::string obstacle_line(const Reviewed& reviewed);

}  // namespace gullymark::review
