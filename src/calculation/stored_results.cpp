#include "calculation/stored_results.h"

#include <algorithm>

#include "engine/results.h"
#include "platform/unit_system.h"

namespace gullymark::calculation {

using engine::Column;

namespace {

using Solve = SolvedCopy(const engine::InletRecord& inlet, std::string units, std::string number_format);

const std::vector<Column>& result_columns() {
    static const auto columns = engine::all_result_columns();
    return columns;
}

bool follow(const engine::InletRecord& stored, const engine::InletRecord& fresh) {
    return differing_results(stored, fresh).empty();
}

/// In ENGLISH units there are no other decimals than three.
SolvedCopy solve_like_stored_by(Solve& solve, const engine::InletRecord& inlet, const std::string& units,
                                const std::string& number_format) {
    SolvedCopy solved = solve(inlet, units, number_format);
    if (units == platform::english_units || follow(inlet, solved.inlet)) {
        return solved;
    }
    for (const std::string_view other : {"0.000", "0.0000"}) {
        if (number_format.ends_with(
                other)) {  // also with the number sign that one of the two writings has before it
            continue;
        }
        SolvedCopy again = solve(inlet, units, std::string(other));
        if (follow(inlet, again.inlet)) {
            return again;
        }
    }
    return solved;
}

}  // namespace

std::vector<Column> differing_results(const engine::InletRecord& stored, const engine::InletRecord& fresh) {
    std::vector<Column> columns;
    for (const Column column : result_columns()) {
        if (stored.text(column) != fresh.text(column)) {
            columns.push_back(column);
        }
    }
    return columns;
}

bool has_results(const engine::InletRecord& inlet) {
    return std::ranges::any_of(result_columns(), [&](Column column) { return !inlet.text(column).empty(); });
}

SolvedCopy solve_like_stored(const engine::InletRecord& inlet, const std::string& units,
                             const std::string& number_format) {
    return solve_like_stored_by(solve_copy, inlet, units, number_format);
}

SolvedCopy solve_like_stored_untraced(const engine::InletRecord& inlet, const std::string& units,
                                      const std::string& number_format) {
    return solve_like_stored_by(solve_untraced, inlet, units, number_format);
}

}  // namespace gullymark::calculation
