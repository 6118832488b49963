#pragma once

#include "engine/inlet_record.h"

namespace gullymark::section {

/// True for a column that the results of an inlet of this record's kind depend on. What stands in the others means nothing
/// to it: their fields are off.
[[nodiscard]] bool is_input(engine::Column column, const engine::InletRecord& record);

}  // namespace gullymark::section
