#pragma once

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "engine/inlet_record.h"
#include "engine/real.h"
#include "engine/units.h"

/// The one rule of the solvers: a step gives its target the value of its formula; if the formula cannot be
/// evaluated (an arithmetic fault, an unreadable number) the target keeps the value it had, and the next step
/// runs; a fault in a condition enters the branch.
///
/// Steps are numbered through a solver's sheet, one number for one statement, so that a test can trip each
/// and a trace can name it.
namespace gullymark::engine {

/// A named number of a calculation sheet. It starts at 0.
struct Quantity {
    std::string_view symbol;
    Unit unit = Unit::ratio;
    std::string_view meaning;
    Real value = 0.0;

    operator Real() const {
        return value;
    }  // NOLINT(google-explicit-constructor): a symbol stands for its value
};

/// What one step did.
struct TraceLine {
    enum class Kind : unsigned char { number, text, condition };

    int step = 0;
    Kind kind = Kind::number;
    Fault fault = Fault::none;  // other than none: abandoned, the target kept its value
    Unit unit = Unit::ratio;
    std::string_view symbol;   // of a condition: empty
    std::string_view meaning;  // of a condition: empty
    double number = 0.0;       // of a number after the step; of a condition 1 for entered
    std::string text;          // of a text after the step
};

/// "12  T = 7.41 ft  spread of the gutter flow", "31  V abandoned: division by zero  velocity".
std::string describe(const TraceLine& line);

/// A fault in a few words: "division by zero"; empty for none.
std::string_view fault_text(Fault fault);

/// Who looks on while steps run. Nobody, most of the time.
struct Onlooker {
    std::vector<TraceLine>* trace = nullptr;  // takes a line for every step while it is set
    int tripped_step = 0;                     // this step faults, whatever its formula; 0 for none
};

extern Onlooker onlooker;

/// The number in a text. Faults on one that is none, an empty one included, and on one too large for a double.
Real number_in(std::string_view text);

/// The number in the text of a column of the open inlet.
Real number_in(Column column);

/// A column read once for a sheet that uses it in several steps: each use gives its number, or throws its fault.
class Reading {
  public:
    Reading() = default;
    explicit Reading(Column column);

    operator Real() const {  // NOLINT(google-explicit-constructor): it stands for its number
        if (outcome_.fault != Fault::none) {
            throw outcome_.fault;
        }
        return outcome_.value;
    }

  private:
    Outcome outcome_ = Real(0.0);
};

namespace detail {
/// What a step did, for the trace that somebody takes.
void note(int number, const Quantity& target, Fault fault);
void note(int number, Column target, Fault fault);
void note(int number, bool entered, Fault fault);
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
    } else {
        write(target, value);
        return Fault::none;
    }
}

/// Runs one step and notes it; the fault that abandoned it, or none.
template <typename Target, typename Formula>
Fault run(int number, Target&& target, Formula&& formula) {
    Fault caught = Fault::none;
    try {
        trip(number);
        caught = take(target, std::forward<Formula>(formula)());
    } catch (Fault fault) {
        caught = fault;
    }
    if (onlooker.trace != nullptr) {
        note(number, target, caught);
    }
    return caught;
}

/// Asks a condition and notes it; `entered` keeps its value when that faults. The fault, or none.
template <typename Condition>
Fault ask(int number, bool& entered, Condition&& condition) {
    Fault caught = Fault::none;
    try {
        trip(number);
        entered = std::forward<Condition>(condition)();
    } catch (Fault fault) {
        caught = fault;
    }
    if (onlooker.trace != nullptr) {
        note(number, entered, caught);
    }
    return caught;
}
}  // namespace detail

/// A step under the rule above. `target` is a Quantity or a Column, `formula` gives a Real (a column takes
/// its text of up to 15 digits), an Outcome or, for a column, a text.
template <typename Target, typename Formula>
void step(int number, Target&& target, Formula&& formula) {
    detail::run(number, target, std::forward<Formula>(formula));
}

/// A condition under the rule above: a fault enters the branch.
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
