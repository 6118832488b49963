#include "platform/office_lines.h"

#include <array>
#include <charconv>
#include <cmath>
#include <utility>

#include "platform/failure.h"
#include "platform/number_text.h"

namespace gullymark::platform {
namespace {

// What stands for itself in a field, and what is written for it behind a backslash.
constexpr std::array<std::pair<char, char>, 4> escapes = {
    {{'\\', '\\'}, {'\t', 't'}, {'\n', 'n'}, {'\r', 'r'}}};

void append_escaped(std::string& line, char character) {
    for (const auto& [plain, written] : escapes) {
        if (character == plain) {
            line += '\\';
            line += written;
            return;
        }
    }
    line += character;
}

// The character that `\written` stands for, 0 when it stands for itself.
char unescaped(char written) {
    for (const auto& [plain, letter] : escapes) {
        if (written == letter) {
            return plain;
        }
    }
    return 0;
}

// The shortest text from which the same number is read back.
std::string exact_text(double number) {
    std::array<char, 32> text = {};
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), number).ptr};
}

using Fields = std::vector<std::string>;

// What follows row and column, the kind of cell being first.
struct CellFields {
    Fields operator()(std::monostate /*nothing*/) const { return {"empty"}; }
    Fields operator()(const std::string& text) const { return {"text", text}; }
    Fields operator()(double number) const { return {"number", exact_text(number)}; }
    Fields operator()(const Date& date) const {
        return {"date", std::to_string(static_cast<int>(date.year())),
                std::to_string(static_cast<unsigned>(date.month())),
                std::to_string(static_cast<unsigned>(date.day()))};
    }
};

std::string cell_line(CellPosition cell, const CellValue& value) {
    const auto* number = std::get_if<double>(&value);
    if (number != nullptr && !std::isfinite(*number)) {
        return {};
    }
    Fields fields = std::visit(CellFields(), value);
    fields.insert(fields.begin() + 1, {std::to_string(cell.row), std::to_string(cell.column)});
    return join_line(fields);
}

const std::string& field(const Fields& fields, std::size_t at) {
    if (at >= fields.size()) {
        throw Failure("A field is missing: " + fields.front());
    }
    return fields[at];
}

int whole(const Fields& fields, std::size_t at) {
    const std::string& text = field(fields, at);
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) {
        throw Failure("No whole number: " + text);
    }
    return number;
}

CellPosition position(const Fields& fields, std::size_t at) {
    return {whole(fields, at), whole(fields, at + 1)};
}

double number(const Fields& fields, std::size_t at) {
    const NumberRead read = read_number(field(fields, at));
    if (read.fault != NumberFault::none) {
        throw Failure("No number: " + field(fields, at));
    }
    return read.number;
}

Date date(const Fields& fields, std::size_t at) {
    return std::chrono::year(whole(fields, at)) / whole(fields, at + 1) / whole(fields, at + 2);
}

}  // namespace

std::string join_line(const Fields& fields) {
    std::string line;
    for (const std::string& field : fields) {
        if (&field != &fields.front()) {
            line += '\t';
        }
        for (const char character : field) {
            append_escaped(line, character);
        }
    }
    return line + '\n';
}

std::vector<std::string> split_line(std::string_view line) {
    Fields fields(1);
    for (std::size_t at = 0; at < line.size(); ++at) {
        const char meant = line[at] == '\\' && at + 1 < line.size() ? unescaped(line[at + 1]) : '\0';
        if (meant != 0) {
            fields.back() += meant;
            ++at;
        } else if (line[at] == '\t') {
            fields.emplace_back();
        } else {
            fields.back() += line[at];
        }
    }
    return fields;
}

std::string cell_lines(const Cells& cells) {
    std::string lines;
    for (const auto& [cell, value] : cells) {
        lines += cell_line(cell, value);
    }
    return lines;
}

std::string content_lines(const SheetContent& content) {
    std::string lines = cell_lines(content.cells);
    for (const auto& [first, last] : content.text_cells) {
        lines += join_line({"formatted_as_text", std::to_string(first.row), std::to_string(first.column),
                            std::to_string(last.row), std::to_string(last.column)});
    }
    return lines;
}

bool read_content_line(const Fields& fields, SheetContent& content) {
    const std::string& kind = field(fields, 0);
    if (kind == "number") {
        content.cells[position(fields, 1)] = number(fields, 3);
    } else if (kind == "text") {
        content.cells[position(fields, 1)] = field(fields, 3);
    } else if (kind == "date") {
        content.cells[position(fields, 1)] = date(fields, 3);
    } else if (kind == "empty") {
        content.cells[position(fields, 1)] = std::monostate();
    } else if (kind == "formatted_as_text") {
        content.text_cells.push_back({position(fields, 1), position(fields, 3)});
    } else {
        return false;
    }
    return true;
}

}  // namespace gullymark::platform
