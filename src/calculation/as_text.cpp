#include "calculation/as_text.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace gullymark::calculation {
namespace {

constexpr std::size_t width = 80;

/// How many characters a text shows: those of UTF-8, not its bytes.
std::size_t length(std::string_view text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char byte) { return (byte & 0xC0) != 0x80; }));
}

std::string padded(std::string text, std::size_t to) {
    const std::size_t now = length(text);
    return now < to ? text.append(to - now, ' ') : text;
}

/// Adds words, broken at blanks; lines behind the first begin with `indent` blanks.
void add_words(std::string& text, const std::string& line, std::size_t indent) {
    std::string out;
    std::size_t at = 0;
    while (at < line.size()) {
        const auto blank =
            std::min(line.find(' ', at + (at == 0 ? line.find_first_not_of(' ') : 0)), line.size());
        const std::string word = line.substr(at, blank - at);
        if (!out.empty() && length(out) + 1 + length(word) > width) {
            text += out.substr(0, out.find_last_not_of(' ') + 1) + '\n';
            out = std::string(indent, ' ') + word;
        } else if (!word.empty() || length(out) + 1 < width) {
            out += (at == 0 ? "" : " ") + word;
        }
        at = blank + 1;
    }
    text += out + '\n';
}

std::string with_unit(const Row& row) {
    return row.unit.empty() ? row.value : row.value + ' ' + row.unit;
}

/// Where the formula comes from, behind it in brackets: "[4e Eq. 7.1] (2)".
std::string source_of(const Row& row) {
    std::string text = row.source.empty() ? "" : "  [" + row.source + ']';
    if (row.departure != 0) {
        text += " (" + std::to_string(row.departure) + ')';
    }
    return text;
}

std::string formula_of(const Row& row) {
    std::string text = row.symbol;
    for (const auto& part : {row.formula, row.numbers, with_unit(row)}) {
        text += part.empty() ? "" : " = " + part;
    }
    return text;
}

std::string condition_of(const Row& row) {
    return "if " + row.formula + (row.numbers.empty() ? "" : ": " + row.numbers) + ": " + row.value;
}

std::string line_of(const Row& row) {
    switch (row.kind) {
        case Row::Kind::input:
            return row.symbol + " = " + with_unit(row) + "  " + row.meaning +
                   (row.symbol == row.formula ? "" : " (" + row.formula + ')');
        case Row::Kind::constant:
            return row.symbol + " = " + row.value + "  " + row.meaning + source_of(row);
        case Row::Kind::condition:
            return condition_of(row);
        case Row::Kind::search:
            return row.symbol + " = " + with_unit(row) + "  " + row.meaning;
        case Row::Kind::message:
            return "The program shows: \"" + row.remark + '"';
        case Row::Kind::note:
            return row.remark;
        case Row::Kind::formula:
        case Row::Kind::detail:
        case Row::Kind::result:
            break;
    }
    return formula_of(row) + "  " + row.meaning + source_of(row);
}

void add_row(std::string& text, const Row& row) {
    constexpr std::size_t number_width = 5;
    constexpr std::size_t step_back = 4;
    const bool inner = row.kind == Row::Kind::detail || row.kind == Row::Kind::search;
    const std::string number = row.step == 0 ? "" : std::to_string(row.step);
    const std::string head = std::string(number_width - 1 - number.size(), ' ') + number + "  ";
    add_words(text, head + (inner ? "  " : "") + line_of(row), number_width + 1 + step_back);
    const bool is_told = row.kind == Row::Kind::message || row.kind == Row::Kind::note;
    if (!row.remark.empty() && !is_told) {
        add_words(text, std::string(number_width + 1 + step_back, ' ') + row.remark,
                  number_width + 1 + step_back);
    }
}

/// A line without the blanks at its end; nothing for an empty one.
void add_trimmed(std::string& text, const std::string& line) {
    if (!line.empty()) {
        add_words(text, line.substr(0, line.find_last_not_of(' ') + 1), 5);
    }
}

void add_title_block(std::string& text, const std::vector<TitleField>& fields) {
    constexpr std::size_t half = width / 2;
    constexpr std::size_t label = 18;
    std::string line;
    for (const auto& field : fields) {
        const std::string cell = padded(field.label, label) + field.text;
        if (!line.empty() && length(cell) < half && length(line) <= half) {
            add_trimmed(text, padded(line, half) + cell);
            line.clear();
            continue;
        }
        add_trimmed(text, line);
        line = cell;
    }
    add_trimmed(text, line);
}

void add_list(std::string& text, const char* heading, const std::vector<std::string>& lines, bool numbered) {
    if (lines.empty()) {
        return;
    }
    text += '\n' + std::string(heading) + '\n';
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string head = numbered ? padded('(' + std::to_string(i + 1) + ')', 5) : "";
        add_words(text, head + lines[i], 5);
    }
}

}  // namespace

std::string as_text(const Document& document) {
    std::string text;
    for (const auto& warning : document.warnings) {
        add_words(text, warning, 5);
    }
    text += (text.empty() ? "" : "\n") + document.title + "\n\n";
    add_title_block(text, document.title_block);
    for (const auto& section : document.sections) {
        text += '\n' + section.heading + '\n';
        for (const auto& row : section.rows) {
            add_row(text, row);
        }
    }
    add_list(text, "Departures from the publications", document.departures, true);
    add_list(text, "Publications", document.legend, false);
    return text;
}

}  // namespace gullymark::calculation
