#include "platform/sheet.h"

#include <algorithm>
#include <optional>

#include "platform/failure.h"
#include "platform/number_text.h"

namespace gullymark::platform {
namespace {

constexpr int last_row = 65536;
constexpr int last_column = 256;
constexpr std::size_t exact_digits = 15;

bool all_digits(std::string_view text) {
    return text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// See the rule in the header.
bool is_plain_decimal(std::string_view text) {
    text = trim_blanks(text);
    if (text.starts_with('-')) {
        text.remove_prefix(1);
    }
    const std::size_t point = std::min(text.find('.'), text.size());
    const std::string_view whole = text.substr(0, point);
    const std::string_view fraction = text.substr(std::min(point + 1, text.size()));
    const std::size_t digits = whole.size() + fraction.size();
    return digits > 0 && digits <= exact_digits && all_digits(whole) && all_digits(fraction) &&
           !(whole.size() > 1 && whole.starts_with('0'));
}

Cells::mapped_type& cell_at(Cells& cells, CellPosition cell) {
    if (cell.row < 1 || cell.row > last_row || cell.column < 1 || cell.column > last_column) {
        throw Failure("There is no such cell in the sheet.");
    }
    return cells[cell];
}

std::optional<double> number_of(const CellValue& value) {
    if (const auto* number = std::get_if<double>(&value)) {
        return *number;
    }
    if (const auto* text = std::get_if<std::string>(&value)) {
        const NumberRead read = read_number(*text);
        return read.fault == NumberFault::none ? std::optional(read.number) : std::nullopt;
    }
    return std::holds_alternative<std::monostate>(value) ? std::optional(0.0) : std::nullopt;
}

}  // namespace

void Sheet::write(CellPosition cell, std::string_view text) {
    CellValue& value = cell_at(filling_.cells, cell);
    if (text.empty()) {
        value = std::monostate();
    } else if (is_plain_decimal(text) && !is_text_cell(cell)) {
        value = read_number(text).number;
    } else {
        value = std::string(text);
    }
}

void Sheet::write(CellPosition cell, double number) {
    cell_at(filling_.cells, cell) = number;
}

void Sheet::write(CellPosition cell, Date date) {
    cell_at(filling_.cells, cell) = date;
}

CellValue Sheet::read(CellPosition cell) const {
    if (const auto found = filling_.cells.find(cell); found != filling_.cells.end()) {
        return found->second;
    }
    const auto found = content_.cells.find(cell);
    return found == content_.cells.end() ? CellValue() : found->second;
}

bool Sheet::is_text_cell(CellPosition cell) const {
    return std::any_of(content_.text_cells.begin(), content_.text_cells.end(),
                       [cell](const CellRange& range) {
                           return cell.row >= range.first.row && cell.row <= range.last.row &&
                                  cell.column >= range.first.column && cell.column <= range.last.column;
                       });
}

double cell_number(const CellValue& value) {
    if (const auto number = number_of(value)) {
        return *number;
    }
    throw Failure("The cell holds no number.");
}

std::string cell_text(const CellValue& value) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        return *text;
    }
    if (const auto* number = std::get_if<double>(&value)) {
        return number_text(*number);
    }
    if (std::holds_alternative<Date>(value)) {
        throw Failure("The cell holds a date.");
    }
    return {};
}

bool is_less(const CellValue& left, const CellValue& right) {
    const auto left_number = number_of(left);
    const auto right_number = number_of(right);
    if (left_number && right_number) {
        return *left_number < *right_number;
    }
    if (left_number || right_number) {
        return left_number.has_value();
    }
    return cell_text(left) < cell_text(right);
}

}  // namespace gullymark::platform
