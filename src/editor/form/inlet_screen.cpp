#include "editor/form/inlet_screen.h"

namespace gullymark::editor {

using platform::Color;
using platform::Field;

ScreenFields drawn_fields() {
    ScreenFields fields;
    for (const FieldId id : all_fields) {
        Field& field = fields.at(static_cast<std::size_t>(id));
        field.caption = screen_field(id).caption;
        field.visible = !has_rule(id, hidden);
        if (has_rule(id, filled_by_program)) {
            disable(field);
        }
    }
    return fields;
}

const std::string& InletScreen::text(FieldId id) const {
    const auto column = screen_field(id).column;
    return column ? record->text(*column) : (*this)[id].text;
}

void InletScreen::set_text(FieldId id, std::string_view text) {
    const auto column = screen_field(id).column;
    if (!column) {
        (*this)[id].text = text;
    } else if (record->text(*column) != text) {
        record->set(*column, text);
    } else if (record->is_null(*column)) {
        record->load(*column, "");
    }
}

bool InletScreen::usable(FieldId id) const {
    for (std::optional<FieldId> at = id; at; at = screen_field(*at).frame) {
        if (!(*this)[*at].enabled || !(*this)[*at].visible) {
            return false;
        }
    }
    return true;
}

bool InletScreen::editable(FieldId id) const {
    return usable(id) && !(*this)[id].locked;
}

void enable(Field& field) {
    field.enabled = true;
    field.color = Color::window;
}

void disable(Field& field) {
    field.enabled = false;
    field.color = Color::gray;
}

}  // namespace gullymark::editor
