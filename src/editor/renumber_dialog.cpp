#include "editor/renumber_dialog.h"

#include "editor/windows.h"
#include "platform/characters.h"
#include "platform/outside.h"
#include "store/project_session.h"
#include "store/project_store.h"

namespace gullymark::editor {
namespace {

using store::InletUsage;

/// True when the inlet feeds another by that column and the user does not want to go on, and when that cannot be read.
bool user_declines(std::string_view column, InletUsage& usage) {
    usage = store::find_inlet_usage(frminletmodify.thisinletnumber.text, column);
    return usage == InletUsage::unread ||
           (usage == InletUsage::a_row &&
            !platform::ask("Current Inlet has Carryover Discharge to Inlet Number - " +
                           store::session.ReferencingInletNumber + " - Modify Anyway?"));
}

}  // namespace

RenumberDialog frminletmodify;

void show_renumber_dialog() {
    frminletmodify.thisinletnumber.text = frminletmodify.CurrentInletNumber;
    frminletmodify.thisinletnumber.enabled = false;
    frminletmodify.newinletnumber = {};
    frminletmodify.visible = true;
    if (windows.run_renumber_dialog) {
        windows.run_renumber_dialog();
    }
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
        platform::tell("New Inlet already exist in the database. Choose another Inlet Number",
                       platform::BoxKind::warning);
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
