#pragma once

#include <string>
#include <vector>

#include "engine/inlet_record.h"
#include "engine/step.h"

/// The command SOLVE on a copy of an inlet, with or without a trace.
namespace gullymark::calculation {

/// A box that the solve would show.
struct ShownBox {
    std::string text;
    std::size_t behind = 0;  // so many steps have run
};

struct SolvedCopy {
    bool solved = false;  // what the command answers
    engine::InletRecord inlet;
    std::vector<engine::TraceLine> trace;
    std::vector<engine::TraceLine> roundings;
    std::vector<ShownBox> boxes;
    std::string number_format;  // that most results were rounded to
};

/// Solves a copy of `inlet` in `units`. All that the engine has open is as before: the open inlet and who is told of its
/// changes, DataSolved, the unit system with its constants, who looks on. No box is shown. What only comes from an earlier
/// look at the inlets, the format of numbers, is taken as it is.
SolvedCopy solve_copy(const engine::InletRecord& inlet, std::string units, std::string number_format);

/// The same without trace and roundings, for who solves many.
SolvedCopy solve_untraced(const engine::InletRecord& inlet, std::string units, std::string number_format);

}  // namespace gullymark::calculation
