#pragma once

#include <string>
#include <string_view>

#include "editor/form/screen_fields.h"

/// What a field takes of the keys and of the texts that come to it. The fields of the one list with the rule
/// `numeric_keys` or `combo_keys` filter them: digits and one point.
namespace gullymark::editor {

/// A key was struck in a field whose whole and selected text are given: the key that counts, 0 for none.
/// The key Enter moves the focus on by one field and counts as none in a filtered field.
char32_t filter_key(FieldId field, char32_t key, std::string_view whole, std::string_view selected);

/// What may come in at once (paste, drop, input method) in place of `selected`. A field that filters its keys takes a
/// text whole, without the blanks and line ends around it, when its keys could all have been typed there and its limit
/// holds; else nothing of it: a part of a number is another number.
std::string filter_text(FieldId field, std::string_view incoming, std::string_view whole,
                        std::string_view selected);

}  // namespace gullymark::editor
