#include "review/result_rules.h"

#include "calculation/stored_results.h"
#include "engine/solve.h"
#include "engine/units.h"

namespace gullymark::review {

using engine::Column;

void judge_results(Survey& survey, Survey::Index index, const calculation::SolvedCopy& solved) {
    const auto& record = survey.inlet(index);
    const bool has_results = calculation::has_results(record);
    const char* const solve_it = "Open the inlet, solve and save it.";
    if (!solved.solved) {
        std::string text = has_results
                               ? "Solve gives no results for these inputs, those stored belong to others"
                               : "Solve gives no results for these inputs";
        for (const auto& box : solved.boxes) {
            text += ": " + box.text;
        }
        survey.report(rules::not_solved, index, text, "Check the flow that comes to the inlet.");
        return;
    }
    for (const auto& box : solved.boxes) {
        survey.report(rules::solve_tells, index, "Solve tells: " + box.text,
                      "Follow the worked calculation of the inlet.");
    }
    const auto differing = calculation::differing_results(record, solved.inlet);
    if (!has_results && !differing.empty()) {
        survey.report(rules::not_solved, index, "The inlet has not been solved: no results are stored.",
                      solve_it);
        return;
    }
    for (const Column column : differing) {
        survey.report(rules::result_differs, index,
                      name_of(column) + " is stored as " + told(record, column) + " and comes out as " +
                          told(solved.inlet, column) + ".",
                      solve_it);
    }
}

}  // namespace gullymark::review
