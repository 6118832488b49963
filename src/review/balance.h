#pragma once

#include "review/links.h"
#include "review/project.h"

namespace gullymark::review {

/// Where the water of a project stays, by what is stored; cfs or cms.
struct Balance {
    double in = 0;           // discharge and overland flow of all inlets
    double intercepted = 0;  // by all inlets
    double out = 0;          // bypass that no inlet takes
    double rounding = 0;     // so much may be missing since texts are rounded

    [[nodiscard]] double unexplained() const { return in - intercepted - out; }
    /// True where rounding explains what is left.
    [[nodiscard]] bool closes() const;
};

/// A text that is no number counts as 0.
Balance balance_of(const Project& project, const Links& links);
Balance balance_of(const Project& project);

}  // namespace gullymark::review
