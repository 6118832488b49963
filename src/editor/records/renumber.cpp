#include "editor/records/renumber.h"

#include <string>

#include "editor/form/carryover.h"
#include "editor/records/grid_events.h"
#include "editor/records/inlet_rows.h"
#include "editor/records/next_inlet.h"
#include "editor/state/inlet_grid.h"
#include "editor/state/renumber_dialog.h"
#include "editor/state/windows.h"
#include "platform/characters.h"
#include "platform/failure.h"
#include "platform/outside.h"
#include "store/project_store.h"

namespace gullymark::editor {
namespace {

using platform::BoxKind;
using platform::tell;
using store::InletUsage;

/// True when the inlet feeds another by that column and the user does not want to go on, and when that cannot be read.
bool user_declines(std::string_view column, InletUsage& usage) {
    usage = store::find_inlet_usage(frminletmodify.thisinletnumber.text, column);
    return usage == InletUsage::unread ||
           (usage == InletUsage::a_row && !platform::ask(feeds_found_inlet() + " - Modify Anyway?"));
}

/// An inlet without a number is nobody's previous inlet: the empty texts of those columns stay.
void renumber(const std::string& from, const std::string& to) {
    const auto statements = store::renumber_inlet(to, from);
    const std::size_t count = from.empty() ? 1 : statements.size();
    for (std::size_t i = 0; i < count; ++i) {
        store::project_store.connection.execute(statements.at(i));
    }
}

}  // namespace

void modifyinlet() {
    if (grid_is_empty("No inlets to Modify!")) {
        return;
    }
    const std::string number = current_grid_number();
    if (!platform::ask("Modify Current inlet number - " + number + " ?")) {
        return;
    }
    frminletmodify.NewInletNumber.clear();
    frminletmodify.CurrentInletNumber = number;
    show_renumber_dialog();
    const std::string new_number = frminletmodify.NewInletNumber;
    if (new_number == number || new_number.empty()) {
        return;
    }
    platform::show_wait_pointer(true);
    try {
        renumber(number, new_number);
        platform::show_wait_pointer(false);
        requery_inlets();
        get_discharge_carryover("requery");
        tell("Update completed! Please Refresh the screen to verify your changes", BoxKind::information);
    } catch (const platform::Failure& failure) {
        platform::show_wait_pointer(false);
        tell(failure.what());
    }
}

void show_renumber_dialog() {
    frminletmodify.thisinletnumber.text = frminletmodify.CurrentInletNumber;
    frminletmodify.thisinletnumber.enabled = false;
    frminletmodify.newinletnumber = {};
    frminletmodify.visible = true;
    call(windows.run_renumber_dialog);
    frminletmodify.visible = false;
}

void edit_new_number(std::string_view text) {
    frminletmodify.newinletnumber.text =
        platform::first_characters(platform::on_one_line(text), new_number_limit);
}

void cmdmodaccept_Click() {
    std::string& new_number = frminletmodify.newinletnumber.text;
    const auto taken = store::find_inlet_usage(new_number, "INLET_NUMBER");
    if (taken == InletUsage::a_row) {
        tell("New Inlet already exist in the database. Choose another Inlet Number", BoxKind::warning);
    }
    InletUsage feeds = InletUsage::no_row;
    if (taken != InletUsage::no_row || user_declines("PREINLET1", feeds) ||
        (feeds == InletUsage::no_row && user_declines("PREINLET2", feeds))) {
        new_number.clear();
        return;
    }
    frminletmodify.NewInletNumber = new_number;
    frminletmodify.visible = false;
}

void cmdmodcancel_Click() {
    frminletmodify.NewInletNumber.clear();
    frminletmodify.visible = false;
}

}  // namespace gullymark::editor
