#pragma once

#include <cstddef>
#include <string>

#include "engine/inlet_record.h"

namespace gullymark::tools {

/// Makes a project file of `inlets` solved inlets at `path` from the template: the rows of `table` (a table of solved
/// inlets, see case_table.h) over and over, kinds mixed, numbered "I-001" and on along one road; every tenth hands its
/// bypass on to the next. Throws platform::Failure or std::runtime_error.
void make_project(const std::string& template_path, const std::string& table, const std::string& path,
                  std::size_t inlets);

/// Where the inlet at `index` stands along that road, and the drainage area that gives its discharge.
void describe_place(engine::InletRecord& inlet, std::size_t index);

}  // namespace gullymark::tools
