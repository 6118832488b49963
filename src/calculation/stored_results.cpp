#include "calculation/stored_results.h"

#include <algorithm>

#include "engine/results.h"

namespace gullymark::calculation {

using engine::Column;

std::vector<Column> differing_results(const engine::InletRecord& stored, const engine::InletRecord& fresh) {
    std::vector<Column> columns;
    for (const Column column : engine::all_result_columns()) {
        if (stored.text(column) != fresh.text(column)) {
            columns.push_back(column);
        }
    }
    return columns;
}

bool has_results(const engine::InletRecord& inlet) {
    const auto columns = engine::all_result_columns();
    return std::any_of(columns.begin(), columns.end(),
                       [&](Column column) { return !inlet.text(column).empty(); });
}

SolvedCopy solve_like_stored(const engine::InletRecord& inlet, const std::string& units,
                             const std::string& number_format) {
    SolvedCopy solved = solve_copy(inlet, units, number_format);
    for (const char* other : {"0.000", "0.0000"}) {
        if (number_format == other || differing_results(inlet, solved.inlet).empty()) {
            continue;
        }
        SolvedCopy again = solve_copy(inlet, units, other);
        if (differing_results(inlet, again.inlet).empty()) {
            return again;
        }
    }
    return solved;
}

}  // namespace gullymark::calculation
