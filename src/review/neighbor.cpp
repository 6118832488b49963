#include "review/neighbor.h"

namespace gullymark::review {

calculation::SolvedCopy solve_with(const Survey& survey, Survey::Index index, engine::Column column,
                                   const std::string& text, const std::string& number_format) {
    engine::InletRecord changed = survey.inlet(index);
    changed.load(column, text);
    return calculation::solve_untraced(changed, survey.project().units, number_format);
}

}  // namespace gullymark::review
