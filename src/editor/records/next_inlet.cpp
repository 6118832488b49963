#include "editor/records/next_inlet.h"

#include "store/project_session.h"

namespace gullymark::editor {

store::InletUsage feeds_another(const std::string& number) {
    const auto left = store::find_inlet_usage(number, "PREINLET1");
    return left == store::InletUsage::no_row ? store::find_inlet_usage(number, "PREINLET2") : left;
}

std::string feeds_found_inlet() {
    return "Current Inlet has Carryover Discharge to Inlet Number - " + store::session.ReferencingInletNumber;
}

}  // namespace gullymark::editor
