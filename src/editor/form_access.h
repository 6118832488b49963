#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "editor/inlet_form.h"
#include "engine/real.h"
#include "platform/failure.h"
#include "platform/number_text.h"

/// Shorthands of the editor's own rooms: the fields of the open form, and the two ways to pass over what fails.
namespace gullymark::editor {

inline platform::Field& field(FieldId id) {
    return frminletMDIC.screen[id];
}

inline const std::string& text(FieldId id) {
    return frminletMDIC.screen.text(id);
}

inline void set_text(FieldId id, std::string_view new_text) {
    frminletMDIC.screen.set_text(id, new_text);
}

/// The number that a field shows; a Fault when it shows none.
engine::Real number_in(FieldId id);

bool on_grade();
bool in_sump();

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

/// Runs one step of a command that ignores what the outside refuses.
template <typename Step>
void ignore_failure(Step&& step) {
    try {
        std::forward<Step>(step)();
    } catch (const platform::Failure&) {  // NOLINT(bugprone-empty-catch): the next step runs
    }
}

}  // namespace gullymark::editor
