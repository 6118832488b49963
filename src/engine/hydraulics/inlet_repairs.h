#pragma once

#include <string_view>

#include "engine/step.h"

/// What several solvers do to inputs that a designer left blank or too flat. The repaired text stays in the record.
namespace gullymark::engine {

/// The numbers of a condition and of the step inside it.
struct Branch {
    int condition;
    int inside;
};

/// A blank `column` takes `text`.
inline void fill_blank(Branch branch, Column column, std::string_view text) {
    if (holds(branch.condition, [&] { return open_inlet.text(column).empty(); })) {
        step(branch.inside, column, [&] { return text; });
    }
}

/// An INLETXSLOPE flatter than the pavement takes the text of PAVXSLOPE. `pavement_slope` gives the slope to compare
/// with: some solvers read the column anew, so that an unreadable one faults here and enters the branch.
template <typename Slope>
void raise_inlet_slope(Branch branch, Slope pavement_slope) {
    if (holds(branch.condition, [&] { return pavement_slope() > number_in(Column::INLETXSLOPE); })) {
        step(branch.inside, Column::INLETXSLOPE,
             [] { return std::string_view(open_inlet.text(Column::PAVXSLOPE)); });
    }
}

/// A number as its text in `format` reads.
Real rounded(Real number, std::string_view format);

}  // namespace gullymark::engine
