#pragma once

#include <optional>
#include <string>
#include <vector>

#include "review/balance.h"
#include "review/finding.h"
#include "review/fresh_road.h"
#include "review/progress.h"
#include "review/project.h"

namespace gullymark::review {

/// A project with all that is told of it, of one moment.
struct Reviewed {
    Project project;
    std::vector<Finding> findings;
    FreshRoad fresh;
    Balance balance;
    std::vector<std::size_t> places;  // where each inlet stands along the road
};

/// Reads the project at `path`, judges it and works out its fresh road; nothing when `progress` ended that. Throws Failure as
/// `read_project` does.
std::optional<Reviewed> review_file(const std::string& path, const Limits& limits = {},
                                    const Progress& progress = {});

}  // namespace gullymark::review
