#include "shell/windows/chosen_file.h"

#include "platform/failure.h"
#include "platform/file_dialog.h"
#include "platform/files.h"
#include "platform/outside.h"
#include "platform/project_copy.h"
#include "store/project_session.h"

namespace gullymark::shell {

std::optional<std::string> choose_file_to_write(const FileKind& kind, const std::string& title) {
    const std::string pattern = std::string("*.") + kind.extension;
    platform::FileDialog dialog{.filter = std::string(kind.name) + " files (" + pattern + ")|" + pattern,
                                .initial_folder = store::dialog_start_folder(),
                                .title = title};
    dialog.show_save();
    if (dialog.file_name.empty() || dialog.file_name == pattern) {
        return std::nullopt;
    }
    store::session.workingDirectory = platform::current_folder();
    return store::may_overwrite(dialog.file_name) ? std::optional(dialog.file_name) : std::nullopt;
}

void write_chosen_file(const FileKind& kind, const std::string& target,
                       const std::function<std::optional<QByteArray>()>& make) {
    try {
        platform::refuse_project(target);
        if (const auto bytes = make()) {
            platform::replace_file(target, {bytes->constData(), static_cast<std::size_t>(bytes->size())});
        }
    } catch (const platform::Failure& failure) {
        platform::tell("The " + std::string(kind.name) + " file was not written: " + failure.what(),
                       platform::BoxKind::warning);
    }
}

}  // namespace gullymark::shell
