#include "editor/state/windows.h"

namespace gullymark::editor {

Windows windows;

}  // namespace gullymark::editor
