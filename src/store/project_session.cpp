#include "store/project_session.h"

#include "platform/files.h"

namespace gullymark::store {

ProjectSession session;

std::string dialog_start_folder() {
    return session.workingDirectory.empty() ? platform::program_folder() : session.workingDirectory;
}

}  // namespace gullymark::store
