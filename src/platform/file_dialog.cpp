#include "platform/file_dialog.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "platform/failure.h"
#include "platform/files.h"
#include "platform/outside.h"

namespace gullymark::platform {
namespace {

/// ".gmk" of "Gullymark files (*.gmk)|*.gmk".
std::string extension_of(const std::string& filter) {
    const auto star = filter.rfind("*.");
    return star == std::string::npos ? std::string() : filter.substr(star + 1);
}

/// A point and up to four letters or digits, the first a letter: "Sta 12+50.00" and "Main St. east" have none.
bool has_extension(const std::filesystem::path& path) {
    const std::string extension = path.extension().string();
    return extension.size() > 1 && extension.size() <= 5 &&
           std::isalpha(static_cast<unsigned char>(extension[1])) != 0 &&
           std::all_of(extension.begin() + 1, extension.end(),
                       [](unsigned char c) { return std::isalnum(c) != 0; });
}

void show(FileDialog& dialog, bool saving) {
    const FileDialogRequest request{.saving = saving,
                                    .title = dialog.title,
                                    .filter = dialog.filter,
                                    .initial_folder = dialog.initial_folder,
                                    .file_name = dialog.file_name,
                                    .must_exist = dialog.must_exist && !saving};
    const auto chosen = outside.choose_file ? outside.choose_file(request) : std::nullopt;
    if (!chosen) {
        if (dialog.cancel_is_error) {
            throw Failure("Cancel was selected.");
        }
        return;
    }
    std::filesystem::path path(*chosen);
    const std::string extension = extension_of(dialog.filter);
    if (saving && path.filename() == "*" + extension) {
        dialog.file_name = "*" + extension;
        return;
    }
    if (saving && path.has_filename() && !has_extension(path)) {
        path += extension;
    }
    if (path.has_parent_path()) {
        // The name is told below the current folder as the system knows it, also where links led there: flows take
        // the folder's length off the name's.
        set_current_folder(path.parent_path().string());
        path = join_path(current_folder(), path.filename().string());
    }
    dialog.file_name = path.string();
}

}  // namespace

FileDialog printDlg;

void FileDialog::show_open() {
    show(*this, false);
}

void FileDialog::show_save() {
    show(*this, true);
}

}  // namespace gullymark::platform
