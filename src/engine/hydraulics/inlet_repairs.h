#pragma once

#include <string_view>

#include "engine/step.h"

/// What several solvers do to inputs that a designer left blank or too flat. The repaired text stays in the record.
namespace gullymark::engine {

/// The inlet slope, in either system of units, of the solvers that do not copy one of the record.
inline constexpr std::string_view usual_inlet_slope = "0.1";

/// A blank `column` takes `text`. Two steps from `first` on.
void fill_blank(int first, Column column, std::string_view text);
/// The same with the text of another column.
void fill_blank(int first, Column column, Column other);

/// An INLETXSLOPE flatter than the pavement takes the text of PAVXSLOPE. `pavement_slope` is the slope to compare with:
/// a Quantity, or in some solvers a Reading of the column, so that an unreadable one faults here and enters the branch.
/// Two steps from `first` on.
template <typename Slope>
void raise_inlet_slope(int first, const Slope& pavement_slope) {
    if (holds(first, [&] { return pavement_slope > number_in(Column::INLETXSLOPE); })) {
        step(first + 1, Column::INLETXSLOPE, [] { return Copied(Column::PAVXSLOPE); });
    }
}

}  // namespace gullymark::engine
