#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/condition.h"
#include "engine/formula.h"

/// What a function or a search within a step tells of its own way: values with a symbol, conditions, how a search ended.
/// While nobody traces, all of this only computes.
namespace gullymark::engine::formula {

/// Takes the lines of the step that runs; null while nobody traces, and during the passes of a search.
extern std::vector<Working>* workings;

/// What a tree comes to, a fault as an outcome.
template <Tree T>
Outcome outcome_of(const T& tree) {
    try {
        if constexpr (requires { tree.outcome(); }) {
            return tree.outcome();
        } else {
            return tree.value();
        }
    } catch (Fault fault) {
        return fault;
    }
}

/// A line for the step that runs: a value or why there is none, or a condition's answer. Only while `workings` is set.
void note_value(const Quantity& target, const Outcome& outcome, Spelling spelling);
void note_condition(bool holds, Spelling spelling);
/// A line of plain words; nothing while nobody traces.
void note_text(std::string_view text);

/// A value within a formula, with a symbol and a line of its own. One that faults does so where the formula uses it.
template <Tree T>
Named let(const Quantity& target, const T& tree) {
    const Named named(target.symbol, outcome_of(tree));
    if (workings != nullptr) {
        note_value(target, named.number, tree.spelled());
    }
    return named;
}

/// The same where nobody traces: numbers alone.
inline Real let(const Quantity& /*target*/, Real number) {
    return number;
}

/// Whether a condition within a formula holds, with a line of its own.
template <Asked T>
bool decides(const T& condition) {
    const bool holds = condition.holds();
    if (workings != nullptr) {
        note_condition(holds, condition.spelled());
    }
    return holds;
}

inline bool decides(bool holds) {
    return holds;
}

/// How a search came to its answer.
struct Search {
    Quantity target;
    Outcome answer;
    Real low;
    Real high;
    double tolerance = 0.0;  // that the answer put back keeps within; 0 where the search ended otherwise
    std::size_t passes = 0;
    std::string_view ending;  // in a few words
};
/// A line for it; nothing while nobody traces.
void note_search(const Search& search);

/// Which of the formulas of a function was taken. It has been worked out.
struct Taken : Node {
    Outcome number;
    std::shared_ptr<const Spelling> spelling{};

    explicit Taken(Real value) : number(value) {}
    template <Tree T>
    explicit Taken(const T& tree) : number(outcome_of(tree)) {
        if (workings != nullptr) {
            spelling = std::make_shared<const Spelling>(tree.spelled());
        }
    }
    [[nodiscard]] Outcome outcome() const { return number; }
    [[nodiscard]] Real value() const;
    [[nodiscard]] Spelling spelled() const { return spelling ? *spelling : Spelling(); }
    operator Real() const { return value(); }
};

/// A function that is worked out in lines of its own, `name(arguments)` where it is used.
template <std::size_t count>
struct Called : Node {
    std::string_view name;
    Outcome number;
    std::array<Named, count> arguments;

    Called(std::string_view called, const Outcome& outcome, const std::array<Named, count>& with)
        : name(called), number(outcome), arguments(with) {}
    [[nodiscard]] Outcome outcome() const { return number; }
    [[nodiscard]] Real value() const { return Named(name, number).value(); }
    operator Real() const { return value(); }
    [[nodiscard]] Spelling spelled() const {
        std::vector<Spelling> parts;
        for (const auto& argument : arguments) {
            parts.push_back(argument.spelled());
        }
        return spell_call(name, std::move(parts));
    }
};

/// The function's value and what it was worked out from. `worked_out` gives a Real or throws a Fault.
template <typename Work, typename... Arguments>
auto called(std::string_view name, const Work& worked_out, const Arguments&... arguments) {
    constexpr std::size_t count = sizeof...(arguments);
    try {
        return Called<count>(name, Outcome(worked_out()), {Named(arguments)...});
    } catch (Fault fault) {
        return Called<count>(name, Outcome(fault), {Named(arguments)...});
    }
}

}  // namespace gullymark::engine::formula
