#include "editor/form/inlet_form.h"

namespace gullymark::editor {

InletForm frminletMDIC;

}  // namespace gullymark::editor
