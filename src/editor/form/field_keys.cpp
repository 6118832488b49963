#include "editor/form/field_keys.h"

#include <algorithm>

#include "editor/state/windows.h"

namespace gullymark::editor {
namespace {

constexpr char32_t enter_key = 13;
constexpr char32_t first_printing_key = 32;

bool filters_keys(FieldId field) {
    return has_rule(field, numeric_keys) || has_rule(field, combo_keys);
}

bool is_digit(char32_t key) {
    return key >= U'0' && key <= U'9';
}

bool holds_point(std::string_view text) {
    return text.find('.') != std::string_view::npos;
}

bool takes_point(std::string_view whole, std::string_view selected) {
    return holds_point(selected) || !holds_point(whole);
}

/// Line ends too: a spreadsheet copies a cell with one.
std::string_view without_blanks_around(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n\v\f";
    const std::size_t first = text.find_first_not_of(blanks);
    return first == std::string_view::npos ? ""
                                           : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

}  // namespace

char32_t filter_key(FieldId field, char32_t key, std::string_view whole, std::string_view selected) {
    if (!filters_keys(field)) {
        return key;
    }
    if (key == enter_key) {
        call(windows.move_focus_on);
        return 0;
    }
    const bool passes =
        is_digit(key) || key < first_printing_key || (key == U'.' && takes_point(whole, selected));
    return passes ? key : 0;
}

std::string filter_text(FieldId field, std::string_view incoming, std::string_view whole,
                        std::string_view selected) {
    if (!filters_keys(field)) {
        return std::string(incoming);
    }
    const std::string_view number = without_blanks_around(incoming);
    const bool typed_so = std::ranges::all_of(
        number, [](char byte) { return is_digit(static_cast<unsigned char>(byte)) || byte == '.'; });
    const auto points = std::ranges::count(number, '.');
    const std::size_t limit = screen_field(field).limit;
    const std::size_t length = whole.size() - selected.size() + number.size();
    const bool fits = limit == 0 || length <= limit;
    const bool counts = typed_so && fits && (points == 0 || (points == 1 && takes_point(whole, selected)));
    return counts ? std::string(number) : "";
}

}  // namespace gullymark::editor
