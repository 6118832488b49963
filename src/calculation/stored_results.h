#pragma once

#include <string>
#include <vector>

#include "calculation/solve_copy.h"
#include "engine/inlet_record.h"

/// The results that an inlet stores against those that its inputs give.
namespace gullymark::calculation {

/// The result columns whose texts differ, in the order in which results are formatted.
std::vector<engine::Column> differing_results(const engine::InletRecord& stored,
                                              const engine::InletRecord& fresh);

/// True where at least one result is stored.
bool has_results(const engine::InletRecord& inlet);

/// A solve from which the stored results follow, else one in `number_format`. A metric inlet keeps the decimals of its day:
/// they are three after a look at the listing.
SolvedCopy solve_like_stored(const engine::InletRecord& inlet, const std::string& units,
                             const std::string& number_format);

/// The same without a trace, for who solves many.
SolvedCopy solve_like_stored_untraced(const engine::InletRecord& inlet, const std::string& units,
                                      const std::string& number_format);

}  // namespace gullymark::calculation
