#pragma once

#include <string>

#include "calculation/solve_copy.h"
#include "review/survey.h"

namespace gullymark::review {

/// A solve of the same inlet with another text in one column.
calculation::SolvedCopy solve_with(const Survey& survey, Survey::Index index, engine::Column column,
                                   const std::string& text, const std::string& number_format);
/// The same with a number; one beyond all numbers is the greatest.
calculation::SolvedCopy solve_with(const Survey& survey, Survey::Index index, engine::Column column,
                                   double number, const std::string& number_format);

}  // namespace gullymark::review
