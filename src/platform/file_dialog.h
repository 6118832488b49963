#pragma once

#include <string>

/// The one file dialog of the program, shared by project flows and reports. What a flow sets stays set for the next.
namespace gullymark::platform {

struct FileDialog {
    std::string file_name;
    std::string filter;  // "Gullymark files (*.gmk)|*.gmk"
    std::string initial_folder;
    std::string title;
    bool must_exist = false;  // counts for opening alone
    /// A canceled dialog is then a Failure; otherwise it leaves `file_name` as it was.
    bool cancel_is_error = false;

    /// Shows the dialog for a file to open, and waits. Afterwards `file_name` is the full path chosen and the current
    /// folder of the process is the folder of that path.
    /// Throws Failure("Cancel was selected.") on a cancel while `cancel_is_error` is on.
    void show_open();
    /// The same for a file to save into; `must_exist` does not count, and nothing asks about overwriting. A name typed
    /// without an extension takes the one of the filter; the bare "*.gmk" of the filter, typed as a name, chooses nothing
    /// and comes back without a folder.
    void show_save();
};

extern FileDialog printDlg;

}  // namespace gullymark::platform
