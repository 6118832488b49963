#pragma once

#include <concepts>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "engine/quantity.h"
#include "engine/real.h"
#include "engine/spelling.h"

/// Formulas that know how they are written. `s.Q / s.A` is a small tree of the numbers that its quantities have now. It
/// becomes a Real where its value is asked for, or faults there, and it spells itself for a trace: the one spelling serves
/// both, so that what is printed is what was computed.
///
/// A tree holds its numbers and refers to nothing but symbols, which are literals: it may outlive the sheet. It is worked
/// out from left to right, and anew each time that it is asked. Nobody pays for the spelling who does not trace.
namespace gullymark::engine {

/// Stands here, so that the operators below are found for every tree, wherever one is written.
struct FormulaNode {};

namespace formula {

using Node = FormulaNode;
template <typename T>
concept Tree = std::derived_from<std::remove_cvref_t<T>, Node>;

/// The number in a text, or why there is none.
Outcome read_number(std::string_view text);

/// A column of the open inlet, read once for a sheet that uses it in one step or in several. Each use gives its number, or
/// throws its fault.
struct Reading : Node {
    Outcome number{Real(0.0)};
    Column column{};

    Reading() = default;
    explicit Reading(Column read_column)
        : number(read_number(open_inlet.text(read_column))), column(read_column) {}

    [[nodiscard]] constexpr Outcome outcome() const { return number; }
    [[nodiscard]] constexpr Real value() const {
        if (number.fault != Fault::none) {
            throw number.fault;
        }
        return number.value;
    }
    constexpr operator Real() const { return value(); }
    [[nodiscard]] Spelling spelled() const;
};

/// The text of a column, for a step that copies it.
struct Copied : Node {
    Column column;

    explicit Copied(Column from) : column(from) {}
    [[nodiscard]] std::string_view text() const { return open_inlet.text(column); }
    [[nodiscard]] Spelling spelled() const;
};

/// A number under its symbol: a quantity, a constant, a column that was read. Without a symbol a plain number. One that could
/// not be read throws its fault where its value is asked for.
struct Named : Node {
    std::string_view symbol{};
    Outcome number{Real(0.0)};
    std::optional<Column> column{};
    bool is_single = false;

    constexpr Named() = default;
    constexpr Named(Real value) : number(value) {}
    template <std::floating_point Number>
    constexpr Named(Number value) : number(Real(value)), is_single(std::same_as<Number, float>) {}
    constexpr Named(const Reading& reading) : number(reading.number), column(reading.column) {}
    constexpr Named(const Quantity& quantity) : symbol(quantity.symbol), number(quantity.value) {}
    constexpr Named(std::string_view name, const Outcome& outcome) : symbol(name), number(outcome) {}
    /// A constant, which a reader knows by the digits of its type.
    template <std::floating_point Number>
    constexpr Named(std::string_view name, Number value)
        : symbol(name), number(Real(value)), is_single(std::same_as<Number, float>) {}

    [[nodiscard]] constexpr Outcome outcome() const { return number; }
    [[nodiscard]] constexpr Real value() const {
        if (number.fault != Fault::none) {
            throw number.fault;
        }
        return number.value;
    }
    constexpr operator Real() const { return value(); }
    [[nodiscard]] Spelling spelled() const;
};

template <typename T>
concept Term = Tree<T> || std::same_as<std::remove_cvref_t<T>, Quantity>;
template <typename T>
concept Operand =
    Term<T> || std::floating_point<std::remove_cvref_t<T>> || std::same_as<std::remove_cvref_t<T>, Real>;
/// What an operator is defined for: numbers, one of which at least is a term.
template <typename L, typename R>
concept Operands = (Term<L> && Operand<R>) || (Operand<L> && Term<R>);

/// What an operand is in a tree. All that is a number under a name, or a plain one, is a Named.
template <Operand T>
constexpr auto tree(const T& term) {
    if constexpr (Tree<T> && !std::derived_from<T, Named>) {
        return term;
    } else {
        return Named(term);
    }
}
template <typename T>
using tree_of = decltype(tree(std::declval<const T&>()));

struct Plus {
    static constexpr Rank rank = sum;
    static constexpr std::string_view sign = " + ";
    static constexpr Real of(Real a, Real b) { return a + b; }
};
struct Minus {
    static constexpr Rank rank = sum;
    static constexpr std::string_view sign = " - ";
    static constexpr Real of(Real a, Real b) { return a - b; }
};
struct Times {
    static constexpr Rank rank = product;
    static constexpr std::string_view sign = " x ";
    static constexpr Real of(Real a, Real b) { return a * b; }
};
struct Over {
    static constexpr Rank rank = product;
    static constexpr std::string_view sign = " / ";
    static constexpr Real of(Real a, Real b) { return a / b; }
};
struct Raised {
    static constexpr Rank rank = raising;
    static constexpr std::string_view sign = "^";
    static Real of(Real a, Real b) { return power(a, b); }
};

template <typename Sign, Tree L, Tree R>
struct Binary : Node {
    L left;
    R right;

    constexpr Binary(const L& l, const R& r) : left(l), right(r) {}
    [[nodiscard]] constexpr Real value() const {
        const Real a = left.value();
        return Sign::of(a, right.value());
    }
    constexpr operator Real() const { return value(); }
    [[nodiscard]] Spelling spelled() const {
        return spell_operation(Sign::sign, Sign::rank, left.spelled(), right.spelled());
    }
};
template <typename Sign, typename L, typename R>
constexpr auto binary(const L& l, const R& r) {
    return Binary<Sign, tree_of<L>, tree_of<R>>(tree(l), tree(r));
}

/// A quotient whose divisor is 0 in ordinary inlets: that fault is returned and not thrown.
template <Tree L, Tree R>
struct Quotient : Binary<Over, L, R> {
    using Binary<Over, L, R>::Binary;
    [[nodiscard]] constexpr Outcome outcome() const {
        const Real a = this->left.value();
        return divide(a, this->right.value());
    }
};

struct SquareRoot {
    static constexpr std::string_view name = "sqrt";
    static Real of(Real a) { return square_root(a); }
};
struct Sine {
    static constexpr std::string_view name = "sin";
    static Real of(Real a) { return sine(a); }
};
struct Logarithm {
    static constexpr std::string_view name = "ln";
    static Real of(Real a) { return natural_logarithm(a); }
};

template <typename Function, Tree T>
struct Unary : Node {
    T inner;

    constexpr explicit Unary(const T& t) : inner(t) {}
    [[nodiscard]] Real value() const { return Function::of(inner.value()); }
    operator Real() const { return value(); }
    [[nodiscard]] Spelling spelled() const { return spell_call(Function::name, {inner.spelled()}); }
};

template <Tree T>
struct Square : Node {
    T inner;

    constexpr explicit Square(const T& t) : inner(t) {}
    [[nodiscard]] Real value() const { return square(inner.value()); }
    operator Real() const { return value(); }
    [[nodiscard]] Spelling spelled() const {
        return spell_operation(Raised::sign, raising, inner.spelled(), Named(2.0).spelled());
    }
};

/// The larger of two numbers.
template <Tree L, Tree R>
struct Larger : Node {
    L left;
    R right;

    constexpr Larger(const L& l, const R& r) : left(l), right(r) {}
    [[nodiscard]] Real value() const {
        const Real a = left.value();
        const Real b = right.value();
        return a >= b ? a : b;
    }
    operator Real() const { return value(); }
    [[nodiscard]] Spelling spelled() const { return spell_call("max", {left.spelled(), right.spelled()}); }
};

/// How many decimals a format has: 3 for "#0.000".
double decimals_of(std::string_view format);

/// What a number is as a text with a fixed count of decimals, halves away from zero on its 15 digits; and what that text reads.
template <Tree T>
struct Rounded : Node {
    T inner;
    std::string_view format;

    constexpr Rounded(const T& t, std::string_view f) : inner(t), format(f) {}
    [[nodiscard]] std::string text() const;
    [[nodiscard]] Real value() const;
    operator Real() const { return value(); }
    operator std::string() const { return text(); }
    [[nodiscard]] Spelling spelled() const {
        return spell_call("round", {inner.spelled(), Named(decimals_of(format)).spelled()});
    }
};
std::string text_in_format(Real number, std::string_view format);
Real number_in_format(Real number, std::string_view format);
template <Tree T>
std::string Rounded<T>::text() const {
    return text_in_format(inner.value(), format);
}
template <Tree T>
Real Rounded<T>::value() const {
    return number_in_format(inner.value(), format);
}

template <typename T>
concept TextTree = Tree<T> && requires(const T& t) {
    t.text();
};

}  // namespace formula

using formula::Copied;
using formula::Reading;

/// The number in a text. Faults on one that is none, an empty one included, and on one too large for a double.
Real number_in(std::string_view text);

/// The number in the text of a column of the open inlet.
inline Reading number_in(Column column) {
    return Reading(column);
}

template <typename L, typename R>
requires formula::Operands<L, R>
constexpr auto operator+(const L& l, const R& r) {
    return formula::binary<formula::Plus>(l, r);
}
template <typename L, typename R>
requires formula::Operands<L, R>
constexpr auto operator-(const L& l, const R& r) {
    return formula::binary<formula::Minus>(l, r);
}
template <typename L, typename R>
requires formula::Operands<L, R>
constexpr auto operator*(const L& l, const R& r) {
    return formula::binary<formula::Times>(l, r);
}
template <typename L, typename R>
requires formula::Operands<L, R>
constexpr auto operator/(const L& l, const R& r) {
    return formula::binary<formula::Over>(l, r);
}
template <typename L, typename R>
requires formula::Operands<L, R>
constexpr auto power(const L& l, const R& r) {
    return formula::binary<formula::Raised>(l, r);
}
template <typename L, typename R>
requires formula::Operands<L, R>
constexpr auto divide(const L& l, const R& r) {
    return formula::Quotient<formula::tree_of<L>, formula::tree_of<R>>(formula::tree(l), formula::tree(r));
}
template <typename L, typename R>
requires formula::Operands<L, R>
constexpr auto larger(const L& l, const R& r) {
    return formula::Larger<formula::tree_of<L>, formula::tree_of<R>>(formula::tree(l), formula::tree(r));
}
template <formula::Term T>
constexpr auto square(const T& t) {
    return formula::Square<formula::tree_of<T>>(formula::tree(t));
}
template <formula::Term T>
constexpr auto square_root(const T& t) {
    return formula::Unary<formula::SquareRoot, formula::tree_of<T>>(formula::tree(t));
}
template <formula::Term T>
constexpr auto sine(const T& t) {
    return formula::Unary<formula::Sine, formula::tree_of<T>>(formula::tree(t));
}
template <formula::Term T>
constexpr auto natural_logarithm(const T& t) {
    return formula::Unary<formula::Logarithm, formula::tree_of<T>>(formula::tree(t));
}
/// A number as its text in `format` ("0.0000") reads: halves away from zero on its 15 digits. Or that text itself.
template <formula::Operand T>
constexpr auto rounded(const T& t, std::string_view format) {
    return formula::Rounded<formula::tree_of<T>>(formula::tree(t), format);
}

}  // namespace gullymark::engine
