#pragma once

#include <cstddef>

#include "engine/inlet_record.h"

namespace gullymark::reports {

/// Print Report: the sheet of the one inlet that is current in the editor, as its record stands. `inlet_count` is the
/// number of rows in the workspace's list; with none there is only a message. The folder chosen becomes the session's
/// working folder. What cannot be had is left out, as report_file.h tells.
void inlet_report(std::size_t inlet_count, const engine::InletRecord& current_inlet);

}  // namespace gullymark::reports
