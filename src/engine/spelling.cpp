#include "engine/spelling.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "platform/number_text.h"

namespace gullymark::engine::formula {
namespace {

constexpr int short_digits = 6;

// What is rounded shows the 15 digits that it is rounded on.
constexpr std::string_view rounding = "round";

// Below, six digits tell a number without an exponent.
constexpr double short_end = 1e6;

template <typename Number>
std::string shortest(Number number) {
    std::array<char, 32> letters{};
    return {letters.data(), std::to_chars(letters.data(), letters.data() + letters.size(), number).ptr};
}

std::string in_short(double number) {
    if (std::fabs(number) >= short_end) {
        return platform::number_text(number);
    }
    std::array<char, 32> letters{};
    const auto* const end = std::to_chars(letters.data(), letters.data() + letters.size(), number,
                                          std::chars_format::general, short_digits)
                                .ptr;
    return platform::number_text(
        platform::read_number({letters.data(), static_cast<std::size_t>(end - letters.data())}).number);
}

std::string quoted(std::string_view text) {
    return '"' + std::string(text) + '"';
}

std::string text_of_leaf(const Spelling& leaf, Style style) {
    if (style == Style::symbols && !leaf.symbol.empty()) {
        return std::string(leaf.symbol);
    }
    if (leaf.kind == Spelling::Kind::words) {
        return quoted(leaf.text);
    }
    if (leaf.fault != Fault::none) {
        return leaf.column ? quoted(leaf.text) : std::string("?");
    }
    return digits_of(leaf.number, leaf.is_single, style);
}

/// How tightly the text of a part binds: a minus sign binds as a sum.
Rank rank_of(const Spelling& part, Style style) {
    const bool stands_as_number = part.kind == Spelling::Kind::number && part.fault == Fault::none &&
                                  (style != Style::symbols || part.symbol.empty());
    return stands_as_number && std::signbit(part.number) && part.number != 0.0 ? sum : part.rank;
}

std::string text_within(const Spelling& part, Style style, int rank) {
    return rank_of(part, style) < rank ? '(' + text_of(part, style) + ')' : text_of(part, style);
}

/// Six digits would not tell the sides of a comparison apart that differ further behind.
bool needs_more_digits(const Spelling& spelling) {
    if (spelling.rank != comparison || spelling.parts.size() != 2) {
        return false;
    }
    const auto& left = spelling.parts.front();
    const auto& right = spelling.parts.back();
    return left.kind == Spelling::Kind::number && right.kind == Spelling::Kind::number &&
           left.number != right.number &&
           text_of_leaf(left, Style::numbers) == text_of_leaf(right, Style::numbers);
}

std::string text_of_operation(const Spelling& spelling, Style style) {
    if (spelling.parts.size() == 1) {
        return std::string(spelling.sign) + text_within(spelling.parts.front(), style, spelling.rank);
    }
    const Style sides = style == Style::numbers && needs_more_digits(spelling) ? Style::exact : style;
    // What stands to the left of a sign of its own rank is worked out first, but for a power.
    const int left = spelling.rank == raising ? spelling.rank + 1 : spelling.rank;
    return text_within(spelling.parts.front(), sides, left) + std::string(spelling.sign) +
           text_within(spelling.parts.back(), sides, spelling.rank + 1);
}

std::string text_of_call(const Spelling& spelling, Style style) {
    std::string text = std::string(spelling.sign) + '(';
    for (const auto& part : spelling.parts) {
        const bool is_rounded = style == Style::numbers && spelling.sign == rounding &&
                                part.kind == Spelling::Kind::number && part.fault == Fault::none;
        text += &part == &spelling.parts.front() ? "" : ", ";
        text += is_rounded ? platform::number_text(part.number) : text_of(part, style);
    }
    return text + ')';
}

void add_columns(const Spelling& spelling, std::vector<Column>& columns) {
    if (spelling.column && std::find(columns.begin(), columns.end(), *spelling.column) == columns.end()) {
        columns.push_back(*spelling.column);
    }
    for (const auto& part : spelling.parts) {
        add_columns(part, columns);
    }
}

/// The text of a column as it was read.
const std::string* text_read(const Spelling& spelling, Column column) {
    if (spelling.column == column) {
        return &spelling.text;
    }
    for (const auto& part : spelling.parts) {
        if (const auto* const text = text_read(part, column)) {
            return text;
        }
    }
    return nullptr;
}

std::string with_unit(std::string text, Unit unit) {
    if (const auto caption = unit_text(unit); !caption.empty()) {
        text += ' ' + std::string(caption);
    }
    return text;
}

std::string head_of(const Working& working) {
    switch (working.kind) {
        case Working::Kind::condition:
            return "if " + text_of(working.formula, Style::symbols) +
                   (working.number != 0.0 ? ": yes" : ": no");
        case Working::Kind::search:
            return "search of " + std::string(working.symbol) + " from " +
                   digits_of(working.low, false, Style::numbers) + " to " +
                   digits_of(working.high, false, Style::numbers) + ": " + std::to_string(working.passes) +
                   (working.passes == 1 ? " pass" : " passes") + ", " + std::string(working.meaning);
        case Working::Kind::note:
            return working.text;
        case Working::Kind::value:
            break;
    }
    const std::string symbol(working.symbol);
    return (working.fault != Fault::none
                ? symbol + " has no value"
                : with_unit(symbol + " = " + platform::number_text(working.number), working.unit)) +
           "  " + std::string(working.meaning);
}

}  // namespace

Spelling spell_operation(std::string_view sign, Rank rank, Spelling left, Spelling right) {
    Spelling spelling{.kind = Spelling::Kind::operation, .rank = rank, .sign = sign};
    spelling.parts.reserve(2);
    spelling.parts.push_back(std::move(left));
    spelling.parts.push_back(std::move(right));
    return spelling;
}

Spelling spell_denial(Spelling condition) {
    Spelling spelling{.kind = Spelling::Kind::operation, .rank = denial, .sign = "not "};
    spelling.parts.push_back(std::move(condition));
    return spelling;
}

Spelling spell_call(std::string_view name, std::vector<Spelling> arguments) {
    return {.kind = Spelling::Kind::call, .sign = name, .parts = std::move(arguments)};
}

Spelling spell_words(std::string_view symbol, std::string_view text, std::optional<Column> column) {
    return {.kind = Spelling::Kind::words, .symbol = symbol, .text = std::string(text), .column = column};
}

std::string text_of(const Spelling& spelling, Style style) {
    switch (spelling.kind) {
        case Spelling::Kind::nothing:
            return "";
        case Spelling::Kind::operation:
            return text_of_operation(spelling, style);
        case Spelling::Kind::call:
            return text_of_call(spelling, style);
        case Spelling::Kind::number:
        case Spelling::Kind::words:
            break;
    }
    return text_of_leaf(spelling, style);
}

std::string digits_of(double number, bool is_single, Style style) {
    if (style == Style::exact) {
        return shortest(number);
    }
    return is_single ? shortest(static_cast<float>(number)) : in_short(number);
}

std::vector<Column> columns_in(const Spelling& spelling) {
    std::vector<Column> columns;
    add_columns(spelling, columns);
    return columns;
}

std::vector<std::string> lines_of(const Spelling& formula, const std::vector<Working>& worked,
                                  std::string_view lead, Style numbers) {
    std::vector<std::string> lines;
    if (formula.kind != Spelling::Kind::nothing) {
        const std::string symbols = text_of(formula, Style::symbols);
        const std::string in_numbers = text_of(formula, numbers);
        lines.push_back(std::string(lead) + symbols);
        if (in_numbers != symbols) {
            lines.push_back(std::string(lead) + in_numbers);
        }
    }
    for (const auto column : columns_in(formula)) {
        lines.push_back("reads " + std::string(column_name(column)) + ' ' +
                        quoted(*text_read(formula, column)) + ": " + std::string(column_meaning(column)));
    }
    for (const auto& working : worked) {
        lines.push_back("- " + head_of(working));
        const bool asks = working.kind == Working::Kind::condition;
        auto inner = lines_of(working.formula, {}, asks ? "if " : "= ", numbers);
        if (asks) {
            inner.erase(inner.begin());  // the head has it
        }
        for (const auto& line : inner) {
            lines.push_back("    " + line);
        }
    }
    return lines;
}

}  // namespace gullymark::engine::formula
