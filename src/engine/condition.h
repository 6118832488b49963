#pragma once

#include <concepts>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "engine/formula.h"

/// Conditions that know how they are written, as formulas do: `s.W > 0.0 && s.W < s.T`. "and" and "or" end at the side that
/// decides; a side that is not reached cannot fault.
namespace gullymark::engine {

/// Stands here, so that the operators below are found for every condition, wherever one is written.
struct FormulaCondition {};

namespace formula {

using Condition = FormulaCondition;
template <typename T>
concept Asked = std::derived_from<std::remove_cvref_t<T>, Condition>;

struct Less {
    static constexpr std::string_view sign = " < ";
    static constexpr bool of(Real a, Real b) { return a < b; }
};
struct LessOrEqual {
    static constexpr std::string_view sign = " <= ";
    static constexpr bool of(Real a, Real b) { return a <= b; }
};
struct Greater {
    static constexpr std::string_view sign = " > ";
    static constexpr bool of(Real a, Real b) { return a > b; }
};
struct GreaterOrEqual {
    static constexpr std::string_view sign = " >= ";
    static constexpr bool of(Real a, Real b) { return a >= b; }
};
struct Equal {
    static constexpr std::string_view sign = " = ";
    static constexpr bool of(Real a, Real b) { return a == b; }
};
struct Unequal {
    static constexpr std::string_view sign = " <> ";
    static constexpr bool of(Real a, Real b) { return a != b; }
};

template <typename Sign, Tree L, Tree R>
struct Compared : Condition {
    L left;
    R right;

    constexpr Compared(const L& l, const R& r) : left(l), right(r) {}
    [[nodiscard]] constexpr bool holds() const {
        const Real a = left.value();
        return Sign::of(a, right.value());
    }
    constexpr explicit operator bool() const { return holds(); }
    [[nodiscard]] Spelling spelled() const {
        return spell_operation(Sign::sign, comparison, left.spelled(), right.spelled());
    }
};
template <typename Sign, typename L, typename R>
constexpr auto compared(const L& l, const R& r) {
    return Compared<Sign, tree_of<L>, tree_of<R>>(tree(l), tree(r));
}

template <Asked L, Asked R>
struct Both : Condition {
    L left;
    R right;

    constexpr Both(const L& l, const R& r) : left(l), right(r) {}
    [[nodiscard]] constexpr bool holds() const { return left.holds() && right.holds(); }
    constexpr explicit operator bool() const { return holds(); }
    [[nodiscard]] Spelling spelled() const {
        return spell_operation(" and ", both, left.spelled(), right.spelled());
    }
};

template <Asked L, Asked R>
struct Either : Condition {
    L left;
    R right;

    constexpr Either(const L& l, const R& r) : left(l), right(r) {}
    [[nodiscard]] constexpr bool holds() const { return left.holds() || right.holds(); }
    constexpr explicit operator bool() const { return holds(); }
    [[nodiscard]] Spelling spelled() const {
        return spell_operation(" or ", either, left.spelled(), right.spelled());
    }
};

template <Asked T>
struct Not : Condition {
    T inner;

    constexpr explicit Not(const T& t) : inner(t) {}
    [[nodiscard]] constexpr bool holds() const { return !inner.holds(); }
    constexpr explicit operator bool() const { return holds(); }
    [[nodiscard]] Spelling spelled() const { return spell_denial(inner.spelled()); }
};

/// Whether the text of a column is that one, to the letter. `told` keeps the answer: the text is looked at once.
struct Says : Condition {
    Column column;
    std::string_view words;
    bool told;

    Says(Column of, std::string_view text) : column(of), words(text), told(open_inlet.text(of) == text) {}
    [[nodiscard]] bool holds() const { return told; }
    explicit operator bool() const { return told; }
    [[nodiscard]] Spelling spelled() const;
};

}  // namespace formula

template <typename L, typename R>
requires formula::Operands<L, R>
constexpr auto operator<(const L& l, const R& r) {
    return formula::compared<formula::Less>(l, r);
}
template <typename L, typename R>
requires formula::Operands<L, R>
constexpr auto operator<=(const L& l, const R& r) {
    return formula::compared<formula::LessOrEqual>(l, r);
}
template <typename L, typename R>
requires formula::Operands<L, R>
constexpr auto operator>(const L& l, const R& r) {
    return formula::compared<formula::Greater>(l, r);
}
template <typename L, typename R>
requires formula::Operands<L, R>
constexpr auto operator>=(const L& l, const R& r) {
    return formula::compared<formula::GreaterOrEqual>(l, r);
}
template <typename L, typename R>
requires formula::Operands<L, R>
constexpr auto operator==(const L& l, const R& r) {
    return formula::compared<formula::Equal>(l, r);
}
template <typename L, typename R>
requires formula::Operands<L, R>
constexpr auto operator!=(const L& l, const R& r) {
    return formula::compared<formula::Unequal>(l, r);
}
template <formula::Asked L, formula::Asked R>
constexpr auto operator&&(const L& l, const R& r) {
    return formula::Both<L, R>(l, r);
}
template <formula::Asked L, formula::Asked R>
constexpr auto operator||(const L& l, const R& r) {
    return formula::Either<L, R>(l, r);
}
template <formula::Asked T>
constexpr auto operator!(const T& t) {
    return formula::Not<T>(t);
}

/// Whether the text of a column of the open inlet is that one, to the letter.
inline formula::Says says(Column column, std::string_view words) {
    return {column, words};
}

}  // namespace gullymark::engine
