#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "editor/form/form_access.h"
#include "engine/real.h"
#include "platform/number_text.h"

/// The numbers in the fields of the open form: read, computed with, and written in the format of their field.
namespace gullymark::editor {

/// The number that a field shows, by the grammar of `engine::number_in`; a Fault when it shows none.
engine::Real number_in(FieldId id);

/// Runs one step of a computation; one whose texts are no numbers changes nothing.
template <typename Step>
void attempt(Step&& step) {
    try {
        std::forward<Step>(step)();
    } catch (engine::Fault) {  // NOLINT(bugprone-empty-catch): the next step runs
    }
}

/// Writes the number of a formula in a format; where it faults, what stands in the field is formatted instead. Only
/// what comes out is written: a field that gets its old text back has not changed.
template <typename Formula>
void set_formatted(FieldId id, std::string_view format, Formula&& formula) {
    std::string new_text = text(id);
    attempt(
        [&] { new_text = platform::number_text(engine::Real(std::forward<Formula>(formula)()).number()); });
    set_text(id, platform::format_text(new_text, format));
}

/// The format of a field's number; where the list of fields leaves it to the units, theirs.
std::string_view format_of(FieldId id);

/// The text of a field in its format; one that is no number stays.
void format_field(FieldId id);

/// True refuses: a lone point becomes 0. Any other text is trimmed and formatted.
bool CheckNumericField(FieldId id);

}  // namespace gullymark::editor
