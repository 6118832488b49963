#include "editor/form/field_numbers.h"

#include "engine/step.h"
#include "engine/unit_constants.h"
#include "platform/outside.h"

namespace gullymark::editor {

engine::Real number_in(FieldId id) {
    return engine::number_in(text(id));
}

std::string_view format_of(FieldId id) {
    const std::string_view format = screen_field(id).format;
    return format == number_format ? std::string_view(engine::unit_constants.numberFormat) : format;
}

void format_field(FieldId id) {
    set_text(id, platform::format_text(text(id), format_of(id)));
}

bool CheckNumericField(FieldId id) {
    const std::string trimmed(platform::trim_blanks(text(id)));
    if (trimmed == ".") {
        set_text(id, platform::format_number(0.0, engine::unit_constants.numberFormat));
        platform::beep();
        SelectFieldText(id);
        return true;
    }
    set_text(id, platform::format_text(trimmed, engine::unit_constants.numberFormat));
    return false;
}

}  // namespace gullymark::editor
