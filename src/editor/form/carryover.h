#pragma once

#include <string_view>

/// The previous inlets, one for each side, whose bypass the inlet takes over. A failure of the store is told in a plain
/// box with its description and ends the operation.
namespace gullymark::editor {

/// The rows behind the lists of the previous inlets: "requery" reads them again, any other word opens them.
void get_discharge_carryover(std::string_view kind);

/// The carryover of a side (1: left) takes the bypass of its previous inlet. A number that no inlet has is told like a
/// failure, and the carryover keeps its text.
void set_discharge_carryover(int side);

/// Entering: the list on the left gets its entries, the numbers of all inlets.
void preinlet1_GotFocus();

/// Entering: the same on the right.
void preinlet2_GotFocus();

/// Leaving: the carryover on the left and the total follow the previous inlet. The inlet itself, the one of the other
/// side and one that another inlet names are refused in a box; the field is empty then and has the focus again.
void preinlet1_LostFocus();

/// Leaving: the same on the right.
void preinlet2_LostFocus();

}  // namespace gullymark::editor
