#include <string>

#include "editor/inlet_form.h"
#include "editor/windows.h"

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

}  // namespace

Windows windows;

char32_t filter_key(FieldId field, char32_t key, std::string_view whole, std::string_view selected) {
    if (!filters_keys(field)) {
        return key;
    }
    if (key == enter_key) {
        if (windows.move_focus_on) {
            windows.move_focus_on();
        }
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
    bool point_left = takes_point(whole, selected);
    std::string passed;
    for (const char byte : incoming) {
        if (byte >= '0' && byte <= '9') {
            passed += byte;
        } else if (byte == '.' && point_left) {
            passed += byte;
            point_left = false;
        }
    }
    return passed;
}

}  // namespace gullymark::editor
