#pragma once

#include <string>
#include <vector>

#include "engine/inlet_record.h"

namespace gullymark::review {

/// A project as it stands in its file: the details and all inlets in the order of the file.
struct Project {
    std::string id;
    std::string name;
    std::string county;
    std::string state;
    std::string designer;
    std::string units;  // of the project, as stored
    std::vector<engine::InletRecord> inlets;
};

}  // namespace gullymark::review
