#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "engine/inlet_record.h"

/// The one list of what the inlet design form and the record view show: from it come the fields, their binding to
/// the columns of INLET, the families of like handlers, and the names that the windows' drawings must have.
namespace gullymark::editor {

enum class FieldId : unsigned char {
#define SCREEN_FIELD(name, ...) name,
#include "editor/form/screen_fields.def"
#undef SCREEN_FIELD
};

inline constexpr std::size_t field_count = static_cast<std::size_t>(FieldId::lblachc) + 1;

enum class Kind : unsigned char {
    text,
    list,  // a text field with a list below it; a text that is not listed can be typed
    check_box,
    command,
    label,
    unit_labels,  // any number of labels, all with the caption of the group
    frame,
    tabs,
};

/// What a field does of the families of like handlers, and how it starts; rules add up.
enum Rule : unsigned char {
    selects = 1,             // entering it selects its text
    numeric_keys = 2,        // takes digits and one point alone
    combo_keys = 4,          // the same, of a list
    formats = 8,             // leaving it writes its text in its format
    checks_list = 16,        // refuses to be left with a text that begins no entry
    filled_by_program = 32,  // starts disabled and gray: never typed
    hidden = 64,             // starts invisible: another field shows its meaning
};

/// The format that follows the units: `engine::unit_constants.numberFormat`.
inline constexpr std::string_view number_format = "numberFormat";

struct ScreenField {
    Kind kind = Kind::text;
    std::optional<engine::Column>
        column{};               // whose text it shows; nothing: it has a text of its own, or none
    std::size_t limit = 0;      // characters that can be typed; 0: any number
    std::string_view format{};  // of its number; empty: none
    unsigned char rules = 0;
    std::string_view caption{};      // at the start, where the logic changes it later
    int tab = -1;                    // the page on which it stands
    std::optional<FieldId> frame{};  // the innermost frame around it
};

namespace detail {
using engine::Column;
inline constexpr std::array<ScreenField, field_count> screen_fields = {{
#define SCREEN_FIELD(name, ...) {__VA_ARGS__},
#include "editor/form/screen_fields.def"
#undef SCREEN_FIELD
}};
}  // namespace detail

/// What the list says of a field.
constexpr const ScreenField& screen_field(FieldId id) {
    return detail::screen_fields.at(static_cast<std::size_t>(id));
}

/// True when the list gives a field that rule.
constexpr bool has_rule(FieldId id, Rule rule) {
    return (screen_field(id).rules & rule) != 0;
}

/// All fields in the list's order, to walk over.
inline constexpr auto all_fields = [] {
    std::array<FieldId, field_count> fields{};
    for (std::size_t i = 0; i < field_count; ++i) {
        fields.at(i) = static_cast<FieldId>(i);
    }
    return fields;
}();

/// The name that the windows' drawings use.
std::string_view field_name(FieldId id);

/// The field of that name, case counting; nothing for a word that names none.
std::optional<FieldId> field_named(std::string_view name);

/// The field that shows a column.
FieldId field_of(engine::Column column);

}  // namespace gullymark::editor
