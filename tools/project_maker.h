#pragma once

#include <cstddef>
#include <string>

namespace gullymark::tools {

/// Makes a project file of `inlets` solved inlets at `path` from the template: the rows of `table` (a table of solved
/// inlets, see case_table.h) over and over, kinds mixed, numbered "I-000001" and on along one road; every tenth hands its
/// bypass on to the next. Throws platform::Failure or std::runtime_error.
void make_project(const std::string& template_path, const std::string& table, const std::string& path,
                  std::size_t inlets);

}  // namespace gullymark::tools
