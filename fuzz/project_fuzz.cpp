// Any bytes as a project file: it is opened as the user does, every row is looked at, one is solved and saved. The program
// tells what it cannot read in boxes, and comes to the end soon.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>

#include "editor/form/field_events.h"
#include "editor/form/solve_command.h"
#include "editor/records/grid_events.h"
#include "editor/state/workspace.h"
#include "editor/windows/inlet_list.h"
#include "editor/windows/inlet_view.h"
#include "editor/windows/workspace_menu.h"
#include "file_in_memory.h"
#include "platform/outside.h"
#include "store/main_window.h"
#include "store/project_details.h"
#include "store/project_life_cycle.h"
#include "store/windows.h"
#include "target.h"

namespace {

using namespace gullymark;

constexpr int most_rows = 30;

// Processor time, for the machine may be busy.
constexpr std::clock_t time_limit = 5 * CLOCKS_PER_SEC;

/// Answers every question with Yes; leaves the details form as it is.
void set_outside(const std::string& path) {
    platform::outside.show_box = [](const platform::Box&) { return platform::Answer::yes; };
    platform::outside.choose_file = [path](const platform::FileDialogRequest&) { return path; };
    store::windows.show_workspace = editor::show_workspace;
    store::windows.run_details_form = [] { store::mnuprojexit_Click(); };
}

void look_at_rows() {
    for (int row = 1; row <= editor::MDIInlet.Adodc1.record_count() && row <= most_rows; ++row) {
        editor::pick_grid_row(row);
        for (int page = 3; page >= 0; --page) {
            editor::tab_clicked(page);
        }
    }
    editor::show_inlet_list();
    for (int row = 1; row <= editor::frminletflex.Adodc1.record_count() && row <= most_rows; ++row) {
        static_cast<void>(editor::list_cell(row, 0));
        editor::inletflex_EnterCell(row);
        editor::inletflex_DblClick();
    }
    editor::unload_inlet_list();
}

void solve_and_save() {
    editor::pick_grid_row(1);
    editor::mnuEditinlet_Click();
    editor::cmdsolve_Click();
    editor::mnuSaveinlet_Click();
    if (!editor::viewing()) {
        editor::mnuExit_Click();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::FileInMemory file;
    static const auto folder = std::filesystem::current_path();  // the file dialog leaves another one
    file.write({reinterpret_cast<const char*>(data), size});
    set_outside(file.path());
    const std::clock_t started = std::clock();
    store::load_main_window();
    store::mnuopenProj_Click();
    look_at_rows();
    solve_and_save();
    editor::mnuExit_Click();
    store::mnucloseProj_Click();
    std::filesystem::current_path(folder);
    if (std::clock() - started > time_limit) {
        std::fprintf(stderr, "project_fuzz: it took too long\n");
        std::abort();
    }
    return 0;
}
