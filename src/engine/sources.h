#pragma once

#include <span>
#include <string>
#include <string_view>

#include "engine/spelling.h"

/// Where the formulas of the calculation sheets are published, and where a rule departs from its publication. The rows
/// stand in sources.def, and to the letter in doc/sources.md, which tells the publications' short names.
namespace gullymark::engine {

/// A rule of this program: no publication is known.
inline constexpr std::string_view own_rule = "own";

struct Source {
    std::string_view sheet;        // a section of the document: "cisi-cg"
    std::string_view symbols;      // "B, Eo"
    std::string_view part;         // of the formula, where a symbol has several; empty for any
    std::string_view publication;  // "3e Eq. 4-23; 4e Eq. 7.13; H12 7.2"
    std::string_view departure;    // in a clause; empty where the rule is the published one
};

/// All rows, in the document's order.
std::span<const Source> all_sources();

/// How the rule departs in the unit system in force; empty where it does not.
std::string_view departure_of(const Source& source);

/// The row for a step of a calculation sheet (`sheet_of` in solve.h) that gives `symbol` the value of `formula`; null
/// where none has it, as for a step that reads a column or writes a quantity into one.
const Source* source_of_step(std::string_view sheet, std::string_view symbol,
                             const formula::Spelling& formula);

/// The row for a line of a function within such a step: `step` is the formula of the step.
const Source* source_of_working(std::string_view sheet, const formula::Spelling& step,
                                std::string_view symbol, const formula::Spelling& formula);

/// The row of a constant by its name; null for a symbol that is none.
const Source* source_of_constant(std::string_view name);

}  // namespace gullymark::engine
