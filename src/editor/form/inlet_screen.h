#pragma once

#include <array>
#include <string>
#include <string_view>

#include "editor/form/screen_fields.h"
#include "engine/inlet_record.h"
#include "platform/screen.h"

/// What stands on the screen of the inlet design form, and, in a copy of its own, of the record view.
namespace gullymark::editor {

using ScreenFields = std::array<platform::Field, field_count>;

/// All fields as a form is drawn: ENGLISH unit captions, empty texts, empty lists.
ScreenFields drawn_fields();

struct InletScreen {
    engine::InletRecord* record = nullptr;  // whose columns the bound fields show
    ScreenFields fields = drawn_fields();
    int tab = 0;  // the page of SSTab1 that is shown: 0 details, 1 flow data, 2 inlet data, 3 results

    platform::Field& operator[](FieldId id) { return fields.at(static_cast<std::size_t>(id)); }
    const platform::Field& operator[](FieldId id) const { return fields.at(static_cast<std::size_t>(id)); }

    /// What a field shows: the text of its column, or its own when it has none.
    [[nodiscard]] const std::string& text(FieldId id) const;

    /// Writes a field's text into its column, or into the field when it has none. A column whose text stays the same
    /// takes no change; only a null becomes an empty text without a word.
    void set_text(FieldId id, std::string_view text);

    /// True where a user can work: enabled and visible, the frames around it as well.
    [[nodiscard]] bool usable(FieldId id) const;
    /// True where a user can type or pick: usable and not locked.
    [[nodiscard]] bool editable(FieldId id) const;
};

/// Usable, in the window color.
void enable(platform::Field& field);

/// Not usable, and gray.
void disable(platform::Field& field);

}  // namespace gullymark::editor
