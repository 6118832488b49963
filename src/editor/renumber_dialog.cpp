#include "editor/renumber_dialog.h"

#include "editor/windows.h"
#include "platform/characters.h"
#include "platform/outside.h"
#include "store/project_session.h"
#include "store/project_store.h"

namespace gullymark::editor {
namespace {

/// True when the inlet feeds another by that column and the user does not want to go on. `feeds` tells that it does.
bool user_declines(std::string_view column, bool& feeds) {
    feeds = store::CheckInletUsage(frminletmodify.thisinletnumber.text, column);
    return feeds && !platform::ask("Current Inlet has Carryover Discharge to Inlet Number - " +
                                   store::session.ReferencingInletNumber + " - Modify Anyway?");
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
    frminletmodify.newinletnumber.text = platform::first_characters(text, new_number_limit);
}

void cmdmodaccept_Click() {
    std::string& new_number = frminletmodify.newinletnumber.text;
    if (store::CheckInletUsage(new_number, "INLET_NUMBER")) {
        platform::tell("New Inlet already exist in the database. Choose another Inlet Number",
                       platform::BoxKind::warning);
        new_number.clear();
        return;
    }
    bool feeds = false;
    if (user_declines("PREINLET1", feeds) || (!feeds && user_declines("PREINLET2", feeds))) {
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
