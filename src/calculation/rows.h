#pragma once

#include <functional>
#include <string>
#include <vector>

#include "calculation/document.h"
#include "calculation/solve_copy.h"

namespace gullymark::calculation {

using Caption = std::function<std::string(engine::Column)>;

/// The steps of a solve under their headings, with what they read, and the notes on departures that they point to.
/// `sheet` is that of `engine::sheet_of`.
struct WrittenSteps {
    std::vector<Section> sections;
    std::vector<Row> constants;
    std::vector<std::string> departures;
};
WrittenSteps write_steps(const SolvedCopy& solved, const std::string& sheet, const Caption& caption);

/// The stored results with their rounding, in the order in which they are rounded.
std::vector<Row> write_results(const SolvedCopy& solved, const Caption& caption);

}  // namespace gullymark::calculation
