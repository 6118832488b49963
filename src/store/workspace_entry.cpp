#include "store/workspace_entry.h"

#include "platform/outside.h"
#include "store/main_window.h"
#include "store/project_session.h"
#include "store/windows.h"

namespace gullymark::store {

void open_designform() {
    if (session.productName != "GULLYMARKAL") {
        platform::tell("This is an Incompatible Project Database! Please use correct version of the database",
                       platform::BoxKind::warning, frmsoftwaremain.message_title);
        call(windows.end_program);
        return;
    }
    go_to_workspace();
}

void go_to_workspace() {
    frmsoftwaremain.visible = false;
    call(windows.show_workspace);
}

}  // namespace gullymark::store
