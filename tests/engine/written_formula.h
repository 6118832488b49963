#pragma once

#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// Reads a formula as it is printed with the numbers in place, and works it out anew. It shares nothing with the engine's
/// formulas, so that what they print is checked and not repeated.
///
///     or, and, not, = <> < <= > >=, + -, x /, ^, numbers, "texts", name(arguments)
namespace gullymark::engine::written {

/// Thrown where a formula has no value: a division by 0, a root of a negative number, a text that is no number.
struct NoValue {};

/// Thrown for a text that is no formula.
struct NoFormula {
    std::string what;
};

/// A number, a text or the answer of a condition.
using Value = std::variant<double, std::string, bool>;

/// The values of functions that are worked out elsewhere, by their names.
using Functions = std::map<std::string, Value, std::less<>>;

Value evaluate(std::string_view formula, const Functions& functions = {});

/// The words of a formula: numbers with their sign, texts in quotes, symbols, signs.
std::vector<std::string> words_of(std::string_view formula);

/// The number that a whole text is. Throws NoValue for a text that is none.
double number_of(const std::string& text);

/// `number` as a text with so many decimals, halves away from zero on its 15 digits.
std::string rounded_text(double number, int decimals);

}  // namespace gullymark::engine::written
