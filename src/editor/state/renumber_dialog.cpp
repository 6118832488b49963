#include "editor/state/renumber_dialog.h"

namespace gullymark::editor {

RenumberDialog frminletmodify;

}  // namespace gullymark::editor
