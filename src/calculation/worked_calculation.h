#pragma once

#include <chrono>
#include <functional>
#include <string>

#include "calculation/document.h"
#include "engine/inlet_record.h"

/// The worked calculation of an inlet: how its results follow from its inputs, step by step.
namespace gullymark::calculation {

/// What the title block tells of the project.
struct ProjectTitle {
    std::string id;
    std::string name;
    std::string county;
    std::string state;
    std::string designer;
};

struct Request {
    const engine::InletRecord& inlet;  // inputs and stored results
    std::string units;                 // of the project
    ProjectTitle project{};
    std::chrono::year_month_day today{};
    /// What the form calls a column; where it is empty, or nothing is set, the column's meaning stands in its place.
    std::function<std::string(engine::Column)> caption{};
};

/// Works the inlet out on a copy (solve_copy.h). An inlet of no known kind, or whose discharge is none, gives a document
/// that says so.
Document work_out(const Request& request);

}  // namespace gullymark::calculation
