#pragma once

#include <cstddef>

namespace gullymark::reports {

/// Inlet Design Form: the sheet of all inlets of the open project in the order of their numbers, read from the file.
/// `inlet_count` is the number of rows in the workspace's list; with none there is only a message. The working folder
/// stays. What cannot be had is left out, as report_file.h tells; where an inlet cannot be read there is no sheet.
void InletDesignForm(std::size_t inlet_count);

}  // namespace gullymark::reports
