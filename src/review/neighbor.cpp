#include "review/neighbor.h"

#include <algorithm>
#include <limits>

#include "platform/number_text.h"

namespace gullymark::review {

calculation::SolvedCopy solve_with(const Survey& survey, Survey::Index index, engine::Column column,
                                   const std::string& text, const std::string& number_format) {
    engine::InletRecord changed = survey.inlet(index);
    changed.load(column, text);
    return calculation::solve_untraced(changed, survey.project().units, number_format);
}

calculation::SolvedCopy solve_with(const Survey& survey, Survey::Index index, engine::Column column,
                                   double number, const std::string& number_format) {
    constexpr double greatest = std::numeric_limits<double>::max();
    return solve_with(survey, index, column, platform::number_text(std::clamp(number, -greatest, greatest)),
                      number_format);
}

}  // namespace gullymark::review
