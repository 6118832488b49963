#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "editor/inlet_screen.h"
#include "platform/row_set.h"

/// The inlet design form `frminletMDIC` without a toolkit: its state, and the events of its fields.
///
/// The shell turns what the user does into the calls below, one for each event, and shows the state after each. It
/// asks `leave` before the focus moves; on false the focus stays, and what wanted to move it does nothing more.
/// `wanted_focus` and `wanted_selection` are wishes for it to carry out and to empty.
namespace gullymark::editor {

struct InletForm {
    InletScreen screen{.record = &engine::open_inlet};
    bool loaded = false;
    int begun = 0;  // rises with every Add, Copy and Edit: none of the pages was visited since
    std::optional<FieldId> focused;           // the field that was entered and not left
    std::optional<FieldId> wanted_focus;      // the focus is to go there
    std::optional<FieldId> wanted_selection;  // the whole text of that field is to be selected
    std::string kind_at_entry;                // text of inlet_type or inlet_location when it was entered
    std::string standard_at_entry;            // text of inlet_subtype
    std::string preinlet_at_entry;            // text of preinlet1 or preinlet2
    std::string road_name;                    // carried from one new inlet to the next
    std::vector<std::string> held_values;     // of the inlet that is copied
    platform::RowSet adoInletRS;              // all inlets; its current row is the open inlet
    platform::RowSet carryoverRS;             // numbers, previous inlets and bypass of all inlets
};

extern InletForm frminletMDIC;

// Events, in the order in which they come to a field.

/// The focus came to a field. The lists of the previous inlets get their entries here.
void enter(FieldId field);

/// A key was struck in a field whose whole and selected text are given: the key that counts, 0 for none.
/// The key Enter moves the focus on by one field and counts as none in a filtered field.
char32_t filter_key(FieldId field, char32_t key, std::string_view whole, std::string_view selected);

/// What may come in at once (paste, drop, input method) in place of `selected`. A field that filters its keys takes a
/// text whole, without the blanks and line ends around it, when its keys could all have been typed there and its limit
/// holds; else nothing of it: a part of a number is another number.
std::string filter_text(FieldId field, std::string_view incoming, std::string_view whole,
                        std::string_view selected);

/// The user changed a field's text to `text`. It stands on one line, and characters beyond the field's limit are dropped.
void edited(FieldId field, std::string_view text);

/// The list of a field is about to drop down.
void opened_list(FieldId field);

/// The user picked an entry of a list.
void picked(FieldId field, std::string_view entry);

/// The user clicked a check box, which turns over, or a command.
void clicked(FieldId field);

/// The user clicked a page of SSTab1.
void tab_clicked(int tab);

/// The focus is about to leave a field: its checks, then its computations. False: the focus stays where it is.
/// For a field that was not entered, or was left already, nothing runs and the answer is true.
bool leave(FieldId field);

/// Leaves the field that has the focus, if one has it.
bool leave_focused_field();

/// The user is in no field, and none is wanted: nothing is checked or computed.
void drop_focus();

// The parts of `leave`.

/// The check before leaving; false refuses.
bool may_leave(FieldId field);

/// What a field does when it is left.
void left(FieldId field);

/// The command SOLVE of the form. What stands on the screen counts: the focused field is left first, and a leave that
/// is refused stops the command. A solve that ran shows the results page.
void cmdsolve_Click();

}  // namespace gullymark::editor
