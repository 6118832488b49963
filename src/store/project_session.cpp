#include "store/project_session.h"

#include "platform/files.h"
#include "platform/outside.h"

namespace gullymark::store {

ProjectSession session;

std::string dialog_start_folder() {
    return session.workingDirectory.empty() ? platform::program_folder() : session.workingDirectory;
}

bool may_overwrite(const std::string& path) {
    return !platform::file_exists(path) || platform::ask("File Already Exists!   Overwrite?");
}

}  // namespace gullymark::store
