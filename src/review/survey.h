#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "engine/inlet_record.h"
#include "review/finding.h"
#include "review/links.h"
#include "review/project.h"
#include "review/rules.h"
#include "review/sides.h"
#include "review/texts.h"

/// What every rule looks at and tells to. The units of the project are in force meanwhile.
namespace gullymark::review {

class Survey {
  public:
    using Index = std::size_t;

    Survey(const Project& project, const Limits& limits)
        : project_(project), limits_(limits), links_(project) {}

    [[nodiscard]] const Project& project() const { return project_; }
    [[nodiscard]] const Limits& limits() const { return limits_; }
    [[nodiscard]] const Links& links() const { return links_; }
    [[nodiscard]] const engine::InletRecord& inlet(Index index) const { return project_.inlets[index]; }
    [[nodiscard]] std::size_t count() const { return project_.inlets.size(); }

    /// Takes a finding on an inlet, or on the whole project.
    void report(const Rule& rule, Index index, std::string text, std::string advice);

    /// All that was told, worst first, then in the order of the file.
    std::vector<Finding> take_findings();

  private:
    const Project& project_;
    const Limits& limits_;
    Links links_;
    std::vector<Finding> told_;
};

}  // namespace gullymark::review
