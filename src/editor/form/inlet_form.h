#pragma once

#include <optional>
#include <string>
#include <vector>

#include "editor/form/inlet_screen.h"
#include "platform/row_set.h"

/// What stands in the inlet design form `frminletMDIC`, without a toolkit. What its user does comes in through
/// field_events.h.
///
/// The shell shows this state after each event. `wanted_focus` and `wanted_selection` are wishes for it to carry out
/// and to empty.
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

}  // namespace gullymark::editor
