#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/inlet_record.h"
#include "engine/real.h"
#include "engine/units.h"

/// How a formula is written down. Formulas spell themselves (formula.h) when somebody takes a trace; what comes out is plain
/// data, which a text, or a page with powers set high, is made of.
namespace gullymark::engine::formula {

/// What stands for a quantity in a text.
enum class Style : unsigned char {
    symbols,  // its symbol: W / T
    numbers,  // its number in up to six digits: 2 / 6.94661
    exact,    // its number in as many digits as tell it from every other: 2 / 6.946614583333333
};

/// How tightly a sign binds; an operand that binds less stands in parentheses.
enum Rank : int { either = 1, both, denial, comparison, sum, product, raising, whole };

/// A formula, or a part of one, as it is written.
struct Spelling {
    enum class Kind : unsigned char {
        nothing,
        number,     // a quantity, a column that is read as a number, or a plain number
        words,      // a text, that of a column or a plain one
        operation,  // of one or two parts
        call,       // of a function with its name
    };

    Kind kind = Kind::nothing;
    Rank rank = whole;
    std::string_view sign{};    // of an operation, with its blanks; of a call its name
    std::string_view symbol{};  // of a quantity or a column; empty for what is plain
    double number = 0.0;
    bool is_single = false;          // a 32-bit number: a reader knows it by fewer digits
    Fault fault = Fault::none;       // of a number that has no value
    std::string text{};              // of words; of a column that is read
    std::optional<Column> column{};  // that is read
    std::vector<Spelling> parts{};
};

Spelling spell_operation(std::string_view sign, Rank rank, Spelling left, Spelling right);
Spelling spell_denial(Spelling condition);
Spelling spell_call(std::string_view name, std::vector<Spelling> arguments);
/// A text, in quotes when it is written down; `symbol` stands for it, when there is one.
Spelling spell_words(std::string_view symbol, std::string_view text, std::optional<Column> column = {});

/// "W / T", "2 / 6.94661"; empty for nothing. In numbers, a number that has no value is told as what its column holds.
std::string text_of(const Spelling& spelling, Style style);

/// A number in the digits of a style; a 32-bit one in the digits that it is known by.
std::string digits_of(double number, bool is_single, Style style);

/// The columns that a formula reads, each once, in the order in which they stand.
std::vector<Column> columns_in(const Spelling& spelling);

/// A line that a function or a search within a step has of its own.
struct Working {
    enum class Kind : unsigned char {
        value,      // symbol = number unit, meaning, formula
        condition,  // formula; number 1 for true
        search,     // symbol, number, low, high, tolerance, passes; meaning tells how it ended
        note,       // text
    };

    Kind kind = Kind::value;
    std::string_view symbol{};
    Unit unit = Unit::ratio;
    std::string_view meaning{};
    double number = 0.0;
    Fault fault = Fault::none;  // of a value that it has not
    Spelling formula{};
    double low = 0.0;
    double high = 0.0;
    double tolerance = 0.0;  // 0: the search did not come so close
    std::size_t passes = 0;
    std::string text{};
};

/// The lines in which a formula and those of its functions are written, without indent: "= W / T", "= 2 / 6.94661", the columns
/// that are read, then each working with its own lines two blanks further in. `lead` stands before the formula.
std::vector<std::string> lines_of(const Spelling& formula, const std::vector<Working>& worked,
                                  std::string_view lead, Style numbers);

}  // namespace gullymark::engine::formula
