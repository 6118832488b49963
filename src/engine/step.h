#pragma once

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "engine/condition.h"
#include "engine/formula.h"
#include "engine/inlet_record.h"
#include "engine/quantity.h"
#include "engine/real.h"
#include "engine/units.h"
#include "engine/workings.h"

/// The one rule of the solvers: a step gives its target the value of its formula; if the formula cannot be
/// evaluated (an arithmetic fault, an unreadable number) the target keeps the value it had, and the next step
/// runs; a fault in a condition enters the branch.
///
/// Steps are numbered through a solver's sheet, one number for one statement, so that a test can trip each
/// and a trace can name it.
namespace gullymark::engine {

/// What one step did.
struct TraceLine {
    enum class Kind : unsigned char { number, text, condition };

    int step = 0;
    std::string_view heading;  // of the design, under which it stands
    Kind kind = Kind::number;
    Fault fault = Fault::none;  // other than none: abandoned, the target kept its value
    Unit unit = Unit::ratio;
    std::string_view symbol;                 // of a condition: empty
    std::string_view meaning;                // of a condition: empty
    double number = 0.0;                     // of a number after the step; of a condition 1 for entered
    std::string text;                        // of a text after the step
    formula::Spelling formula;               // of a number, a text or a condition; what the step was made of
    std::vector<formula::Working> workings;  // what the functions and searches of the formula told, in order
};

/// "12  T = 7.41 ft  spread of the gutter flow", "31  V abandoned: division by zero; it stays 0 ft/sec  velocity".
std::string describe(const TraceLine& line);

/// How it came to that, a line each: "= W / T", "= 2 / 6.94661", what it read, and what its functions and searches tell.
/// The numbers in six digits, or in all of theirs (`Style::exact`).
std::vector<std::string> describe_formula(const TraceLine& line,
                                          formula::Style numbers = formula::Style::numbers);

/// A fault in a few words: "division by zero"; empty for none.
std::string_view fault_text(Fault fault);

/// Who looks on while steps run. Nobody, most of the time.
struct Onlooker {
    std::vector<TraceLine>* trace = nullptr;  // takes a line for every step while it is set
    std::vector<TraceLine>* roundings =
        nullptr;                 // takes a line, of no step, for every result that is rounded at the end
    std::string_view heading{};  // of the steps that run; see headings.h
    int tripped_step = 0;        // this step faults, whatever its formula; 0 for none
};

extern Onlooker onlooker;

namespace detail {
/// What a step did, for the trace that somebody takes.
void note(TraceLine line, const Quantity& target);
void note(TraceLine line, Column target);
void note(TraceLine line, bool entered);

/// Faults when a test asked for it at this step.
inline void trip(int number) {
    if (onlooker.tripped_step == number) {
        throw Fault::tripped;
    }
}
/// Gives a target its new value; a column takes a number as its text of up to 15 digits.
inline void write(Quantity& target, Real number) {
    target.value = number;
}
void write(Column target, Real number);
void write(Column target, std::string_view text);

/// Gives a target what its formula came to; the fault of a formula that returned one.
template <typename Target, typename Value>
Fault take(Target&& target, const Value& value) {
    if constexpr (std::is_same_v<Value, Outcome>) {
        if (value.fault == Fault::none) {
            write(target, value.value);
        }
        return value.fault;
    } else if constexpr (formula::Tree<Value> && requires { value.outcome(); }) {
        return take(target, value.outcome());
    } else if constexpr (formula::TextTree<Value> && std::is_same_v<std::remove_cvref_t<Target>, Column>) {
        write(target, value.text());
        return Fault::none;
    } else if constexpr (formula::Tree<Value>) {
        write(target, value.value());
        return Fault::none;
    } else {
        write(target, value);
        return Fault::none;
    }
}

/// How what a formula or a condition gave is written; nothing for a plain answer.
template <typename Value>
formula::Spelling spell(const Value& value) {
    if constexpr (std::is_same_v<Value, Outcome>) {
        return formula::Named("", value).spelled();
    } else if constexpr (formula::Operand<Value>) {
        return formula::tree(value).spelled();
    } else if constexpr (formula::Tree<Value> || formula::Asked<Value>) {
        return value.spelled();
    } else if constexpr (std::is_convertible_v<Value, std::string_view>) {
        return formula::spell_words("", value);
    } else {
        return {};
    }
}

/// The workings of the step that runs go into its line.
class Workings {
  public:
    explicit Workings(TraceLine& line) { formula::workings = &line.workings; }
    ~Workings() { formula::workings = nullptr; }
    Workings(const Workings&) = delete;
    Workings& operator=(const Workings&) = delete;
    Workings(Workings&&) = delete;
    Workings& operator=(Workings&&) = delete;
};

/// Runs one step that somebody looks at. It is spelled before its target changes.
template <typename Target, typename Formula>
[[gnu::noinline, gnu::cold]] Fault run_traced(int number, Target& target, Formula& formula) {
    TraceLine line{.step = number};
    try {
        trip(number);
        const Workings workings(line);
        const auto value = formula();
        line.formula = spell(value);
        line.fault = take(target, value);
    } catch (Fault fault) {
        line.fault = fault;
    }
    const Fault caught = line.fault;
    note(std::move(line), target);
    return caught;
}

/// Runs one step; the fault that abandoned it, or none. Flattened: the tree of the formula dissolves into its arithmetic.
template <typename Target, typename Formula>
[[gnu::flatten]] Fault run(int number, Target&& target, Formula&& formula) {
    if (onlooker.trace != nullptr) {
        return run_traced(number, target, formula);
    }
    try {
        trip(number);
        return take(target, formula());
    } catch (Fault fault) {
        return fault;
    }
}

template <typename Condition>
[[gnu::noinline, gnu::cold]] Fault ask_traced(int number, bool& entered, Condition& condition) {
    TraceLine line{.step = number};
    try {
        trip(number);
        const Workings workings(line);
        const auto asked = condition();
        line.formula = spell(asked);
        entered = static_cast<bool>(asked);
    } catch (Fault fault) {
        line.fault = fault;
    }
    const Fault caught = line.fault;
    note(std::move(line), entered);
    return caught;
}

/// Asks a condition; `entered` keeps its value when that faults. The fault, or none.
template <typename Condition>
[[gnu::flatten]] Fault ask(int number, bool& entered, Condition&& condition) {
    if (onlooker.trace != nullptr) {
        return ask_traced(number, entered, condition);
    }
    try {
        trip(number);
        entered = static_cast<bool>(condition());
        return Fault::none;
    } catch (Fault fault) {
        return fault;
    }
}
}  // namespace detail

/// A step under the rule above. `target` is a Quantity or a Column, `formula` gives a tree of formula.h, a Real (a
/// column takes its text of up to 15 digits), an Outcome or, for a column, a text.
template <typename Target, typename Formula>
void step(int number, Target&& target, Formula&& formula) {
    detail::run(number, target, std::forward<Formula>(formula));
}

/// A condition under the rule above: a fault enters the branch. `condition` gives one of condition.h, or a plain bool.
template <typename Condition>
bool holds(int number, Condition&& condition) {
    bool entered = true;
    detail::ask(number, entered, std::forward<Condition>(condition));
    return entered;
}

/// A step whose fault goes on to its caller, its target unchanged: for a solver that ends at the first one.
template <typename Target, typename Formula>
void strict_step(int number, Target&& target, Formula&& formula) {
    if (const Fault fault = detail::run(number, target, std::forward<Formula>(formula));
        fault != Fault::none) {
        throw fault;
    }
}

/// A condition whose fault goes on to its caller, for the same solver.
template <typename Condition>
bool strict_holds(int number, Condition&& condition) {
    bool entered = false;
    if (const Fault fault = detail::ask(number, entered, std::forward<Condition>(condition));
        fault != Fault::none) {
        throw fault;
    }
    return entered;
}

}  // namespace gullymark::engine
